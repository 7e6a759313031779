#pragma once

// Waveforms of unit amplitude over the time t. The period must be above zero; duties lie between 0 and 1.
// In the formulas u is the part of the period that has passed, t/p - floor(t/p).
namespace zelvor::expr {

double triangleWave(double t, double period);
double squareWave(double t, double period);
double sawtoothWave(double t, double period);
double risingRamp(double t, double period);
double parabolicWave(double t, double period);

double rectangularWave(double t, double period, double duty);
double trapezoidWave(double t, double period, double duty);
double linearSegment(double t, double period, double duty);
double pulseWave(double t, double period, double duty);
double staircase(double t, double period, double steps);
double exponentialPulse(double t, double period, double decay);
double bipolarExponentialPulse(double t, double period, double decay);
double filteredPulse(double t, double period, double decay);
double ripple(double t, double period, double decay);

double ringing(double t, double period, double decay, double frequency);
double amplitudeModulation(double t, double carrier, double modulation, double index);
double frequencyModulation(double t, double carrier, double modulation, double index);

}  // namespace zelvor::expr
