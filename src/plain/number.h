#pragma once

#include <string>

namespace zelvor::plain {

inline constexpr int kSignificantDigits = 15;

// A number as text: at most `digits` significant digits (1 to 17), "." as decimal sign, exponents as "1E+15", "1E-07".
std::string numberText(double number, int digits = kSignificantDigits);

// Rounds to the nearest whole number, halves to the even neighbour, whatever the floating-point environment says.
double roundHalfEven(double number);

}  // namespace zelvor::plain
