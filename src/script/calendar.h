#pragma once

#include <QDate>

#include "base/value.h"

namespace zelvor::script {

inline constexpr qint64 kSecondsADay = 86400;

// How weeks are counted.
struct WeekRule {
    enum class FirstWeek { WithFirstOfJanuary = 1, WithFourDays = 2, Whole = 3 };

    int firstDay = 1;  // 1 is Sunday, 7 Saturday
    FirstWeek firstWeek = FirstWeek::WithFirstOfJanuary;
};

// The day of the week, 1 for the rule's first one. Days are serial: 0 is 30 December 1899.
int weekdayNumber(qint64 day, int firstDay);
// The week of the year, from 1.
int weekOfYear(qint64 day, const WeekRule& rule);

// Seconds since the start of day 0, negative before it, and back.
qint64 linearSeconds(DaySecond when);
DaySecond fromLinearSeconds(qint64 seconds);

// Rounded towards minus infinity.
constexpr qint64 floorDivide(qint64 dividend, qint64 divisor) {
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}

}  // namespace zelvor::script
