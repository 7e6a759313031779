#pragma once

// Exponential, sine, cosine, Fresnel and elliptic integrals.
namespace zelvor::expr {

// The principal value; fails at 0.
double exponentialIntegral(double x);
// Of whole order n from 0, x from 0 (above 0 for n of 0 and 1).
double exponentialIntegralOfOrder(double x, double n);

double sineIntegral(double x);
// x above 0.
double cosineIntegral(double x);

// Integrals of sin and cos of pi t^2 / 2 from 0 to x.
double fresnelSine(double x);
double fresnelCosine(double x);

// Amplitude phi in radians, modulus k.
double ellipticFirst(double phi, double k);
double ellipticSecond(double phi, double k);

}  // namespace zelvor::expr
