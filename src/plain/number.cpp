#include "plain/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace zelvor::plain {

namespace {

std::string_view write(double number, int digits, NumberBuffer& buffer) {
    if (number == 0) return "0";
    char* const first = buffer.data();
    const auto [end, error] =
        std::to_chars(first, first + buffer.size(), number, std::chars_format::general, std::clamp(digits, 1, 17));
    std::replace(first, end, 'e', 'E');
    return {first, end};
}

}  // namespace

std::string numberText(double number, int digits) {
    NumberBuffer buffer;
    return std::string(write(number, digits, buffer));
}

std::string_view numberText(double number, NumberBuffer& buffer) {
    constexpr double kFirstWithExponent = 1E15;
    if (std::abs(number) < kFirstWithExponent && std::trunc(number) == number) {
        char* const first = buffer.data();
        return {first, std::to_chars(first, first + buffer.size(), static_cast<long long>(number)).ptr};
    }
    return write(number, kSignificantDigits, buffer);
}

double roundHalfEven(double number) {
    const double below = std::floor(number);
    const double part = number - below;
    if (part < 0.5) return below;
    if (part > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

}  // namespace zelvor::plain
