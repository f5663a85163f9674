#pragma once

#include "sdk/geometry/sdkFacetMesh.h"

#include <TopoDS_Shape.hxx>

// A shell of planar faces for each set of connected triangles of a mesh: a face for each triangle, or with
// `merge` for each of its plane regions. Within a shell faces share edges and vertices. A shell without
// borders is marked as closed.
std::vector<TopoDS_Shape> sdk_facet_shells(sdkFacetMesh const & mesh, bool merge);
