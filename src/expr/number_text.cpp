#include "expr/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zelvor::expr {

std::string numberText(double number, int digits) {
    if (number == 0) return "0";
    std::array<char, 32> buffer{};
    char* const first = buffer.data();
    const auto [end, error] =
        std::to_chars(first, first + buffer.size(), number, std::chars_format::general, std::clamp(digits, 1, 17));
    std::replace(first, end, 'e', 'E');
    return {first, end};
}

}  // namespace zelvor::expr
