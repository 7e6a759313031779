#pragma once

#include "expr/arguments.h"

// The gamma family, zeta and the error function. They fail at poles and where the result is beyond a double.
namespace zelvor::expr {

double errorFunction(double x);
double gammaFunction(double x);
// Of the absolute value of gamma.
double gammaLogarithm(double x);
double digammaFunction(double x);
double zetaFunction(double s);
double betaFunction(double a, double b);
// Regularized, lower, with arguments a >= 0 (not both 0) and x >= 0; warns when one is above 1e8.
double incompleteGamma(const Arguments& values, Context& context);
// True for some arguments whose value is below the smallest number; an intermediate result may then be beyond the
// largest.
bool incompleteGammaVanishes(double a, double x);
// Regularized, 0 <= x <= 1, a and b above 0.
double incompleteBeta(double x, double a, double b);

}  // namespace zelvor::expr
