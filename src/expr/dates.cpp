#include "expr/dates.h"

#include <chrono>
#include <cmath>
#include <ctime>

#include "expr/arguments.h"

namespace zelvor::expr {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kDayZero = std::chrono::year{1899} / 12 / 30;
constexpr double kFirstDay = static_cast<double>((sys_days{std::chrono::year{100} / 1 / 1} - kDayZero).count());
constexpr double kEndDay = static_cast<double>((sys_days{std::chrono::year{10000} / 1 / 1} - kDayZero).count());
constexpr double kSecondsPerDay = 86400;
// Keeps sums of years, months and days within whole-number range.
constexpr double kMaxPart = 1e8;

bool isPart(double x) {
    return x == std::floor(x) && std::fabs(x) <= kMaxPart;
}

double dayNumber(int year, int month, int day) {
    const sys_days date = std::chrono::year{year} / month / day;
    return static_cast<double>((date - kDayZero).count());
}

struct Moment {
    bool valid = false;
    year_month_day date;
    int second = 0;
};

// The fraction is positive time, before day zero as after it: -1.25 is six o'clock on the day before.
Moment momentOf(double date) {
    double day = std::trunc(date);
    double second = std::round(std::fabs(date - day) * kSecondsPerDay);
    if (second == kSecondsPerDay) {
        second = 0;
        ++day;
    }
    if (day < kFirstDay || day >= kEndDay) return {};
    return {true, kDayZero + days{static_cast<int>(day)}, static_cast<int>(second)};
}

}  // namespace

double yearOf(double date) {
    const Moment moment = momentOf(date);
    return moment.valid ? static_cast<int>(moment.date.year()) : kFailed;
}

double monthOf(double date) {
    const Moment moment = momentOf(date);
    return moment.valid ? static_cast<unsigned>(moment.date.month()) : kFailed;
}

double dayOf(double date) {
    const Moment moment = momentOf(date);
    return moment.valid ? static_cast<unsigned>(moment.date.day()) : kFailed;
}

double hourOf(double date) {
    const Moment moment = momentOf(date);
    const int hour = moment.second / 3600;
    return moment.valid ? hour : kFailed;
}

double minuteOf(double date) {
    const Moment moment = momentOf(date);
    const int minute = moment.second / 60 % 60;
    return moment.valid ? minute : kFailed;
}

double secondOf(double date) {
    const Moment moment = momentOf(date);
    return moment.valid ? moment.second % 60 : kFailed;
}

double dateSerial(double year, double month, double day) {
    if (!isPart(year) || !isPart(month) || !isPart(day)) return kFailed;
    // Years of two digits lie in 1930 to 2029, as those of script expressions do.
    if (year >= 0 && year < 100) year += year < 30 ? 2000 : 1900;
    const double months = year * 12 + month - 1;
    const double wholeYear = std::floor(months / 12);
    // Days may carry over by a few years, not by centuries of centuries.
    if (wholeYear < -10000 || wholeYear > 20000) return kFailed;
    const int monthOfYear = static_cast<int>(months - wholeYear * 12) + 1;
    const double serial = dayNumber(static_cast<int>(wholeYear), monthOfYear, 1) + day - 1;
    return serial >= kFirstDay && serial < kEndDay ? serial : kFailed;
}

double timeSerial(double hour, double minute, double second) {
    if (!isPart(hour) || !isPart(minute) || !isPart(second)) return kFailed;
    return (hour * 3600 + minute * 60 + second) / kSecondsPerDay;
}

double localDateTime() {
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&seconds, &local);
    const double time = local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec;
    return dayNumber(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) + time / kSecondsPerDay;
}

}  // namespace zelvor::expr
