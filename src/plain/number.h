#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zelvor::plain {

inline constexpr int kSignificantDigits = 15;

// A number as text: at most `digits` significant digits (1 to 17), "." as decimal sign, exponents as "1E+15", "1E-07".
std::string numberText(double number, int digits = kSignificantDigits);

// The same with 15 digits, written into the buffer; the view is of it.
using NumberBuffer = std::array<char, 32>;
std::string_view numberText(double number, NumberBuffer& buffer);

// Rounds to the nearest whole number, halves to the even neighbour, whatever the floating-point environment says.
double roundHalfEven(double number);

}  // namespace zelvor::plain
