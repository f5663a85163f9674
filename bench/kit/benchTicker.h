#pragma once

#include "kit/benchTimes.h"

#include <wx/timer.h>

/// A timer of one millisecond that stands for the user's events: how late they come shows in its longest gap.
class benchTicker : public wxTimer {
public:
    /// `at_tick` is called with the time of each tick.
    explicit benchTicker(std::function<void(benchClock::time_point)> at_tick = {});
    void begin();
    /// Between two ticks, since begin().
    benchClock::duration longest() const { return m_longest; }

private:
    void Notify() override;

    std::function<void(benchClock::time_point)> m_at_tick;
    benchClock::time_point m_last;
    benchClock::duration m_longest{};
};
