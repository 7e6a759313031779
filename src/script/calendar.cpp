#include "script/calendar.h"

namespace zelvor::script {

namespace {

qint64 firstOfJanuary(int year) {
    return DaySecond{}.date().daysTo(QDate(year, 1, 1));
}

qint64 startOfFirstWeek(int year, const WeekRule& rule) {
    const qint64 first = firstOfJanuary(year);
    const int daysBefore = weekdayNumber(first, rule.firstDay) - 1;
    const qint64 start = first - daysBefore;
    switch (rule.firstWeek) {
        case WeekRule::FirstWeek::WithFirstOfJanuary:
            return start;
        case WeekRule::FirstWeek::WithFourDays:
            return daysBefore > 3 ? start + 7 : start;
        case WeekRule::FirstWeek::Whole:
            return daysBefore > 0 ? start + 7 : start;
    }
    Q_UNREACHABLE();
}

}  // namespace

int weekdayNumber(qint64 day, int firstDay) {
    // Day 0 was a Saturday.
    const qint64 fromSunday = day + 6;
    const qint64 shifted = fromSunday - (firstDay - 1);
    return static_cast<int>(shifted - 7 * floorDivide(shifted, 7)) + 1;
}

int weekOfYear(qint64 day, const WeekRule& rule) {
    const int year = DaySecond{.day = day, .second = 0}.date().year();
    qint64 start = startOfFirstWeek(year, rule);
    if (day < start) start = startOfFirstWeek(year - 1, rule);
    // The last days of December may lie in the next year's first week; with the first rule they stay in their own.
    if (rule.firstWeek != WeekRule::FirstWeek::WithFirstOfJanuary && day >= startOfFirstWeek(year + 1, rule)) return 1;
    return static_cast<int>((day - start) / 7) + 1;
}

qint64 linearSeconds(DaySecond when) {
    return when.day * kSecondsADay + when.second;
}

DaySecond fromLinearSeconds(qint64 seconds) {
    const qint64 day = floorDivide(seconds, kSecondsADay);
    return {day, seconds - day * kSecondsADay};
}

}  // namespace zelvor::script
