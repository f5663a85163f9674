#include "kit/benchTimes.h"

#include <algorithm>

double bench_milliseconds(benchClock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

double bench_milliseconds(std::function<void()> const & work)
{
    auto const begin = benchClock::now();
    work();
    return bench_milliseconds(benchClock::now() - begin);
}

double bench_median(std::vector<double> values)
{
    auto const middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}
