#pragma once

#include "expr/arguments.h"

// Whole-number functions. They fail when an argument is not whole or the result is beyond a double.
namespace zelvor::expr {

double factorial(double n);
double combinations(double n, double k);
double permutations(double n, double k);

// Of numbers up to 2^53, taken without their sign. The multiple fails where it would no longer be exact.
double greatestCommonDivisor(const Arguments& values);
double leastCommonMultiple(const Arguments& values);

}  // namespace zelvor::expr
