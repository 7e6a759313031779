#include "expr/gamma_functions.h"

#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/digamma.hpp>
#include <boost/math/special_functions/erf.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/math/special_functions/zeta.hpp>
#include <cmath>

#include "expr/guarded.h"

namespace zelvor::expr {

namespace {

// Beyond it a relative error of one unit in a or x alone shifts the result by more than 1e-12.
constexpr double kIncompleteGammaRange = 1e8;

// Below it gamma is smaller than every number, even beside its poles.
constexpr double kGammaEnd = -200;

}  // namespace

double errorFunction(double x) {
    return guarded([=] { return boost::math::erf(x); });
}

double gammaFunction(double x) {
    if (x < kGammaEnd && x != std::floor(x)) return 0;
    return guarded([=] { return boost::math::tgamma(x); });
}

double gammaLogarithm(double x) {
    return guarded([=] { return boost::math::lgamma(x); });
}

double digammaFunction(double x) {
    return guarded([=] { return boost::math::digamma(x); });
}

double zetaFunction(double s) {
    return guarded([=] { return boost::math::zeta(s); });
}

double betaFunction(double a, double b) {
    return guarded([=] { return boost::math::beta(a, b); });
}

bool incompleteGammaVanishes(double a, double x) {
    return a > 200 && x >= 0 && x <= 1;
}

double incompleteGamma(const Arguments& values, Context& context) {
    const double a = values[0];
    const double x = values[1];
    if (a > kIncompleteGammaRange || x > kIncompleteGammaRange) context.warning = "a and/or x too large";
    if (incompleteGammaVanishes(a, x)) return 0;
    return guarded([=] { return boost::math::gamma_p(a, x); });
}

double incompleteBeta(double x, double a, double b) {
    return guarded([=] { return boost::math::ibeta(a, b, x); });
}

}  // namespace zelvor::expr
