#pragma once

#include <QStringView>
#include <array>
#include <optional>

#include "base/value.h"
#include "script/evaluator.h"

namespace zelvor::script {

inline constexpr std::array<QStringView, 12> kMonthNames{u"January",   u"February", u"March",    u"April",
                                                         u"May",       u"June",     u"July",     u"August",
                                                         u"September", u"October",  u"November", u"December"};
// From Sunday.
inline constexpr std::array<QStringView, 7> kWeekdayNames{u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                                          u"Thursday", u"Friday", u"Saturday"};
// "Jan", "Sun": the first letters of a name.
inline constexpr qsizetype kShortName = 3;

// Reads a date, a time or both: "2026-11-21 20:31:07" (a "T" between is taken too), "11/21/2026" (month first, unless
// that cannot be), "21 November 2026", "Nov 21, 2026", "8:31 PM". A year of two digits lies in 1930 to 2029. A date
// without a year is in the clock's year; without a clock it is refused. nullopt when the text is no date.
std::optional<Value::Date> readDate(QStringView text, const Evaluator::Clock* clock);

// The serial day of a date of the years 100 to 9999; nullopt when there is no such day.
std::optional<qint64> serialDay(qint64 year, qint64 month, qint64 day);
// Two digits lie in 1930 to 2029, anything else is the year itself.
qint64 fullYear(qint64 year);

}  // namespace zelvor::script
