#include "expr/elementary.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

#include "expr/arguments.h"
#include "expr/real.h"
#include "plain/number.h"

// Where the C library's double functions may be off by more than a unit in the last place, the long double ones are
// taken and rounded once.
namespace zelvor::expr {

namespace {

// Figures of a whole number of 64 bits, more than the shortest form of any double.
constexpr std::size_t kMaxFigures = 20;

bool isOddWhole(double n) {
    return std::fabs(std::fmod(n, 2)) == 1;
}

}  // namespace

double cubeRoot(double x) {
    return static_cast<double>(std::cbrt(Real{x}));
}

double logarithm10(double x) {
    return x > 0 ? static_cast<double>(std::log10(Real{x})) : kFailed;
}

double logarithmToBase(double x, double base) {
    if (x <= 0 || base <= 0 || base == 1) return kFailed;
    return static_cast<double>(std::log(Real{x}) / std::log(Real{base}));
}

double naturalLogarithm(double x) {
    return x > 0 ? std::log(x) : kFailed;
}

double root(double x, double n) {
    if (n == 0) return kFailed;
    if (x >= 0) return static_cast<double>(std::pow(Real{x}, 1 / Real{n}));
    return isOddWhole(n) ? static_cast<double>(-std::pow(-Real{x}, 1 / Real{n})) : kFailed;
}

double sign(double x) {
    return static_cast<double>(x > 0) - static_cast<double>(x < 0);
}

double squareRoot(double x) {
    return x >= 0 ? std::sqrt(x) : kFailed;
}

double roundToDigits(double x, double digits) {
    if (digits != std::floor(digits)) return kFailed;
    // The shortest decimal form, d.ddddde+xx, is what the writer of the number saw: 2.675 is a half at two digits.
    std::array<char, 40> text{};
    char* const first = text.data();
    char* const end = std::to_chars(first, first + text.size(), std::fabs(x), std::chars_format::scientific).ptr;
    char* const exponentMark = std::find(first, end, 'e');
    int exponent = 0;
    std::from_chars(exponentMark[1] == '+' ? exponentMark + 2 : exponentMark + 1, end, exponent);

    std::array<char, kMaxFigures> figures{};
    char* figuresEnd = std::copy_if(first, exponentMark, figures.data(), [](char c) { return c != '.'; });
    const auto count = static_cast<double>(figuresEnd - figures.data());
    const double kept = digits + exponent + 1;
    if (kept >= count) return x;
    if (kept < 0) return 0;

    char* const cut = figures.data() + static_cast<int>(kept);
    const bool half = *cut == '5' && std::all_of(cut + 1, figuresEnd, [](char c) { return c == '0'; });
    const bool odd = cut != figures.data() && (cut[-1] - '0') % 2 == 1;
    const bool up = half ? odd : *cut >= '5';
    figuresEnd = cut;
    long long whole = 0;
    std::from_chars(figures.data(), figuresEnd, whole);
    if (up) ++whole;

    // whole * 10^-digits, read back so that the result is the double nearest to the rounded decimal.
    char* at = std::to_chars(first, first + kMaxFigures, whole).ptr;
    *at++ = 'e';
    at = std::to_chars(at, first + text.size(), -static_cast<int>(digits)).ptr;
    double rounded = 0;
    if (std::from_chars(first, at, rounded).ec != std::errc() && whole != 0) return kFailed;
    return std::copysign(rounded, x);
}

double remainderOf(double a, double b) {
    return b == 0 ? kFailed : std::fmod(a, b);
}

double integerQuotient(double a, double b) {
    const double dividend = plain::roundHalfEven(a);
    const double divisor = plain::roundHalfEven(b);
    if (divisor == 0) return kFailed;
    return (dividend - std::fmod(dividend, divisor)) / divisor;
}

double hyperbolicCosine(double x) {
    return static_cast<double>(std::cosh(Real{x}));
}

double hyperbolicSine(double x) {
    return static_cast<double>(std::sinh(Real{x}));
}

double hyperbolicTangent(double x) {
    return static_cast<double>(std::tanh(Real{x}));
}

double hyperbolicCosecant(double x) {
    return x == 0 ? kFailed : static_cast<double>(1 / std::sinh(Real{x}));
}

double hyperbolicSecant(double x) {
    return static_cast<double>(1 / std::cosh(Real{x}));
}

double hyperbolicCotangent(double x) {
    return x == 0 ? kFailed : static_cast<double>(1 / std::tanh(Real{x}));
}

double inverseHyperbolicCosine(double x) {
    return x >= 1 ? static_cast<double>(std::acosh(Real{x})) : kFailed;
}

double inverseHyperbolicSine(double x) {
    return static_cast<double>(std::asinh(Real{x}));
}

double inverseHyperbolicTangent(double x) {
    return std::fabs(x) < 1 ? static_cast<double>(std::atanh(Real{x})) : kFailed;
}

double inverseHyperbolicCosecant(double x) {
    return x == 0 ? kFailed : static_cast<double>(std::asinh(1 / Real{x}));
}

double inverseHyperbolicSecant(double x) {
    if (x <= 0 || x > 1) return kFailed;
    if (x < 0.5) return static_cast<double>(std::acosh(1 / Real{x}));
    // Near 1, where 1/x would lose the digits that matter.
    return static_cast<double>(2 * std::atanh(std::sqrt((1 - Real{x}) / (1 + Real{x}))));
}

double inverseHyperbolicCotangent(double x) {
    if (std::fabs(x) <= 1) return kFailed;
    return std::copysign(static_cast<double>(std::log1p(2 / (std::fabs(Real{x}) - 1)) / 2), x);
}

}  // namespace zelvor::expr
