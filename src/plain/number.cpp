#include "plain/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace zelvor::plain {

std::string numberText(double number, int digits) {
    if (number == 0) return "0";
    std::array<char, 32> buffer{};
    char* const first = buffer.data();
    const auto [end, error] =
        std::to_chars(first, first + buffer.size(), number, std::chars_format::general, std::clamp(digits, 1, 17));
    std::replace(first, end, 'e', 'E');
    return {first, end};
}

double roundHalfEven(double number) {
    const double below = std::floor(number);
    const double part = number - below;
    if (part < 0.5) return below;
    if (part > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

}  // namespace zelvor::plain
