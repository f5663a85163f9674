#pragma once

// The calls that can fail are defined without the system's headers that declare them: those name some of them
// twice, for files of either size, and put checks of the compiler around others.

#include "faultState.h"

#include <dlfcn.h>
#include <sys/types.h>

/// Defines the function `name`: where it has to fail it returns `failure`, otherwise what the real one
/// returns.
#define FAULT_CALL(family, failure, result, name, parameters, arguments)                                     \
    extern "C" result name parameters                                                                        \
    {                                                                                                        \
        using Function = result(*) parameters;                                                               \
        static auto const real = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, #name));                      \
        if (fault_strikes(faultFamily::family)) {                                                            \
            return failure;                                                                                  \
        }                                                                                                    \
        return real arguments;                                                                               \
    }

/// The same for a function that writes to what `descriptor` names. Standard output and standard error never
/// fail.
#define FAULT_WRITE(failure, descriptor, result, name, parameters, arguments)                                \
    extern "C" result name parameters                                                                        \
    {                                                                                                        \
        using Function = result(*) parameters;                                                               \
        static auto const real = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, #name));                      \
        int const written_to = descriptor;                                                                   \
        if (written_to != 1 && written_to != 2 && fault_strikes(faultFamily::write)) {                       \
            return failure;                                                                                  \
        }                                                                                                    \
        return real arguments;                                                                               \
    }
