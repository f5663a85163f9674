#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkLengthUnit.h"

class IGESData_GlobalSection;

// The flag by which the global section of an IGES file names a unit; 0 when it has none for it.
int iges_unit_flag(sdkLengthUnit const & unit);

// Adds a finding when the file gives its model another scale than 1. Lengths are not changed by it.
void iges_note_scale(IGESData_GlobalSection const & section, sdkContext & context);

// Adds a finding when the file gives its unit by a name that is not known, and millimetres are assumed.
void iges_note_unknown_unit(IGESData_GlobalSection const & section, sdkContext & context);
