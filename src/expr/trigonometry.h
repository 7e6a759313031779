#pragma once

#include "expr/arguments.h"

// Trigonometric functions in the angle unit given. Degrees and grads are reduced before they become radians, so that
// sin(180) is 0 in degrees and tan(90) fails.
namespace zelvor::expr {

double sine(double x, Angle unit);
double cosine(double x, Angle unit);
double tangent(double x, Angle unit);
double cosecant(double x, Angle unit);
double secant(double x, Angle unit);
double cotangent(double x, Angle unit);

double arcSine(double x, Angle unit);
double arcCosine(double x, Angle unit);
double arcTangent(double x, Angle unit);
double arcCosecant(double x, Angle unit);
double arcSecant(double x, Angle unit);
// From 0 to half a turn.
double arcCotangent(double x, Angle unit);

// An angle in the current unit, in the unit named.
double toRadians(double x, Angle unit);
double toDegrees(double x, Angle unit);
double toGrads(double x, Angle unit);
// An angle in degrees, in the current unit.
double fromDegrees(double x, Angle unit);

}  // namespace zelvor::expr
