#pragma once

#include "ut/utString.h"

class vmrabsAppInfo;

/// The key under which the application information may name the translator program.
inline constexpr char const * s2sHOSTPROGRAM = "s2sHOSTPROGRAM";

/// The path of the translator program: what the application information says or, when it says nothing, where
/// an installation keeps it in relation to the running program.
utString s2s_host_program(vmrabsAppInfo const & app_info);
