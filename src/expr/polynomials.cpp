#include "expr/polynomials.h"

#include <cmath>

#include "expr/arguments.h"
#include "expr/real.h"

namespace zelvor::expr {

namespace {

constexpr double kMaxDegree = 1000;

// By the three-term recurrence: next(k, p_k, p_k-1) is p_k+1.
template <class Next>
double polynomial(double n, Real first, Next next) {
    if (n < 0 || n > kMaxDegree || n != std::floor(n)) return kFailed;
    if (n == 0) return 1;
    Real before = 1;
    Real value = first;
    for (int k = 1; k < static_cast<int>(n); ++k) {
        const Real following = next(static_cast<Real>(k), value, before);
        before = value;
        value = following;
    }
    return static_cast<double>(value);
}

}  // namespace

double legendre(double x, double n) {
    return polynomial(n, x, [x](Real k, Real p, Real q) { return ((2 * k + 1) * x * p - k * q) / (k + 1); });
}

double hermite(double x, double n) {
    return polynomial(n, 2 * Real{x}, [x](Real k, Real p, Real q) { return 2 * (x * p - k * q); });
}

double chebyshev(double x, double n) {
    return polynomial(n, x, [x](Real, Real p, Real q) { return 2 * Real{x} * p - q; });
}

double laguerre(double x, double n) {
    return polynomial(n, 1 - Real{x}, [x](Real k, Real p, Real q) { return ((2 * k + 1 - x) * p - k * q) / (k + 1); });
}

}  // namespace zelvor::expr
