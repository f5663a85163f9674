#pragma once

#include "sdk/measure/sdkMeshDistance.h"
#include "sdk/sdkDocument.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <Bnd_Box.hxx>
#include <TopoDS_Shape.hxx>

#include <cstdint>
#include <optional>
#include <vector>

// For the triangles of modules that do not say how closely they follow surfaces, in millimetres.
inline constexpr double sdk_usual_deflection = 0.1;

// What the triangles of an output are held against. It is apart from the comparison, since it can be made
// while the output is still being read.
struct sdkMeshSource {
    TopoDS_Shape shape;                  // null when the document is empty
    bool triangles = false;              // no surfaces at all
    std::vector<sdkSurfacePoint> points; // of its surfaces and edges
    Bnd_Box extent;
    // Sides of triangles without a neighbour that the source accounts for; none where nobody can tell.
    std::optional<std::int64_t> sides;
};

// `hidden` says whether bodies that are hidden count. The document is not changed.
sdkMeshSource sdk_mesh_source(sdkDocument const & document, bool hidden);

// How triangles of an output follow the surfaces of its source, or its triangles: what lies farther off than
// the deflection promised, what reaches beyond the source, and sides of triangles without a neighbour that
// the source does not have. Also for surfaces that stand in place of the triangles of a source; these and
// triangles of triangles may differ by rounding only. Works in so many threads.
void sdk_compare_mesh(sdkMeshSource const & source, sdkDocument const & output, sdkPromise const & promise,
                      std::vector<sdkFinding> & findings, int threads = 1);
