#pragma once

#include "sdk/sdkDocument.h"
#include "sdk/sdkFinding.h"

#include <string>
#include <vector>

// Looks at what was read for faults of its own, about which no writer can do anything: a note of the kind
// "source-invalid" when solids, or shells and faces that belong to none, are not valid, with the first fault
// and its place in the frame of its part, and one of the kind "source-open" when shells are open, another
// when sides of triangles of meshes have no neighbour. Definitions are looked at once however often they are
// placed. Takes about as long as a tenth of a translation.
std::vector<sdkFinding> sdk_source_faults(sdkDocument const & document);
