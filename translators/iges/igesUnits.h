#pragma once

#include "sdk/sdkLengthUnit.h"

// The flag by which the global section of an IGES file names a unit; 0 when it has none for it.
int iges_unit_flag(sdkLengthUnit const & unit);
