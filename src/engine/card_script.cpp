#include "engine/card_script.h"

#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr QStringView kBlockEnd = u"FI~";

std::shared_ptr<const LineCondition> parseCondition(const QString& line, const ExpandableText& comparison) {
    auto condition = std::make_shared<LineCondition>();
    condition->comparison = comparison;
    const Pieces quoted(line, u'"');
    if (quoted.count() < 2) return condition;
    condition->thenLine = std::make_unique<ScriptLine>(quoted[1].toString());
    condition->elseLine = std::make_unique<ScriptLine>(quoted.count() >= 5 ? quoted[3].toString() : u"#"_s);
    return condition;
}

}  // namespace

QString cleanedScriptLine(QString line) {
    line.remove(u'\t');
    qsizetype first = 0;
    qsizetype last = line.size();
    // Blanks alone: a no-break space may hold a width on the air.
    while (first < last && line[first] == u' ') ++first;
    while (last > first && line[last - 1] == u' ') --last;
    return line.mid(first, last - first);
}

ScriptLine::ScriptLine(QString line) : text(std::move(line)) {
    const Pieces items(text, u'~');
    if (items.count() == 0) return;
    const QString word = items[0].trimmed().toString().toUpper();
    hasArgument = items.count() > 1;
    if (hasArgument) argument = ExpandableText(items[1].toString());
    if (word == u"IFL") {
        condition = parseCondition(text, argument);
    } else {
        command = findCommand(word);
    }
}

CardScript::CardScript(const QString& card, const QString& path, const QString& language, const AppFolder& folder,
                       const TextFiles& files, ScriptPlace& reached) {
    reached = {card};
    for (const QString& rawLine : readSource(path, files)) {
        ++reached.line;
        const QString line = cleanedScriptLine(rawLine);
        if (line.isEmpty()) continue;
        const Pieces items(line, u'~');
        if (items[0] == u"INCLUDE") {
            if (items.count() < 2) throw MissingPiece(u"INCLUDE~file"_s);
            ScriptPlace place{card, items[1].toString()};
            for (const QString& included : readSource(folder.resolve(folder.packFile(language, place.file)), files)) {
                ++place.line;
                append(cleanedScriptLine(included), place);
            }
        }
        append(line, reached);
    }
}

QStringList CardScript::readSource(const QString& path, const TextFiles& files) {
    sources_.push_back({path, fileStamp(path)});
    return files.readLines(path);
}

void CardScript::append(const QString& line, const ScriptPlace& place) {
    lines_.emplace_back(line);
    places_.push_back(place);
    if (line.startsWith(kBlockEnd)) blockEnds_[line.mid(kBlockEnd.size())].push_back(lineCount());
    const QStringView word = QStringView(line).left(line.indexOf(u'~')).trimmed();
    if (word.compare(u"FUNCTIONCARD", Qt::CaseInsensitive) == 0) functionCard_ = true;
}

int CardScript::findBlockEnd(QStringView label, int from) const {
    const auto found = blockEnds_.constFind(label.toString());
    if (found == blockEnds_.constEnd()) return 0;
    const auto end = std::ranges::lower_bound(*found, from);
    return end == found->end() ? 0 : *end;
}

bool CardScript::isCurrent() const {
    return std::ranges::all_of(
        sources_, [](const Source& source) { return source.stamp && fileStamp(source.path) == source.stamp; });
}

std::shared_ptr<const CardScript> CardScriptCache::current(const QString& name) const {
    const auto found = scripts_.constFind(name);
    return found != scripts_.constEnd() && (*found)->isCurrent() ? *found : nullptr;
}

}  // namespace zelvor
