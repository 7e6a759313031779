#include "expr/integrals.h"

#include <boost/math/special_functions/ellint_1.hpp>
#include <boost/math/special_functions/ellint_2.hpp>
#include <boost/math/special_functions/expint.hpp>
#include <cmath>
#include <complex>
#include <limits>
#include <numbers>

#include "expr/guarded.h"
#include "expr/real.h"

namespace zelvor::expr {

namespace {

using Complex = std::complex<Real>;

constexpr int kMaxIterations = 10000;
constexpr double kMaxOrder = 1e6;

// Below these the power series, above them the continued fraction: both keep full double precision there.
constexpr double kSineIntegralSeriesEnd = 6;
constexpr double kFresnelSeriesEnd = 2;

// Continued fractions of the form 1/(b + a1/(b + step + a2/(b + 2 step + ...))), by the modified Lentz method.
template <class Numerator>
Complex continuedFraction(Complex b, Real step, Numerator numerator) {
    Complex c = std::numeric_limits<Real>::max() / 4;
    Complex d = Real{1} / b;
    Complex h = d;
    for (int k = 1; k <= kMaxIterations; ++k) {
        const Real a = numerator(static_cast<Real>(k));
        b += step;
        d = Real{1} / (a * d + b);
        c = b + a / c;
        const Complex change = c * d;
        h *= change;
        if (std::fabs(change.real() - 1) + std::fabs(change.imag()) < 4 * kEpsilon) break;
    }
    return h;
}

// E1(ix) for x > 0, by NIST DLMF 6.9.1: e^-z / (z + 1 - 1/(z + 3 - 4/(z + 5 - ...))).
Complex exponentialIntegralOfImaginary(Real x) {
    const Complex fraction = continuedFraction(Complex(1, x), 2, [](Real k) { return -k * k; });
    return Complex(std::cos(x), -std::sin(x)) * fraction;
}

// The sum over n of (-1)^n x^(2n + first) / ((2n + first) (2n + first)!), NIST DLMF 6.6.5 and 6.6.6.
Real integralSeries(Real x, int first) {
    Real power = first == 1 ? x : -x * x / 2;
    Real sum = 0;
    for (int n = first == 1 ? 1 : 2; n < 200; n += 2) {
        const Real term = power / n;
        sum += term;
        if (std::fabs(term) < kEpsilon * std::fabs(sum) / 4) break;
        power *= -x * x / (static_cast<Real>(n + 1) * static_cast<Real>(n + 2));
    }
    return sum;
}

struct Fresnel {
    Real sine;
    Real cosine;
};

// Powers of pi x^2 / 2, NIST DLMF 7.6.4 and 7.6.6.
Fresnel fresnelSeries(Real x) {
    const Real t = kPi * x * x / 2;
    Fresnel sums{0, 0};
    Real power = x;
    for (int n = 0; n < 200; ++n) {
        Real& sum = n % 2 == 0 ? sums.cosine : sums.sine;
        const Real term = (n / 2 % 2 == 0 ? power : -power) / static_cast<Real>(2 * n + 1);
        sum += term;
        if (n > 2 && std::fabs(term) < kEpsilon * std::fabs(sums.sine) / 4) break;
        power *= t / static_cast<Real>(n + 1);
    }
    return sums;
}

// By the continued fraction of erfc(z), z = (1 - i) sqrt(pi) x / 2, NIST DLMF 7.5.8 and 7.9.3 in its even form.
Fresnel fresnelFraction(double x) {
    const Real square = kPi * Real{x} * Real{x};
    const Complex h =
        continuedFraction(Complex(1, -square), 4, [](Real k) { return -(2 * k - 1) * (2 * k); }) * Complex(x, -x);
    // x^2 in two parts, so that the phase is right however large x is.
    const double high = x * x;
    const double low = std::isfinite(high) ? std::fma(x, x, -high) : 0;
    const Real phase = kPi / 2 * (std::fmod(Real{high}, Real{4}) + std::fmod(Real{low}, Real{4}));
    const Complex value = Complex(0.5L, 0.5L) * (Real{1} - Complex(std::cos(phase), std::sin(phase)) * h);
    return {value.imag(), value.real()};
}

Fresnel fresnel(double x) {
    const double magnitude = std::fabs(x);
    Fresnel values{0.5L, 0.5L};
    // Above 1e18 both are a half to the last digit.
    if (magnitude <= kFresnelSeriesEnd) {
        values = fresnelSeries(magnitude);
    } else if (magnitude < 1e18) {
        values = fresnelFraction(magnitude);
    }
    return x < 0 ? Fresnel{-values.sine, -values.cosine} : values;
}

}  // namespace

double exponentialIntegral(double x) {
    return x == 0 ? kFailed : guarded([=] { return boost::math::expint(x); });
}

double exponentialIntegralOfOrder(double x, double n) {
    if (n < 0 || n > kMaxOrder || n != std::floor(n) || (x == 0 && n < 2)) return kFailed;
    return guarded([=] { return boost::math::expint(static_cast<unsigned>(n), x); });
}

double sineIntegral(double x) {
    const Real magnitude = std::fabs(Real{x});
    const Real value = magnitude <= kSineIntegralSeriesEnd ? integralSeries(magnitude, 1)
                                                           : kPi / 2 + exponentialIntegralOfImaginary(magnitude).imag();
    return std::copysign(static_cast<double>(value), x);
}

double cosineIntegral(double x) {
    if (x <= 0) return kFailed;
    if (x > kSineIntegralSeriesEnd) return static_cast<double>(-exponentialIntegralOfImaginary(x).real());
    return static_cast<double>(std::numbers::egamma_v<Real> + std::log(Real{x}) + integralSeries(x, 2));
}

double fresnelSine(double x) {
    return static_cast<double>(fresnel(x).sine);
}

double fresnelCosine(double x) {
    return static_cast<double>(fresnel(x).cosine);
}

double ellipticFirst(double phi, double k) {
    return guarded([=] { return boost::math::ellint_1(k, phi); });
}

double ellipticSecond(double phi, double k) {
    if (std::fabs(k) == 1) {
        // The integral of |cos|: 2 for each half turn.
        const Real halfTurns = std::round(phi / kPi);
        return static_cast<double>(2 * halfTurns + std::sin(phi - halfTurns * kPi));
    }
    return guarded([=] { return boost::math::ellint_2(k, phi); });
}

}  // namespace zelvor::expr
