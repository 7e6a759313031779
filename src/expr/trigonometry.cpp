#include "expr/trigonometry.h"

#include <cmath>
#include <numbers>

#include "expr/real.h"

namespace zelvor::expr {

namespace {

// Units in half a turn.
Real halfTurn(Angle unit) {
    switch (unit) {
        case Angle::Deg:
            return 180;
        case Angle::Grad:
            return 200;
        case Angle::Rad:
            break;
    }
    return kPi;
}

struct SineCosine {
    Real sine;
    Real cosine;
};

SineCosine sineCosine(double x, Angle unit) {
    if (unit == Angle::Rad) return {std::sin(Real{x}), std::cos(Real{x})};
    const Real quarter = halfTurn(unit) / 2;
    int quarters = 0;
    const Real rest = std::remquo(Real{x}, quarter, &quarters);
    const Real angle = rest / quarter * (kPi / 2);
    const Real s = std::sin(angle);
    const Real c = std::cos(angle);
    // remquo keeps the low bits of the quotient, which is all a full turn needs.
    switch (static_cast<unsigned>(quarters) & 3U) {
        case 0:
            return {s, c};
        case 1:
            return {c, -s};
        case 2:
            return {-s, -c};
        default:
            return {-c, s};
    }
}

double quotient(Real dividend, Real divisor) {
    return divisor == 0 ? kFailed : static_cast<double>(dividend / divisor);
}

double inUnit(Real radians, Angle unit) {
    return static_cast<double>(unit == Angle::Rad ? radians : radians / kPi * halfTurn(unit));
}

double convert(double x, Angle from, Angle to) {
    return from == to ? x : static_cast<double>(x * halfTurn(to) / halfTurn(from));
}

}  // namespace

double sine(double x, Angle unit) {
    return unit == Angle::Rad ? std::sin(x) : static_cast<double>(sineCosine(x, unit).sine);
}

double cosine(double x, Angle unit) {
    return unit == Angle::Rad ? std::cos(x) : static_cast<double>(sineCosine(x, unit).cosine);
}

double tangent(double x, Angle unit) {
    const auto [s, c] = sineCosine(x, unit);
    return quotient(s, c);
}

double cosecant(double x, Angle unit) {
    return quotient(1, sineCosine(x, unit).sine);
}

double secant(double x, Angle unit) {
    return quotient(1, sineCosine(x, unit).cosine);
}

double cotangent(double x, Angle unit) {
    const auto [s, c] = sineCosine(x, unit);
    return quotient(c, s);
}

double arcSine(double x, Angle unit) {
    return std::fabs(x) <= 1 ? inUnit(std::asin(Real{x}), unit) : kFailed;
}

double arcCosine(double x, Angle unit) {
    return std::fabs(x) <= 1 ? inUnit(std::acos(Real{x}), unit) : kFailed;
}

double arcTangent(double x, Angle unit) {
    return inUnit(std::atan(Real{x}), unit);
}

double arcCosecant(double x, Angle unit) {
    if (std::fabs(x) < 1) return kFailed;
    const Real magnitude = std::fabs(Real{x});
    return std::copysign(inUnit(std::atan2(Real{1}, std::sqrt((magnitude - 1) * (magnitude + 1))), unit), x);
}

double arcSecant(double x, Angle unit) {
    if (std::fabs(x) < 1) return kFailed;
    const Real magnitude = std::fabs(Real{x});
    const Real angle = std::atan(std::sqrt((magnitude - 1) * (magnitude + 1)));
    return inUnit(x > 0 ? angle : kPi - angle, unit);
}

double arcCotangent(double x, Angle unit) {
    return inUnit(std::atan2(Real{1}, Real{x}), unit);
}

double toRadians(double x, Angle unit) {
    return convert(x, unit, Angle::Rad);
}

double toDegrees(double x, Angle unit) {
    return convert(x, unit, Angle::Deg);
}

double toGrads(double x, Angle unit) {
    return convert(x, unit, Angle::Grad);
}

double fromDegrees(double x, Angle unit) {
    return convert(x, Angle::Deg, unit);
}

}  // namespace zelvor::expr
