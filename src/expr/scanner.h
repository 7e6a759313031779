#pragma once

#include <cstddef>
#include <string_view>

#include "expr/error_table.h"

namespace zelvor::expr {

inline constexpr char kDecimalSeparator = '.';
inline constexpr char kArgumentSeparator = ',';

bool isBlank(char c);
bool isDigit(char c);
// Letters, "_" and every character beyond ASCII.
bool startsName(char c);
// True at a digit, or at a decimal separator before one.
bool startsNumber(std::string_view rest);

// The name at the start of the text.
std::string_view scanName(std::string_view rest);

struct ScannedNumber {
    double value = 0;
    // Bytes taken, on an error those of the faulty piece.
    std::size_t length = 0;
    ErrorCode error = ErrorCode::None;
    // True for a group of degrees, minutes and seconds; `value` is then in degrees.
    bool degrees = false;
};

struct NumberStyle {
    bool units = false;
    bool degrees = false;
};

// The number at the start of the text, with the unit symbol or the group of degrees that the style lets it carry.
ScannedNumber scanNumber(std::string_view rest, NumberStyle style);

}  // namespace zelvor::expr
