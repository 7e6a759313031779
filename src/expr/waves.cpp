#include "expr/waves.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "expr/arguments.h"

namespace zelvor::expr {

namespace {

// The part of the period that has passed, from 0 up to, not including, 1. Fails for a period of zero or less.
double passed(double t, double period) {
    if (period <= 0) return kFailed;
    double rest = std::fmod(t, period);
    if (rest < 0) rest += period;
    // A tiny negative rest rounds up to the whole period.
    return rest < period ? rest / period : 0;
}

bool isDuty(double duty) {
    return duty >= 0 && duty <= 1;
}

// Sine of x whole turns, reduced first so that long times keep their phase.
double sineOfTurns(double turns) {
    return std::sin(2 * std::numbers::pi * (turns - std::round(turns)));
}

}  // namespace

double triangleWave(double t, double period) {
    const double u = passed(t, period);
    if (u < 0.25) return 4 * u;
    return u < 0.75 ? 2 - 4 * u : 4 * u - 4;
}

double squareWave(double t, double period) {
    return rectangularWave(t, period, 0.5);
}

double sawtoothWave(double t, double period) {
    return 2 * passed(t, period) - 1;
}

double risingRamp(double t, double period) {
    return passed(t, period);
}

double parabolicWave(double t, double period) {
    const double u = passed(t, period);
    return u < 0.5 ? 16 * u * (0.5 - u) : -16 * (u - 0.5) * (1 - u);
}

double rectangularWave(double t, double period, double duty) {
    return 2 * pulseWave(t, period, duty) - 1;
}

double trapezoidWave(double t, double period, double duty) {
    if (!isDuty(duty)) return kFailed;
    if (duty == 1) return squareWave(t, period);
    const double wave = triangleWave(t, period);
    return std::isnan(wave) ? kFailed : std::clamp(wave / (1 - duty), -1.0, 1.0);
}

double linearSegment(double t, double period, double duty) {
    const double u = passed(t, period);
    if (!isDuty(duty) || std::isnan(u)) return kFailed;
    return u < duty ? u / duty : 0;
}

double pulseWave(double t, double period, double duty) {
    const double u = passed(t, period);
    if (!isDuty(duty) || std::isnan(u)) return kFailed;
    return u < duty ? 1 : 0;
}

double staircase(double t, double period, double steps) {
    if (steps < 2 || steps != std::floor(steps)) return kFailed;
    return std::floor(passed(t, period) * steps) / (steps - 1);
}

double exponentialPulse(double t, double period, double decay) {
    return decay < 0 ? kFailed : std::exp(-decay * passed(t, period));
}

double bipolarExponentialPulse(double t, double period, double decay) {
    if (decay < 0) return kFailed;
    const double u = passed(t, period);
    return u < 0.5 ? std::exp(-2 * decay * u) : -std::exp(-2 * decay * (u - 0.5));
}

double filteredPulse(double t, double period, double decay) {
    if (decay <= 0) return kFailed;
    const double u = passed(t, period);
    const double swing = 1 + std::exp(-decay / 2);
    return u < 0.5 ? 1 - std::exp(-decay * u) / swing : std::exp(-decay * (u - 0.5)) / swing;
}

double ripple(double t, double period, double decay) {
    if (decay < 0) return kFailed;
    const double u = passed(t, period);
    return std::max(std::fabs(std::cos(std::numbers::pi * u)), std::exp(-decay * u));
}

double ringing(double t, double period, double decay, double frequency) {
    if (decay < 0) return kFailed;
    const double u = passed(t, period);
    return std::exp(-decay * u) * sineOfTurns(frequency * period * u);
}

double amplitudeModulation(double t, double carrier, double modulation, double index) {
    return (1 + index * sineOfTurns(modulation * t)) * sineOfTurns(carrier * t);
}

double frequencyModulation(double t, double carrier, double modulation, double index) {
    const double turns = carrier * t;
    const double phase = 2 * std::numbers::pi * (turns - std::round(turns));
    return std::sin(phase + index * sineOfTurns(modulation * t));
}

}  // namespace zelvor::expr
