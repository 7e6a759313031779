#include "expr/probability.h"

#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/erf.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <cmath>
#include <numbers>

#include "expr/gamma_functions.h"
#include "expr/guarded.h"
#include "expr/real.h"

namespace zelvor::expr {

namespace {

bool isCount(double k) {
    return k >= 0 && k == std::floor(k);
}

bool areBinomial(double k, double n, double p) {
    return isCount(k) && isCount(n) && k <= n && p >= 0 && p <= 1;
}

}  // namespace

double normalDensity(double x, double mean, double deviation) {
    if (deviation <= 0) return kFailed;
    const Real z = (Real{x} - Real{mean}) / Real{deviation};
    return static_cast<double>(std::exp(-z * z / 2) / (Real{deviation} * std::sqrt(2 * std::numbers::pi_v<Real>)));
}

double normalCumulative(double x, double mean, double deviation) {
    if (deviation <= 0) return kFailed;
    const Real z = (Real{x} - Real{mean}) / Real{deviation};
    return guarded([=] { return boost::math::erfc(-z / std::numbers::sqrt2_v<Real>) / 2; });
}

double binomialDensity(double k, double n, double p) {
    if (!areBinomial(k, n, p)) return kFailed;
    // The ends, where the derivative below divides zero by zero.
    if (p == 0) return k == 0 ? 1 : 0;
    if (p == 1) return k == n ? 1 : 0;
    if (n == 0) return 1;
    return guarded([=] {
        const Real one = 1;
        return boost::math::ibeta_derivative(k + one, n - k + one, Real{p}) / (n + one);
    });
}

double binomialCumulative(double k, double n, double p) {
    if (!areBinomial(k, n, p)) return kFailed;
    if (k == n) return 1;
    return guarded([=] { return boost::math::ibetac(k + 1, n - k, p); });
}

double poissonDensity(double k, double mean) {
    if (!isCount(k) || mean < 0) return kFailed;
    if (mean == 0) return k == 0 ? 1 : 0;
    return guarded([=] { return boost::math::gamma_p_derivative(k + Real{1}, Real{mean}); });
}

double poissonCumulative(double k, double mean) {
    if (!isCount(k) || mean < 0) return kFailed;
    if (incompleteGammaVanishes(k + 1, mean)) return 1;
    return guarded([=] { return boost::math::gamma_q(k + 1, mean); });
}

}  // namespace zelvor::expr
