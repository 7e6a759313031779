#include "live/clock_text.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zelvor {

std::optional<int> clockHundredths(const QString& text) {
    static const QRegularExpression kClock(u"^(?:([0-9]{1,2}):)?([0-9]{1,2})(?:[:.]([0-9]{1,2}))?$"_s);
    const QRegularExpressionMatch match = kClock.match(text.trimmed());
    if (!match.hasMatch()) return std::nullopt;
    const int seconds = match.captured(2).toInt();
    if (match.hasCaptured(1) && seconds > 59) return std::nullopt;
    const QString fraction = match.captured(3).leftJustified(2, u'0');
    return (match.captured(1).toInt() * 60 + seconds) * 100 + fraction.toInt();
}

QString secondsText(int hundredths) {
    const int seconds = hundredths / 100;
    return QString::number(seconds / 60) + u':' + QString::number(seconds % 60).rightJustified(2, u'0');
}

}  // namespace zelvor
