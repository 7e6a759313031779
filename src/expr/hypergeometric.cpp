#include "expr/hypergeometric.h"

#include <algorithm>
#include <boost/math/special_functions/gamma.hpp>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "expr/guarded.h"
#include "expr/real.h"

// The power series inside half the unit interval. From there on the function is continued along the axis by Taylor
// series of its differential equation, each a fixed part of the distance to the singular point at 1: unlike the
// connection formulas this needs no special cases where c - a - b is whole. Negative x comes to (0, 1) first by
// Pfaff's transformation (NIST DLMF 15.8.1; the equation is 15.10.1).
namespace zelvor::expr {

namespace {

constexpr std::string_view kDivergent = "The hypergeometric series is divergent";
constexpr std::string_view kCheckAccuracy = "Warning! You should check the accuracy";

constexpr Real kSeriesEnd = 0.5L;
// How far one Taylor step goes, as a part of its radius of convergence.
constexpr Real kStep = 0.5L;
// A series may end where its terms fall by this factor.
constexpr Real kFall = 0.75L;
constexpr int kMaxTerms = 20000;
// Digits lost to cancellation beyond which a result is called into question.
constexpr Real kMaxLoss = 1e7L;

struct Value {
    Real function;
    Real derivative;
    // The largest size that a sum, or that of the derivative, passed through on the way here: what it lost stays lost,
    // however small the function becomes.
    Real largest;
};

// A series that needs more terms than it may have; the function fails then.
constexpr Value kUnsettled{std::numeric_limits<Real>::quiet_NaN(), 0, std::numeric_limits<Real>::max()};

Real loss(const Value& value) {
    const Real size = std::fabs(value.function);
    return size > 0 ? value.largest / size : std::numeric_limits<Real>::max();
}

bool isNonPositiveWhole(Real x) {
    return x <= 0 && x == std::floor(x);
}

// True when the series ends before c + n becomes zero.
bool ends(Real a, Real b, Real c) {
    const bool cPole = isNonPositiveWhole(c);
    return (isNonPositiveWhole(a) && (!cPole || a >= c)) || (isNonPositiveWhole(b) && (!cPole || b >= c));
}

Value powerSeries(Real a, Real b, Real c, Real x) {
    Real term = 1;
    Real sum = 1;
    Real derivative = 0;
    Real largest = 1;
    bool settled = false;
    for (int n = 0; n < kMaxTerms && !settled; ++n) {
        const Real m = static_cast<Real>(n);
        const Real upper = (a + m) * (b + m);
        // Where the series ends, c + n may be 0 as well.
        const Real coefficient = upper == 0 ? 0 : term * upper / ((c + m) * (m + 1));
        settled = coefficient == 0;
        derivative += coefficient * (m + 1);
        // Behind a c far below 0 the terms rise once more.
        const bool falls = std::fabs(coefficient * x) < kFall * std::fabs(term);
        term = coefficient * x;
        sum += term;
        largest = std::max(largest, std::fabs(term) * (m + 1));
        const bool pastParameters = m > std::fabs(a) && m > std::fabs(b) && m > std::fabs(c);
        settled = settled || (pastParameters && falls && std::fabs(term) < kEpsilon * std::fabs(sum) / 16);
    }
    if (!settled) return kUnsettled;
    return {sum, derivative, largest};
}

// One Taylor step from 1 - distance by h, given the function and its derivative there.
Value taylorStep(Real a, Real b, Real c, Real distance, Real h, const Value& from) {
    const Real z = 1 - distance;
    const Real factor = z * distance;
    const Real linear = c - (a + b + 1) * z;
    Real u = from.function;
    Real v = from.derivative * h;
    Real sum = u + v;
    Real derivative = from.derivative;
    Real largest = std::max({from.largest, std::fabs(u), std::fabs(v)});
    bool settled = false;
    for (int n = 0; n < kMaxTerms && !settled; ++n) {
        const Real m = static_cast<Real>(n);
        const Real next = ((m + a) * (m + b) * u * h - (m + 1) * (m * (2 * distance - 1) + linear) * v) * h /
                          (factor * (m + 2) * (m + 1));
        sum += next;
        derivative += (m + 2) * next / h;
        largest = std::max(largest, std::fabs(next) * (m + 2));
        u = v;
        v = next;
        const Real threshold = kEpsilon * std::fabs(sum) / 16;
        settled = m > 8 && std::fabs(u) <= threshold && std::fabs(v) <= threshold;
    }
    if (!settled) return kUnsettled;
    return {sum, derivative, largest};
}

// At 1 - distance, which must lie in [0, 1).
Value continued(Real a, Real b, Real c, Real distance) {
    if (1 - distance <= kSeriesEnd || ends(a, b, c)) return powerSeries(a, b, c, 1 - distance);
    Value value = powerSeries(a, b, c, kSeriesEnd);
    Real at = 1 - kSeriesEnd;
    while (at > distance) {
        const Real target = std::max(distance, at * (1 - kStep));
        value = taylorStep(a, b, c, at, at - target, value);
        // What was lost grows on as the equation's other solutions do, the one of 0 and the one of 1.
        value.largest *= std::pow((1 - target) / (1 - at), std::max(Real{0}, 1 - c)) *
                         std::pow(at / target, std::max(Real{0}, a + b - c));
        at = target;
    }
    return value;
}

// The same. A function that falls towards 0 at 1, as that of a = c does, keeps its digits by Euler's transformation
// (NIST DLMF 15.8.1): it takes the fall out as a factor.
Value insideUnit(Real a, Real b, Real c, Real distance) {
    const Value value = continued(a, b, c, distance);
    if (loss(value) <= kMaxLoss) return value;
    const Value other = continued(c - a, c - b, c, distance);
    const Real scale = std::pow(distance, c - a - b);
    return loss(other) < loss(value) ? Value{other.function * scale, 0, other.largest * scale} : value;
}

// Gauss's sum, NIST DLMF 15.4.20.
double atOne(Real a, Real b, Real c, Context& context) {
    if (isNonPositiveWhole(c - a) || isNonPositiveWhole(c - b)) return 0;
    return guarded([=, &context] {
        int signs[4] = {1, 1, 1, 1};
        const Real upper = boost::math::lgamma(c, &signs[0]);
        const Real upperRest = boost::math::lgamma(c - a - b, &signs[1]);
        const Real logarithm =
            upper - boost::math::lgamma(c - a, &signs[2]) + (upperRest - boost::math::lgamma(c - b, &signs[3]));
        // Large logarithms cancel.
        if (std::max(std::fabs(upper), std::fabs(upperRest)) > kMaxLoss) context.warning = kCheckAccuracy;
        return static_cast<Real>(signs[0] * signs[1] * signs[2] * signs[3]) * std::exp(logarithm);
    });
}

}  // namespace

double hypergeometric(const Arguments& values, Context& context) {
    Real a = values[0];
    Real b = values[1];
    const Real c = values[2];
    const Real x = values[3];
    const bool polynomial = ends(a, b, c);
    if (isNonPositiveWhole(c) && !polynomial) return kFailed;
    if (!polynomial && (x > 1 || (x == 1 && c - a - b <= 0))) {
        context.warning = kDivergent;
        return kFailed;
    }
    if (!polynomial && x == 1) return atOne(a, b, c, context);

    Value value{};
    Real scale = 1;
    if (polynomial || std::fabs(x) <= kSeriesEnd) {
        value = powerSeries(a, b, c, x);
    } else if (x > 0) {
        value = insideUnit(a, b, c, 1 - x);
    } else {
        // The smaller parameter outside keeps the part that grows in the scale and the rest bounded.
        if (a > b) std::swap(a, b);
        value = insideUnit(a, c - b, c, 1 / (1 - x));
        scale = std::pow(1 - x, -a);
    }
    if (loss(value) > kMaxLoss) context.warning = kCheckAccuracy;
    return static_cast<double>(value.function * scale);
}

}  // namespace zelvor::expr
