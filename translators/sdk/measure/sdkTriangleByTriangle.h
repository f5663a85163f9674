#pragma once

#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkFinding.h"

#include <vector>

// Triangles that stand for triangles: each of the source has to be in the output with its corners at the same
// places, within rounding, and looking to the same side, as often as it is in the source, and no others.
// Those that have no area may be left out. Adds a loss for triangles that are not there, and a difference for
// others that are. Nothing for sources that have surfaces, too.
void sdk_compare_triangle_by_triangle(sdkInventory const & source, sdkInventory const & output,
                                      std::vector<sdkFinding> & findings);
