#include "app_language_server/text_place.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

bool isWordCharacter(QChar c) {
    return c.isLetterOrNumber() || c == u'_' || c == u'@' || c == u'.';
}

QJsonObject position(int line, qsizetype column) {
    return {{u"line"_s, line}, {u"character"_s, column}};
}

}  // namespace

CommandSpot spotAt(const QString& line, qsizetype column) {
    QString before = line.left(column);
    // In a quoted line of an IFL that one counts.
    if (before.trimmed().startsWith(u"IFL", Qt::CaseInsensitive) && before.count(u'"') % 2 != 0) {
        before = before.mid(before.lastIndexOf(u'"') + 1);
    }
    const QStringList items = before.split(u'~');
    CommandSpot spot;
    spot.word = items[0].trimmed().toUpper();
    spot.inArgument = items.size() > 1;
    if (!spot.inArgument) return spot;
    spot.command = findCommand(spot.word);
    spot.before = items[1];
    if (spot.command != nullptr) {
        const bool several = spot.command->usage.contains(u';');
        const qsizetype at = several ? spot.before.count(u';') : 0;
        if (at < static_cast<qsizetype>(spot.command->roles.size())) {
            spot.role = spot.command->roles[static_cast<size_t>(at)];
        }
        spot.before = several ? spot.before.section(u';', -1) : spot.before;
    }
    return spot;
}

QString wordAt(const QString& line, qsizetype column) {
    qsizetype first = std::clamp<qsizetype>(column, 0, line.size());
    qsizetype last = first;
    while (first > 0 && isWordCharacter(line[first - 1])) --first;
    while (last < line.size() && isWordCharacter(line[last])) ++last;
    return line.mid(first, last - first);
}

QJsonObject lineRange(int line, qsizetype from, qsizetype to) {
    return {{u"start"_s, position(line, from)}, {u"end"_s, position(line, to)}};
}

}  // namespace zelvor
