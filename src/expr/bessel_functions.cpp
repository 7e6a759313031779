#include "expr/bessel_functions.h"

#include <boost/math/special_functions/airy.hpp>
#include <boost/math/special_functions/bessel.hpp>
#include <cmath>

#include "expr/guarded.h"

namespace zelvor::expr {

namespace {

// The time that a value takes grows with the order. The functions fail beyond this one.
constexpr double kLargestOrder = 100'000;

// Boost's Airy functions are constant near 0, where the term with x already counts and that with its cube does not yet.
bool isAlmostZero(double x) {
    return std::abs(x) < 1e-6;
}

template <class Function>
double ofOrder(double order, Function function) {
    return std::abs(order) <= kLargestOrder ? guarded(function) : kFailed;
}

}  // namespace

double besselI(double x, double order) {
    // Infinite.
    if (x == 0 && order < 0 && order != std::floor(order)) return kFailed;
    return ofOrder(order, [=] { return boost::math::cyl_bessel_i(order, x); });
}

double besselJ(double x, double order) {
    return ofOrder(order, [=] { return boost::math::cyl_bessel_j(order, x); });
}

double besselK(double x, double order) {
    return ofOrder(order, [=] { return boost::math::cyl_bessel_k(order, x); });
}

double besselY(double x, double order) {
    return ofOrder(order, [=] { return boost::math::cyl_neumann(order, x); });
}

double besselI0(double x) {
    return besselI(x, 0);
}

double besselJ0(double x) {
    return besselJ(x, 0);
}

double besselK0(double x) {
    return besselK(x, 0);
}

double besselY0(double x) {
    return besselY(x, 0);
}

double airyA(double x) {
    return guarded([=] {
        return isAlmostZero(x) ? boost::math::airy_ai(0.0) + x * boost::math::airy_ai_prime(0.0)
                               : boost::math::airy_ai(x);
    });
}

double airyB(double x) {
    return guarded([=] {
        return isAlmostZero(x) ? boost::math::airy_bi(0.0) + x * boost::math::airy_bi_prime(0.0)
                               : boost::math::airy_bi(x);
    });
}

}  // namespace zelvor::expr
