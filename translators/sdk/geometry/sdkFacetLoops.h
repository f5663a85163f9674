#pragma once

#include "sdk/geometry/sdkFacetRegions.h"

// The points of a closed line along sides of triangles; the last is followed by the first.
using sdkFacetLoop = std::vector<int>;

// The lines that bound a region of a mesh, with the region to the left as seen from where it looks to. No
// point occurs twice in a line.
std::vector<sdkFacetLoop> sdk_facet_loops(sdkFacetMesh const & mesh, sdkFacetRegions const & regions,
                                          int region);

// Twice the area that a line encloses in a plane: positive for one that goes round against the clock.
double sdk_doubled_area(sdkFacetMesh const & mesh, sdkFacetLoop const & loop,
                        sdkFacetRegions::Plane const & plane);
