#include "expr/combinatorics.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

#include "expr/real.h"

namespace zelvor::expr {

namespace {

constexpr double kMaxExact = 9007199254740992.0;  // 2^53
constexpr double kMaxFactorial = 170;
// Half of n, where the largest binomial coefficient passes the largest double.
constexpr double kMaxChosen = 515;

bool isWhole(double x) {
    return x == std::floor(x);
}

bool isExactWhole(double x) {
    return isWhole(x) && std::fabs(x) <= kMaxExact;
}

std::uint64_t magnitude(double x) {
    return static_cast<std::uint64_t>(std::fabs(x));
}

}  // namespace

double factorial(double n) {
    return n <= kMaxFactorial ? permutations(n, n) : kFailed;
}

double combinations(double n, double k) {
    if (!isWhole(n) || !isWhole(k) || k < 0 || k > n) return kFailed;
    const double chosen = std::min(k, n - k);
    if (chosen > kMaxChosen) return kFailed;
    Real product = 1;
    for (int i = 1; i <= static_cast<int>(chosen); ++i) {
        const Real place = static_cast<Real>(i);
        product = product * (Real{n} - Real{chosen} + place) / place;
    }
    return static_cast<double>(product);
}

double permutations(double n, double k) {
    if (!isWhole(n) || !isWhole(k) || k < 0 || k > n) return kFailed;
    if (k > kMaxFactorial) return kFailed;
    Real product = 1;
    for (int i = 0; i < static_cast<int>(k); ++i) product *= Real{n} - static_cast<Real>(i);
    return static_cast<double>(product);
}

double greatestCommonDivisor(const Arguments& values) {
    std::uint64_t divisor = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!isExactWhole(values[i])) return kFailed;
        divisor = std::gcd(divisor, magnitude(values[i]));
    }
    return static_cast<double>(divisor);
}

double leastCommonMultiple(const Arguments& values) {
    double multiple = 1;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!isExactWhole(values[i])) return kFailed;
        const std::uint64_t value = magnitude(values[i]);
        const std::uint64_t divisor = std::gcd(magnitude(multiple), value);
        const std::uint64_t factor = divisor == 0 ? 0 : value / divisor;
        multiple *= static_cast<double>(factor);
        if (multiple > kMaxExact) return kFailed;
    }
    return multiple;
}

}  // namespace zelvor::expr
