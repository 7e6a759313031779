#pragma once

#include "expr/arguments.h"

// Statistics over one or more values.
namespace zelvor::expr {

double largest(const Arguments& values);
double smallest(const Arguments& values);
double sum(const Arguments& values);
double mean(const Arguments& values);
double quadraticMean(const Arguments& values);
// Fails for negative values.
double geometricMean(const Arguments& values);
// The sample forms need two values.
double sampleVariance(const Arguments& values);
double populationVariance(const Arguments& values);
double sampleDeviation(const Arguments& values);
double populationDeviation(const Arguments& values);

}  // namespace zelvor::expr
