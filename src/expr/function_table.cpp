#include "expr/function_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "expr/bessel_functions.h"
#include "expr/combinatorics.h"
#include "expr/dates.h"
#include "expr/elementary.h"
#include "expr/gamma_functions.h"
#include "expr/hypergeometric.h"
#include "expr/integrals.h"
#include "expr/polynomials.h"
#include "expr/probability.h"
#include "expr/statistics.h"
#include "expr/trigonometry.h"
#include "expr/waves.h"

namespace zelvor::expr {

namespace {

double truth(bool condition) {
    return condition ? 1 : 0;
}

double logicalAnd(double a, double b) {
    return truth(a != 0 && b != 0);
}

double logicalOr(double a, double b) {
    return truth(a != 0 || b != 0);
}

double logicalXor(double a, double b) {
    return truth((a != 0) != (b != 0));
}

// Uniform from 0 up to, not including, x, by the splitmix64 generator.
double randomBelow(const Arguments& values, Context& context) {
    context.randomState += 0x9E3779B97F4A7C15U;
    std::uint64_t bits = context.randomState;
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    bits ^= bits >> 31U;
    return static_cast<double>(bits >> 11U) * 0x1p-53 * values[0];
}

double clip(double x, double lower, double upper) {
    return lower <= upper ? std::clamp(x, lower, upper) : kFailed;
}

constexpr std::array kFunctions{
    // Elementary
    Function{"Abs", 1, "x", "absolute value", Unary{[](double x) { return std::fabs(x); }}},
    Function{"Sgn", 1, "x", "sign: -1, 0 or 1", sign},
    Function{"neg", 1, "x", "the negative of x", Unary{[](double x) { return -x; }}},
    Function{"Fix", 1, "x", "whole part, toward zero", Unary{[](double x) { return std::trunc(x); }}},
    Function{"Int", 1, "x", "largest whole number not above x", Unary{[](double x) { return std::floor(x); }}},
    Function{"Round", 2, "x, digits", "x rounded to decimals, halves to the even neighbour", roundToDigits},
    Function{"Mod", 2, "a, b", "remainder of a / b, with the sign of a", remainderOf},
    Function{"Sqr", 1, "x", "square root, x >= 0", squareRoot},
    Function{"Cbr", 1, "x", "cube root", cubeRoot},
    Function{"Root", 2, "x, n", "n-th root, of negative x for odd n only", root},
    Function{"Exp", 1, "x", "e to the power x", Unary{[](double x) { return std::exp(x); }}},
    Function{"Ln", 1, "x", "natural logarithm, x > 0", naturalLogarithm},
    Function{"Log", 1, "x", "logarithm to base 10, x > 0", logarithm10},
    Function{"LogN", 2, "x, base", "logarithm to a base, x > 0, base > 0 and not 1", logarithmToBase},
    Function{"Rnd", 1, "x", "random number from 0 up to, not including, x", randomBelow},

    // Angles
    Function{"Sin", 1, "x", "sine", sine},
    Function{"Cos", 1, "x", "cosine", cosine},
    Function{"Tan", 1, "x", "tangent", tangent},
    Function{"csc", 1, "x", "cosecant", cosecant},
    Function{"sec", 1, "x", "secant", secant},
    Function{"cot", 1, "x", "cotangent", cotangent},
    Function{"Asin", 1, "x", "inverse sine, -1 <= x <= 1", arcSine},
    Function{"Acos", 1, "x", "inverse cosine, -1 <= x <= 1", arcCosine},
    Function{"Atn", 1, "x", "inverse tangent", arcTangent},
    Function{"Atan", 1, "x", "inverse tangent", arcTangent},
    Function{"acsc", 1, "x", "inverse cosecant, |x| >= 1", arcCosecant},
    Function{"asec", 1, "x", "inverse secant, |x| >= 1", arcSecant},
    Function{"acot", 1, "x", "inverse cotangent, from 0 to half a turn", arcCotangent},
    Function{"rad", 1, "x", "angle x of the current unit in radians", toRadians},
    Function{"deg", 1, "x", "angle x of the current unit in degrees", toDegrees},
    Function{"grad", 1, "x", "angle x of the current unit in grads", toGrads},
    Function{"dec", 1, "d", "a group of degrees, minutes and seconds in decimal degrees",
             Unary{[](double x) { return x; }}},

    // Hyperbolic
    Function{"Sinh", 1, "x", "hyperbolic sine", hyperbolicSine},
    Function{"Cosh", 1, "x", "hyperbolic cosine", hyperbolicCosine},
    Function{"Tanh", 1, "x", "hyperbolic tangent", hyperbolicTangent},
    Function{"csch", 1, "x", "hyperbolic cosecant, x not 0", hyperbolicCosecant},
    Function{"sech", 1, "x", "hyperbolic secant", hyperbolicSecant},
    Function{"coth", 1, "x", "hyperbolic cotangent, x not 0", hyperbolicCotangent},
    Function{"Asinh", 1, "x", "inverse hyperbolic sine", inverseHyperbolicSine},
    Function{"Acosh", 1, "x", "inverse hyperbolic cosine, x >= 1", inverseHyperbolicCosine},
    Function{"Atanh", 1, "x", "inverse hyperbolic tangent, -1 < x < 1", inverseHyperbolicTangent},
    Function{"acsch", 1, "x", "inverse hyperbolic cosecant, x not 0", inverseHyperbolicCosecant},
    Function{"asech", 1, "x", "inverse hyperbolic secant, 0 < x <= 1", inverseHyperbolicSecant},
    Function{"acoth", 1, "x", "inverse hyperbolic cotangent, |x| > 1", inverseHyperbolicCotangent},

    // Logic
    Function{"Not", 1, "a", "1 when a is 0, else 0", Unary{[](double a) { return truth(a == 0); }}},
    Function{"And", 2, "a, b", "1 when neither is 0", logicalAnd},
    Function{"Or", 2, "a, b", "1 when at least one is not 0", logicalOr},
    Function{"Xor", 2, "a, b", "1 when exactly one is not 0", logicalXor},
    Function{"Nand", 2, "a, b", "the opposite of And", Binary{[](double a, double b) { return 1 - logicalAnd(a, b); }}},
    Function{"Nor", 2, "a, b", "the opposite of Or", Binary{[](double a, double b) { return 1 - logicalOr(a, b); }}},
    Function{"NXor", 2, "a, b", "the opposite of Xor", Binary{[](double a, double b) { return 1 - logicalXor(a, b); }}},

    // Whole numbers
    Function{"Fact", 1, "n", "factorial, whole n from 0 to 170", factorial},
    Function{"Comb", 2, "n, k", "combinations of k out of n, whole 0 <= k <= n", combinations},
    Function{"Perm", 2, "n, k", "permutations of k out of n, whole 0 <= k <= n", permutations},
    Function{"gcd", kAnyNumber, "n, ...", "greatest common divisor of whole numbers", greatestCommonDivisor},
    Function{"mcd", kAnyNumber, "n, ...", "the same as gcd", greatestCommonDivisor},
    Function{"lcm", kAnyNumber, "n, ...", "least common multiple of whole numbers", leastCommonMultiple},
    Function{"mcm", kAnyNumber, "n, ...", "the same as lcm", leastCommonMultiple},

    // Statistics
    Function{"max", kAnyNumber, "x, ...", "largest value", largest},
    Function{"min", kAnyNumber, "x, ...", "smallest value", smallest},
    Function{"sum", kAnyNumber, "x, ...", "sum", sum},
    Function{"mean", kAnyNumber, "x, ...", "arithmetic mean", mean},
    Function{"meanq", kAnyNumber, "x, ...", "quadratic mean", quadraticMean},
    Function{"meang", kAnyNumber, "x, ...", "geometric mean, no value below 0", geometricMean},
    Function{"var", kAnyNumber, "x, ...", "variance of a sample of two or more", sampleVariance},
    Function{"varp", kAnyNumber, "x, ...", "variance of a population", populationVariance},
    Function{"stdev", kAnyNumber, "x, ...", "standard deviation of a sample of two or more", sampleDeviation},
    Function{"stdevp", kAnyNumber, "x, ...", "standard deviation of a population", populationDeviation},

    // Probability
    Function{"DNorm", 3, "x, mean, sd", "normal density, sd > 0", normalDensity},
    Function{"CNorm", 3, "x, mean, sd", "normal distribution: probability up to x", normalCumulative},
    Function{"DBinom", 3, "k, n, p", "probability of k successes in n trials", binomialDensity},
    Function{"CBinom", 3, "k, n, p", "probability of up to k successes in n trials", binomialCumulative},
    Function{"DPoisson", 2, "k, mean", "probability of k events", poissonDensity},
    Function{"CPoisson", 2, "k, mean", "probability of up to k events", poissonCumulative},

    // Special functions
    Function{"Erf", 1, "x", "error function", errorFunction},
    Function{"Gamma", 1, "x", "gamma function, x not 0, -1, -2 ...", gammaFunction},
    Function{"Gammaln", 1, "x", "natural logarithm of |gamma(x)|", gammaLogarithm},
    Function{"Digamma", 1, "x", "derivative of ln(gamma(x))", digammaFunction},
    Function{"Psi", 1, "x", "the same as Digamma", digammaFunction},
    Function{"Beta", 2, "a, b", "beta function, a > 0, b > 0", betaFunction},
    Function{"GammaI", 2, "a, x", "regularized lower incomplete gamma function, a > 0, x >= 0", incompleteGamma},
    Function{"BetaI", 3, "x, a, b", "regularized incomplete beta function, 0 <= x <= 1", incompleteBeta},
    Function{"Zeta", 1, "s", "Riemann zeta function, s not 1", zetaFunction},
    Function{"Ei", 1, "x", "exponential integral, x not 0", exponentialIntegral},
    Function{"Ein", 2, "x, n", "exponential integral of order n, whole n from 0 to 1000000",
             exponentialIntegralOfOrder},
    Function{"Si", 1, "x", "sine integral", sineIntegral},
    Function{"Ci", 1, "x", "cosine integral, x > 0", cosineIntegral},
    Function{"fresnels", 1, "x", "integral of sin(pi t^2 / 2) from 0 to x", fresnelSine},
    Function{"fresnelc", 1, "x", "integral of cos(pi t^2 / 2) from 0 to x", fresnelCosine},
    Function{"AiryA", 1, "x", "Airy function Ai", airyA},
    Function{"AiryB", 1, "x", "Airy function Bi", airyB},
    Function{"J0", 1, "x", "Bessel function of the first kind, order 0", besselJ0},
    Function{"Y0", 1, "x", "Bessel function of the second kind, order 0, x > 0", besselY0},
    Function{"I0", 1, "x", "modified Bessel function of the first kind, order 0", besselI0},
    Function{"K0", 1, "x", "modified Bessel function of the second kind, order 0, x > 0", besselK0},
    Function{"BesselJ", 2, "x, n", "Bessel function of the first kind; x < 0 for whole n; n up to 100000", besselJ},
    Function{"BesselY", 2, "x, n", "Bessel function of the second kind, x > 0; n up to 100000", besselY},
    Function{"BesselI", 2, "x, n", "modified Bessel function of the first kind; x < 0 for whole n; n up to 100000",
             besselI},
    Function{"BesselK", 2, "x, n", "modified Bessel function of the second kind, x > 0; n up to 100000", besselK},
    Function{"PolyLe", 2, "x, n", "Legendre polynomial of degree n up to 1000", legendre},
    Function{"PolyHe", 2, "x, n", "Hermite polynomial (physicists') of degree n up to 1000", hermite},
    Function{"PolyCh", 2, "x, n", "Chebyshev polynomial of the first kind, degree n up to 1000", chebyshev},
    Function{"PolyLa", 2, "x, n", "Laguerre polynomial of degree n up to 1000", laguerre},
    Function{"elli1", 2, "phi, k", "elliptic integral of the first kind, phi in radians, modulus k", ellipticFirst},
    Function{"elli2", 2, "phi, k", "elliptic integral of the second kind, phi in radians, modulus k", ellipticSecond},
    Function{"HypGeom", 4, "a, b, c, x", "Gauss hypergeometric function, x <= 1", hypergeometric},

    // Signals
    Function{"step", 2, "x, a", "1 from x = a on, else 0", Binary{[](double x, double a) { return truth(x >= a); }}},
    Function{"Clip", 3, "x, lower, upper", "x limited to the bounds", clip},
    Function{"wtri", 2, "t, p", "triangle: 4u, 2 - 4u from u = 1/4, 4u - 4 from u = 3/4", triangleWave},
    Function{"wsqr", 2, "t, p", "square: 1 while u < 1/2, then -1", squareWave},
    Function{"wsaw", 2, "t, p", "sawtooth: 2u - 1", sawtoothWave},
    Function{"wraise", 2, "t, p", "rising ramp: u", risingRamp},
    Function{"wparab", 2, "t, p", "parabolic: 16u(1/2 - u), from u = 1/2 on -16(u - 1/2)(1 - u)", parabolicWave},
    Function{"wrect", 3, "t, p, duty", "rectangular: 1 while u < duty, then -1", rectangularWave},
    Function{"wtrapez", 3, "t, p, duty", "trapezoid: wtri / (1 - duty), cut at -1 and 1; flat for duty of the time",
             trapezoidWave},
    Function{"wlin", 3, "t, p, duty", "linear segment: u / duty while u < duty, then 0", linearSegment},
    Function{"wpulse", 3, "t, p, duty", "pulse: 1 while u < duty, then 0", pulseWave},
    Function{"wsteps", 3, "t, p, n", "staircase of n levels: int(n u) / (n - 1)", staircase},
    Function{"wexp", 3, "t, p, a", "exponential pulse: exp(-a u)", exponentialPulse},
    Function{"wexpb", 3, "t, p, a", "bipolar exponential pulse: exp(-2a u), from u = 1/2 on -exp(-2a(u - 1/2))",
             bipolarExponentialPulse},
    Function{"wpulsef", 3, "t, p, a",
             "filtered pulse: 1 - exp(-a u)/s, from u = 1/2 on exp(-a(u - 1/2))/s, s = 1 + exp(-a/2)", filteredPulse},
    Function{"wripple", 3, "t, p, a", "ripple of a rectifier: max(|cos(pi u)|, exp(-a u))", ripple},
    Function{"wring", 4, "t, p, a, fm", "ringing: exp(-a u) sin(2 pi fm p u)", ringing},
    Function{"wam", 4, "t, fo, fm, m", "amplitude modulation: (1 + m sin(2 pi fm t)) sin(2 pi fo t)",
             amplitudeModulation},
    Function{"wfm", 4, "t, fo, fm, m", "frequency modulation: sin(2 pi fo t + m sin(2 pi fm t))", frequencyModulation},

    // Dates
    Function{"Year", 1, "date", "year of a date", yearOf},
    Function{"Month", 1, "date", "month of a date", monthOf},
    Function{"Day", 1, "date", "day of a date in its month", dayOf},
    Function{"Hour", 1, "date", "hour of a time", hourOf},
    Function{"Minute", 1, "date", "minute of a time", minuteOf},
    Function{"Second", 1, "date", "second of a time", secondOf},
    Function{"DateSerial", 3, "year, month, day",
             "the date, in days since 30 December 1899; years 0 to 99 are 1930 to 2029", dateSerial},
    Function{"TimeSerial", 3, "hour, minute, second", "the time, as a part of a day", timeSerial},
};

constexpr std::array kGroups{
    FunctionGroup{"Elementary", "Abs"},     FunctionGroup{"Angles", "Sin"},
    FunctionGroup{"Hyperbolic", "Sinh"},    FunctionGroup{"Logic", "Not"},
    FunctionGroup{"Whole numbers", "Fact"}, FunctionGroup{"Statistics", "max"},
    FunctionGroup{"Probability", "DNorm"},  FunctionGroup{"Special functions", "Erf"},
    FunctionGroup{"Signals", "step"},       FunctionGroup{"Dates", "Year"},
};

constexpr std::array kMoments{
    Function{"DATE", 0, "", "current date",
             Contextual{[](const Arguments&, Context& context) { return std::floor(context.clock()); }}},
    Function{"TIME", 0, "", "current time of day", Contextual{[](const Arguments&, Context& context) {
                 const double now = context.clock();
                 return now - std::floor(now);
             }}},
    Function{"NOW", 0, "", "current date and time",
             Contextual{[](const Arguments&, Context& context) { return context.clock(); }}},
};

constexpr Function kDegrees{"dms", 1, "d", "an angle in degrees in the current unit", fromDegrees};

constexpr char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool sameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char left, char right) { return lower(left) == lower(right); });
}

