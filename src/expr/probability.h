#pragma once

// Densities (D) and cumulative distributions (C). Counts are whole numbers.
namespace zelvor::expr {

double normalDensity(double x, double mean, double deviation);
double normalCumulative(double x, double mean, double deviation);
double binomialDensity(double k, double n, double p);
double binomialCumulative(double k, double n, double p);
double poissonDensity(double k, double mean);
double poissonCumulative(double k, double mean);

}  // namespace zelvor::expr
