#pragma once

#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <cstdint>
#include <vector>

// All faces of all bodies.
std::int64_t sdk_face_count(sdkInventory const & inventory);

// Volume and area of everything, where triangles stand in place of surfaces or the other way round. What the
// triangles may leave out is bounded by the deflection and the area.
void sdk_compare_totals(sdkInventory const & source, sdkInventory const & output, sdkPromise const & promise,
                        std::vector<sdkFinding> & findings);

// The length of curves and of the polylines in place of them.
void sdk_compare_polylines(sdkInventory const & source, sdkInventory const & output,
                           std::vector<sdkFinding> & findings);
