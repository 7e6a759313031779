#include "expr/statistics.h"

#include <algorithm>
#include <cmath>

#include "expr/real.h"

namespace zelvor::expr {

namespace {

template <class Term>
Real total(const Arguments& values, Term term) {
    Real result = 0;
    for (std::size_t i = 0; i < values.size(); ++i) result += term(Real{values[i]});
    return result;
}

Real plainSum(const Arguments& values) {
    return total(values, [](Real x) { return x; });
}

Real count(const Arguments& values) {
    return static_cast<Real>(values.size());
}

Real squaredDeviations(const Arguments& values) {
    const Real middle = plainSum(values) / count(values);
    return total(values, [middle](Real x) { return (x - middle) * (x - middle); });
}

}  // namespace

double largest(const Arguments& values) {
    double result = values[0];
    for (std::size_t i = 1; i < values.size(); ++i) result = std::max(result, values[i]);
    return result;
}

double smallest(const Arguments& values) {
    double result = values[0];
    for (std::size_t i = 1; i < values.size(); ++i) result = std::min(result, values[i]);
    return result;
}

double sum(const Arguments& values) {
    return static_cast<double>(plainSum(values));
}

double mean(const Arguments& values) {
    return static_cast<double>(plainSum(values) / count(values));
}

double quadraticMean(const Arguments& values) {
    return static_cast<double>(std::sqrt(total(values, [](Real x) { return x * x; }) / count(values)));
}

double geometricMean(const Arguments& values) {
    if (smallest(values) < 0) return kFailed;
    return static_cast<double>(std::exp(total(values, [](Real x) { return std::log(x); }) / count(values)));
}

double sampleVariance(const Arguments& values) {
    return values.size() < 2 ? kFailed : static_cast<double>(squaredDeviations(values) / (count(values) - 1));
}

double populationVariance(const Arguments& values) {
    return static_cast<double>(squaredDeviations(values) / count(values));
}

double sampleDeviation(const Arguments& values) {
    if (values.size() < 2) return kFailed;
    return static_cast<double>(std::sqrt(squaredDeviations(values) / (count(values) - 1)));
}

double populationDeviation(const Arguments& values) {
    return static_cast<double>(std::sqrt(squaredDeviations(values) / count(values)));
}

}  // namespace zelvor::expr
