#include "kit/benchTicker.h"

#include <algorithm>

benchTicker::benchTicker(std::function<void(benchClock::time_point)> at_tick) : m_at_tick(std::move(at_tick))
{
}

void benchTicker::begin()
{
    m_last = benchClock::now();
    m_longest = {};
    Start(1);
}

void benchTicker::Notify()
{
    auto const now = benchClock::now();
    m_longest = std::max(m_longest, now - m_last);
    m_last = now;
    if (m_at_tick)
        m_at_tick(now);
}
