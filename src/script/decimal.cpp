#include "script/decimal.h"

#include <array>
#include <charconv>
#include <cmath>

namespace zelvor::script {

namespace {

constexpr int kSignificantDigits = 15;

// Adds one at the last digit; true when a digit is carried out at the front.
bool addOne(std::string& digits) {
    for (size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return false;
        }
        digits[i] = '0';
    }
    return true;
}

// Whether cutting the digits at `at` rounds them up.
bool roundsUp(const std::string& digits, size_t at, Halves halves) {
    const bool tie = digits[at] == '5' && digits.find_first_not_of('0', at + 1) == std::string::npos;
    if (!tie || halves == Halves::AwayFromZero) return digits[at] >= '5';
    return at > 0 && (digits[at - 1] - '0') % 2 != 0;
}

// The decimal of "-1.23456789012345e+02".
Decimal decimalOfText(const std::string& text, int places, Halves halves) {
    Decimal decimal;
    const size_t first = text.front() == '-' ? 1 : 0;
    const size_t exponentAt = text.find('e');
    std::string digits = text.substr(first, exponentAt - first);
    if (digits.size() > 1) digits.erase(1, 1);  // the point
    int pointAt = std::stoi(text.substr(exponentAt + 1)) + 1;

    const int keep = pointAt + places;
    if (keep < 0) {
        digits.clear();
    } else if (keep < static_cast<int>(digits.size())) {
        const bool up = roundsUp(digits, static_cast<size_t>(keep), halves);
        digits.resize(static_cast<size_t>(keep));
        if (up && addOne(digits)) {
            digits.insert(digits.begin(), '1');
            ++pointAt;
        }
    }
    if (pointAt < 0) digits.insert(0, static_cast<size_t>(-pointAt), '0');
    const auto wholeDigits = static_cast<size_t>(pointAt > 0 ? pointAt : 0);
    if (digits.size() < wholeDigits) digits.resize(wholeDigits, '0');
    decimal.whole = digits.substr(0, wholeDigits);
    decimal.whole.erase(0, decimal.whole.find_first_not_of('0'));
    decimal.fraction = digits.substr(wholeDigits);
    decimal.fraction.resize(static_cast<size_t>(places), '0');
    decimal.negative =
        first == 1 && (!decimal.whole.empty() || decimal.fraction.find_first_not_of('0') != std::string::npos);
    return decimal;
}

}  // namespace

Decimal decimalOf(double number, int places, Halves halves) {
    std::array<char, 32> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                       std::chars_format::scientific, kSignificantDigits - 1);
    return decimalOfText({buffer.data(), written.ptr}, places, halves);
}

double roundedTo(double number, int places, Halves halves) {
    // Fifteen digits where they reach, so that 0.1 + 0.2 rounds as 0.3 does; all that the number has beyond.
    const double digits = std::floor(std::log10(std::abs(number))) + 1 + places;
    if (!(digits >= kSignificantDigits)) return numberOf(decimalOf(number, places, halves));
    std::array<char, 32> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::scientific);
    return numberOf(decimalOfText({buffer.data(), written.ptr}, places, halves));
}

double numberOf(const Decimal& decimal) {
    const std::string text = (decimal.negative ? "-0" : "0") + decimal.whole + '.' + decimal.fraction + '0';
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::string grouped(const std::string& whole) {
    std::string result;
    for (size_t i = 0; i < whole.size(); ++i) {
        if (i > 0 && (whole.size() - i) % 3 == 0) result += ',';
        result += whole[i];
    }
    return result;
}

}  // namespace zelvor::script
