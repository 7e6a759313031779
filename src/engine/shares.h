#pragma once

namespace zelvor {

struct Shares {
    double first = 0;
    double second = 0;
};

// `max` split in the proportion a : b, the first share rounded down to a whole number, the second the rest; both 0
// unless a + b is above 0. Computed exactly on the numbers as they read in decimal digits: 29 : 71 of 100 is 29 and 71.
Shares sharesOf(double a, double b, double max);

}  // namespace zelvor
