#pragma once

#include "expr/arguments.h"

namespace zelvor::expr {

// The Gauss hypergeometric function of a, b, c and x for x up to 1 (at 1 while c > a + b; beyond it only where the
// series ends). Warns when the series diverges, which also fails, and when cancellation may have cost accuracy.
double hypergeometric(const Arguments& values, Context& context);

}  // namespace zelvor::expr
