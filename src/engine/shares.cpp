#include "engine/shares.h"

#include <array>
#include <boost/multiprecision/cpp_int.hpp>
#include <charconv>
#include <string>

namespace zelvor {

namespace {

using Exact = boost::multiprecision::cpp_rational;
using Whole = boost::multiprecision::cpp_int;

// The number that the shortest decimal text of the double reads as.
Exact exact(double number) {
    std::array<char, 32> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::scientific);
    std::string digits(buffer.data(), written.ptr);
    const size_t exponentAt = digits.find('e');
    int exponent = std::stoi(digits.substr(exponentAt + 1));
    digits.resize(exponentAt);
    if (const size_t point = digits.find('.'); point != std::string::npos) {
        exponent -= static_cast<int>(digits.size() - point - 1);
        digits.erase(point, 1);
    }
    const Whole power = boost::multiprecision::pow(Whole(10), static_cast<unsigned>(std::abs(exponent)));
    const Whole mantissa(digits);
    return exponent < 0 ? Exact(mantissa, power) : Exact(mantissa * power);
}

Whole roundedDown(const Exact& number) {
    const Whole quotient = numerator(number) / denominator(number);  // cut towards 0
    return number < 0 && Exact(quotient) != number ? Whole(quotient - 1) : quotient;
}

}  // namespace

Shares sharesOf(double a, double b, double max) {
    const Exact total = exact(a) + exact(b);
    if (total <= 0) return {};
    const Exact whole = exact(max);
    const Exact first = roundedDown(exact(a) / total * whole);
    const Exact second = whole - first;
    return {first.convert_to<double>(), second.convert_to<double>()};
}

}  // namespace zelvor
