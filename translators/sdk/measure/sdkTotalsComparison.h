#pragma once

#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <cstdint>
#include <vector>

// All faces of all bodies.
std::int64_t sdk_face_count(sdkInventory const & inventory);

// Area, volume, and where the area lies: its centroid and second moments, of everything at once; where
// triangles stand in place of surfaces, surfaces in place of triangles, or triangles in place of others. What
// triangles may leave out of surfaces is bounded by the deflection and the area; triangles of triangles
// differ by rounding only, whatever deflection was promised.
void sdk_compare_totals(sdkInventory const & source, sdkInventory const & output, sdkPromise const & promise,
                        std::vector<sdkFinding> & findings);

// The number of triangles, where the writer has said how many it wrote. Also of inventories that were only
// counted.
void sdk_compare_triangle_count(sdkInventory const & output, sdkPromise const & promise,
                                std::vector<sdkFinding> & findings);

// The length of curves and of the polylines in place of them.
void sdk_compare_polylines(sdkInventory const & source, sdkInventory const & output,
                           std::vector<sdkFinding> & findings);
