#include "sdk/measure/sdkArcIntegrals.h"

#include <cmath>

// By half the arc and its middle, so that short arcs lose no digits.
sdkArcIntegrals sdk_arc_integrals(double from, double to)
{
    double const half = (to - from) / 2;
    double const middle = (to + from) / 2;
    double const half_sine = std::sin(half);
    double const sine = std::sin(middle);
    double const cosine = std::cos(middle);
    double const whole_sine = half_sine * std::cos(half); // half of the sine of the whole
    double const difference = whole_sine * (cosine - sine) * (cosine + sine);
    return {2 * half,          2 * half_sine * cosine,         2 * half_sine * sine,
            half + difference, 2 * whole_sine * sine * cosine, half - difference};
}
