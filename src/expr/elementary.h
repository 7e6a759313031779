#pragma once

// Elementary functions. All return kFailed outside their domain.
namespace zelvor::expr {

double cubeRoot(double x);
double logarithm10(double x);
double logarithmToBase(double x, double base);
double naturalLogarithm(double x);
double root(double x, double n);
double sign(double x);
double squareRoot(double x);

// Rounded as the number reads in decimals, halves to the even neighbour; negative digits round before the point.
double roundToDigits(double x, double digits);

// Remainder with the sign of a.
double remainderOf(double a, double b);
// Both operands to whole numbers first, the quotient cut toward zero.
double integerQuotient(double a, double b);

double hyperbolicCosine(double x);
double hyperbolicSine(double x);
double hyperbolicTangent(double x);
double hyperbolicCosecant(double x);
double hyperbolicSecant(double x);
double hyperbolicCotangent(double x);
double inverseHyperbolicCosine(double x);
double inverseHyperbolicSine(double x);
double inverseHyperbolicTangent(double x);
double inverseHyperbolicCosecant(double x);
double inverseHyperbolicSecant(double x);
double inverseHyperbolicCotangent(double x);

}  // namespace zelvor::expr
