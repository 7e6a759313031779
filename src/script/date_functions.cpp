#include <algorithm>
#include <array>
#include <span>

#include "base/run_time_error.h"
#include "script/calendar.h"
#include "script/date_text.h"
#include "script/functions.h"
#include "script/lexer.h"

namespace zelvor::script::functions {

namespace {

enum class Interval { Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

struct IntervalName {
    QStringView name;
    Interval interval;
};

constexpr std::array kIntervals{
    IntervalName{u"yyyy", Interval::Year}, IntervalName{u"q", Interval::Quarter},
    IntervalName{u"m", Interval::Month},   IntervalName{u"y", Interval::DayOfYear},
    IntervalName{u"d", Interval::Day},     IntervalName{u"w", Interval::Weekday},
    IntervalName{u"ww", Interval::Week},   IntervalName{u"h", Interval::Hour},
    IntervalName{u"n", Interval::Minute},  IntervalName{u"s", Interval::Second},
};

Interval intervalOf(const Arguments& args) {
    const TextOf name = args.text(0);
    for (const IntervalName& row : kIntervals) {
        if (compareNames(name, row.name) == 0) return row.interval;
    }
    throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

// 0 (the system's) is Sunday.
int firstDayOf(const Arguments& args, qsizetype index) {
    const qint64 day = args.whole(index, 1);
    require(day >= 0 && day <= 7);
    return day == 0 ? 1 : static_cast<int>(day);
}

WeekRule weekRuleOf(const Arguments& args, qsizetype index) {
    const qint64 week = args.whole(index + 1, 1);
    require(week >= 0 && week <= 3);
    return {.firstDay = firstDayOf(args, index),
            .firstWeek = static_cast<WeekRule::FirstWeek>(std::max<qint64>(week, 1))};
}

QDate dayOf(const Arguments& args) {
    return daySecond(args.date(0)).date();
}

int secondOf(const Arguments& args) {
    return static_cast<int>(daySecond(args.date(0)).second);
}

// A date that a calculation led to: 5 when it lies outside of the years 100 to 9999.
Value calculated(DaySecond when) {
    const Value::Date date = serialDate(when);
    require(isDateInRange(date.days));
    return date;
}

// Months since the year 0.
qint64 monthsOf(QDate date) {
    return date.year() * 12LL + date.month() - 1;
}

Value monthsLater(DaySecond when, qint64 months) {
    const QDate date = when.date();
    const qint64 target = monthsOf(date) + months;
    const qint64 year = floorDivide(target, 12);
    require(year >= 100 && year <= 9999);
    const int month = static_cast<int>(target - year * 12) + 1;
    const int lastDay = QDate(static_cast<int>(year), month, 1).daysInMonth();
    const auto day = serialDay(year, month, std::min(date.day(), lastDay));
    return calculated({*day, when.second});
}

qint64 secondsOf(Interval interval) {
    switch (interval) {
        case Interval::Hour:
            return 3600;
        case Interval::Minute:
            return 60;
        case Interval::Second:
            return 1;
        case Interval::Week:
            return 7 * kSecondsADay;
        default:
            return kSecondsADay;
    }
}

// In whole seconds, the current one cut: Now is never ahead of Time.
QDateTime wholeSecond(Environment& environment) {
    const QDateTime now = environment.clock();
    return now.addMSecs(-now.time().msec());
}

Value name(std::span<const QStringView> names, qint64 number, bool abbreviated) {
    require(number >= 1 && number <= static_cast<qint64>(names.size()));
    const QStringView whole = names[static_cast<size_t>(number - 1)];
    return (abbreviated ? whole.left(kShortName) : whole).toString();
}

}  // namespace

Value date(const Arguments& args) {
    return Value::fromDateTime(QDateTime(wholeSecond(args.environment()).date(), QTime(0, 0)));
}

Value dateAdd(const Arguments& args) {
    const Interval interval = intervalOf(args);
    const qint64 count = args.whole(1);
    const DaySecond when = daySecond(args.date(2));
    switch (interval) {
        case Interval::Year:
            return monthsLater(when, count * 12);
        case Interval::Quarter:
            return monthsLater(when, count * 3);
        case Interval::Month:
            return monthsLater(when, count);
        default:
            return calculated(fromLinearSeconds(linearSeconds(when) + count * secondsOf(interval)));
    }
}

Value dateDiff(const Arguments& args) {
    const Interval interval = intervalOf(args);
    if (args[1].isNull() || args[2].isNull()) return Value::Null{};
    const DaySecond from = daySecond(args.date(1));
    const DaySecond to = daySecond(args.date(2));
    const int firstDay = weekRuleOf(args, 3).firstDay;
    switch (interval) {
        case Interval::Year:
            return qint64{to.date().year()} - from.date().year();
        case Interval::Quarter:
            return floorDivide(monthsOf(to.date()), 3) - floorDivide(monthsOf(from.date()), 3);
        case Interval::Month:
            return monthsOf(to.date()) - monthsOf(from.date());
        case Interval::DayOfYear:
        case Interval::Day:
            return to.day - from.day;
        case Interval::Weekday:
            return (to.day - from.day) / 7;
        case Interval::Week:
            return ((to.day - weekdayNumber(to.day, firstDay)) - (from.day - weekdayNumber(from.day, firstDay))) / 7;
        case Interval::Hour:
        case Interval::Minute:
        case Interval::Second: {
            // Counts the full hours or minutes passed, as clocks strike: from 10:59 to 11:00 is one hour.
            const qint64 unit = secondsOf(interval);
            const qint64 passed = floorDivide(linearSeconds(to), unit) - floorDivide(linearSeconds(from), unit);
            if (passed < INT32_MIN || passed > INT32_MAX) throw RunTimeError(ErrorNumber::Overflow);
            return passed;
        }
    }
    Q_UNREACHABLE();
}

Value datePart(const Arguments& args) {
    const Interval interval = intervalOf(args);
    if (args[1].isNull()) return Value::Null{};
    const DaySecond when = daySecond(args.date(1));
    const WeekRule rule = weekRuleOf(args, 2);
    switch (interval) {
        case Interval::Year:
            return when.date().year();
        case Interval::Quarter:
            return (when.date().month() - 1) / 3 + 1;
        case Interval::Month:
            return when.date().month();
        case Interval::DayOfYear:
            return when.date().dayOfYear();
        case Interval::Day:
            return when.date().day();
        case Interval::Weekday:
            return weekdayNumber(when.day, rule.firstDay);
        case Interval::Week:
            return weekOfYear(when.day, rule);
        case Interval::Hour:
            return when.second / 3600;
        case Interval::Minute:
            return when.second / 60 % 60;
        case Interval::Second:
            return when.second % 60;
    }
    Q_UNREACHABLE();
}

Value dateSerial(const Arguments& args) {
    // Months and days beyond their ends carry over: month 13 is next January, day 0 the last of the month before.
    const qint64 month = args.whole(1) - 1;
    const qint64 year = fullYear(args.whole(0)) + floorDivide(month, 12);
    const auto first = serialDay(year, month - floorDivide(month, 12) * 12 + 1, 1);
    require(first.has_value());
    return calculated({*first + args.whole(2) - 1, 0});
}

Value dateValue(const Arguments& args) {
    return serialDate({daySecond(args.date(0)).day, 0});
}

Value day(const Arguments& args) {
    return dayOf(args).day();
}

Value hour(const Arguments& args) {
    return secondOf(args) / 3600;
}

Value minute(const Arguments& args) {
    return secondOf(args) / 60 % 60;
}

Value month(const Arguments& args) {
    return dayOf(args).month();
}

Value monthName(const Arguments& args) {
    return name(kMonthNames, args.whole(0), args.truth(1, false));
}

Value now(const Arguments& args) {
    return Value::fromDateTime(wholeSecond(args.environment()));
}

Value second(const Arguments& args) {
    return secondOf(args) % 60;
}

Value time(const Arguments& args) {
    return serialDate({0, wholeSecond(args.environment()).time().msecsSinceStartOfDay() / 1000});
}

Value timer(const Arguments& args) {
    return args.environment().clock().time().msecsSinceStartOfDay() / 1000.0;
}

Value timeSerial(const Arguments& args) {
    const qint64 seconds = args.whole(0) * 3600 + args.whole(1) * 60 + args.whole(2);
    return calculated(fromLinearSeconds(seconds));
}

Value timeValue(const Arguments& args) {
    return serialDate({0, daySecond(args.date(0)).second});
}

Value weekday(const Arguments& args) {
    return weekdayNumber(daySecond(args.date(0)).day, firstDayOf(args, 1));
}

Value weekdayName(const Arguments& args) {
    const qint64 number = args.whole(0);
    require(number >= 1 && number <= 7);
    return name(kWeekdayNames, (number - 1 + firstDayOf(args, 2) - 1) % 7 + 1, args.truth(1, false));
}

Value year(const Arguments& args) {
    return dayOf(args).year();
}

}  // namespace zelvor::script::functions
