#pragma once

// Orthogonal polynomials of whole degree n from 0 to 1000, at any x. They fail where the value is beyond a double.
namespace zelvor::expr {

double legendre(double x, double n);
// Physicists': 1, 2x, 4x^2 - 2 ...
double hermite(double x, double n);
// Of the first kind: 1, x, 2x^2 - 1 ...
double chebyshev(double x, double n);
double laguerre(double x, double n);

}  // namespace zelvor::expr