constexpr std::uint32_t hashName(std::string_view name) {
    std::uint32_t hash = 2166136261U;
    for (const char c : name) hash = (hash ^ static_cast<unsigned char>(lower(c))) * 16777619U;
    return hash ^ (hash >> 15U);
}

// Open addressing over a table filled at compile time: positions in kFunctions, from 1; 0 is a free place.
constexpr std::size_t kPlaces = 512;
constexpr std::array<std::uint8_t, kPlaces> kIndex = [] {
    static_assert(kFunctions.size() < 256);
    std::array<std::uint8_t, kPlaces> index{};
    for (std::size_t i = 0; i < kFunctions.size(); ++i) {
        std::size_t place = hashName(kFunctions[i].name) % kPlaces;
        while (index[place] != 0) place = (place + 1) % kPlaces;
        index[place] = static_cast<std::uint8_t>(i + 1);
    }
    return index;
}();

constexpr const Function& functionNamed(std::string_view name) {
    return *std::find_if(kFunctions.begin(), kFunctions.end(), [=](const Function& f) { return f.name == name; });
}

}  // namespace

std::span<const Function> functions() {
    return kFunctions;
}

std::span<const FunctionGroup> functionGroups() {
    return kGroups;
}

const Function* findFunction(std::string_view name) {
    std::size_t place = hashName(name) % kPlaces;
    while (kIndex[place] != 0) {
        const Function& function = kFunctions[kIndex[place] - 1U];
        if (sameName(function.name, name)) return &function;
        place = (place + 1) % kPlaces;
    }
    return nullptr;
}

const Function* findMoment(std::string_view name) {
    const auto found =
        std::find_if(kMoments.begin(), kMoments.end(), [=](const Function& f) { return f.name == name; });
    return found == kMoments.end() ? nullptr : &*found;
}

const Function& absoluteValue() {
    static constexpr const Function& function = functionNamed("Abs");
    return function;
}

const Function& factorialFunction() {
    static constexpr const Function& function = functionNamed("Fact");
    return function;
}

const Function& degreesFunction() {
    return kDegrees;
}

const Function& decimalDegrees() {
    static constexpr const Function& function = functionNamed("dec");
    return function;
}

}  // namespace zelvor::expr
