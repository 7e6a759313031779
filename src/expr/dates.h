#pragma once

// Dates are days since 30 December 1899, times of day their fractions. Years run from 100 to 9999; functions fail
// beyond them. Times are read to the nearest second.
namespace zelvor::expr {

double yearOf(double date);
double monthOf(double date);
double dayOf(double date);
double hourOf(double date);
double minuteOf(double date);
double secondOf(double date);

// Whole numbers; months, days, hours, minutes and seconds beyond their usual range carry over. Years 0 to 99 are
// 1930 to 2029.
double dateSerial(double year, double month, double day);
double timeSerial(double hour, double minute, double second);

// The local date and time now.
double localDateTime();

}  // namespace zelvor::expr
