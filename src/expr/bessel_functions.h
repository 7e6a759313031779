#pragma once

// Bessel and Airy functions. Orders may be any number; J and I take negative x for whole orders only, Y and K need x
// above zero.
namespace zelvor::expr {

double besselI(double x, double order);
double besselJ(double x, double order);
double besselK(double x, double order);
double besselY(double x, double order);
double besselI0(double x);
double besselJ0(double x);
double besselK0(double x);
double besselY0(double x);
double airyA(double x);
double airyB(double x);

}  // namespace zelvor::expr
