#pragma once

#include <string>

namespace zelvor::script {

enum class Halves { AwayFromZero, ToEven };

// A number in decimal digits, rounded as people do it: 0.145 to two places is 0.15, though the double is a little less.
struct Decimal {
    bool negative = false;  // never for a number that rounds to zero
    std::string whole;      // without leading zeros, so empty below 1
    std::string fraction;   // exactly the places asked for
};

// places: 0 or more. The number must be finite.
Decimal decimalOf(double number, int places, Halves halves);

double numberOf(const Decimal& decimal);

// The number rounded to `places` decimals, 0 or more. Digits beyond the fifteenth are kept where the places reach them.
double roundedTo(double number, int places, Halves halves);

// The digits with "," before every third from the right.
std::string grouped(const std::string& whole);

}  // namespace zelvor::script
