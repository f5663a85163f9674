#pragma once

#include "sdk/sdkResult.h"

#include <string>
#include <string_view>

// Goes through a whole BREP file before Open CASCADE does, which follows lying counts and indices and takes
// NaN for a number. The error names the line or byte. Too big when compounds within each other are too many
// or too deep. One entity cannot be left out of a BREP file: all others are counted with it.
sdkResult brep_check(std::string_view content, std::string const & file);
