#pragma once

#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkFinding.h"

#include <vector>

// A mesher takes its points from surfaces, so all three corners of a triangle lie on one surface of the
// source, exactly, however far the triangle itself lies from it. Adds a finding for triangles of the output
// of which this is not so by more than rounding and what the edges of the source allow: a corner was moved,
// if only by less than the deflection, or an outline cut short. Nothing for sources that have triangles
// themselves.
void sdk_compare_mesh_corners(sdkInventory const & source, sdkInventory const & output,
                              std::vector<sdkFinding> & findings);
