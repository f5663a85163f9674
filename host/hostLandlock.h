#pragma once

#include "host/hostPlaces.h"

// Leaves this thread, and those that it begins from now on with their processes, no files but those of the
// places, no programs to start, no TCP, and no signals to others, as far as the kernel can do it. Gives the
// version of what the kernel has; 0 when it has nothing of the kind, -1 when it has refused. The process must
// have no_new_privs.
int host_leave_only(hostPlaces const & places);

// From these versions on.
constexpr int host_landlock_network = 4;
constexpr int host_landlock_signals = 6;
