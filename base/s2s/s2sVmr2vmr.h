#pragma once

#include <algorithm>

#include "s2s/s2sLimits.h"

/// What holds for all the translations of one driver.
class s2sVmr2vmr {
public:
    s2sVmr2vmr(); ///< with the limits of an installation without settings and one host for each processor

    /// A translation that needs more memory ends as s2sThreadFileTooBig; one that says nothing new for too
    /// long, or that writes too much, as an error of reading or writing.
    s2sLimits const & limits() const { return m_limits; }
    void set_limits(s2sLimits const & limits) { m_limits = limits; }

    /// How many translations of a batch may be at work at the same time; with 1 each begins when the one
    /// before it has ended.
    int hosts() const { return m_hosts; }
    void set_hosts(int number) { m_hosts = std::max(1, number); }

private:
    s2sLimits m_limits;
    int m_hosts;
};
