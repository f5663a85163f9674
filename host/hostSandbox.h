#pragma once

#include "host/hostPlaces.h"

#include <string>

// What stands between a file that was made to do harm and what belongs to the user. Each part is there when
// the kernel has it, whatever becomes of the others.
struct hostProtections {
    bool no_new_rights = false; // no_new_privs
    bool calls = false;         // seccomp
    int files = 0;              // landlock, as host_leave_only gives it
};

// Gives up all that a translation does not need, for good: for this thread and those that it begins from now
// on. To be called before the first byte of an input is looked at.
hostProtections host_enter_sandbox(hostPlaces const & places);

// One line for each of them, in English.
std::string host_describe(hostProtections const & protections);
