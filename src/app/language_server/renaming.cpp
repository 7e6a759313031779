#include "app_language_server/renaming.h"

#include <QRegularExpression>
#include <set>

#include "app_check/script_lines.h"
#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Role = Command::Role;

bool isBareName(Role role) {
    return role == Role::VariableName || role == Role::WrittenName || role == Role::LoopName;
}

bool namesBare(const QString& text, const QString& name) {
    const ScriptLine line(cleanedScriptLine(text));
    return line.command != nullptr && line.hasArgument && isBareName(line.command->roles[0]) &&
           line.argument.raw().section(u';', 0, 0) == name;
}

// Where commands that put the "@" in front name it: in the line, or in the quoted lines of an IFL.
QList<qsizetype> bareNamesAt(const QString& text, const QString& name) {
    const bool quoted = text.trimmed().startsWith(u"IFL", Qt::CaseInsensitive);
    QList<qsizetype> places;
    qsizetype from = 0;
    for (const QString& part : quoted ? text.split(u'"') : QStringList{text}) {
        if (namesBare(part, name)) places += from + part.indexOf(u'~') + 1;
        from += part.size() + 1;
    }
    return places;
}

}  // namespace

std::vector<TextSpan> placesOf(OpenPack& pack, const QString& variable) {
    const QString name = variable.mid(1);
    const QRegularExpression whole(u'@' + QRegularExpression::escape(name) + u"(?![\\p{L}\\p{N}_])"_s,
                                   QRegularExpression::UseUnicodePropertiesOption);
    std::set<QString> paths{pack.check.files().path(u"ASKFIELDS.TXT"), pack.check.files().path(u"infodata.txt")};
    for (const auto& [path, facts] : pack.check.scripts()) paths.insert(facts.sources.begin(), facts.sources.end());
    std::vector<TextSpan> spans;
    for (const QString& path : paths) {
        QStringList lines;
        try {
            lines = pack.check.files().lines(path);
        } catch (const RunTimeError&) {
            continue;  // a pack need not have it
        }
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const auto number = static_cast<int>(i);
            for (auto match = whole.globalMatch(lines[i]); match.hasNext();) {
                const qsizetype at = match.next().capturedStart() + 1;
                spans.push_back({path, number, at, at + name.size()});
            }
            for (const qsizetype at : bareNamesAt(lines[i], name))
                spans.push_back({path, number, at, at + name.size()});
        }
    }
    return spans;
}

}  // namespace zelvor
