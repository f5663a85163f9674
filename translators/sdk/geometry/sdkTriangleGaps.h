#pragma once

#include "sdk/geometry/sdkTessellation.h"

#include <string>
#include <vector>

// How well the triangles of closed solids close.
struct sdkTriangleGaps {
    std::int64_t closed_solids = 0;
    // Edges of triangles that have no triangle on their other side; 0 where the triangles close.
    std::int64_t unmatched_edges = 0;
};

// Looks at the closed solids of a shape that has been tessellated; solids that are open themselves do not
// count. Triangles of neighbouring faces meet in the points that the tessellation gave to their common edge,
// whatever the coordinates.
sdkTriangleGaps sdk_triangle_gaps(TopoDS_Shape const & shape);

// A part whose triangles do not close.
struct sdkOpenPart {
    std::string name;
    std::int64_t unmatched_edges = 0;
};

// Tessellates parts whose triangles do not close once more: finer, and if that does not help, after a repair.
// What is not closed by it stays as it is. Returns the parts that are left open.
std::vector<sdkOpenPart> sdk_close_triangles(sdkDocument & document,
                                             sdkTessellationTolerances const & tolerances,
                                             Message_ProgressRange const & range = {});
