#pragma once

#include <chrono>
#include <functional>
#include <vector>

using benchClock = std::chrono::steady_clock;

double bench_milliseconds(benchClock::duration duration);
/// How long the work takes.
double bench_milliseconds(std::function<void()> const & work);
/// The middle one, of an even number the upper of the two; there must be at least one.
double bench_median(std::vector<double> values);
