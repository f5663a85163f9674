#pragma once

#include "sdk/measure/sdkSurfacePatches.h"

#include <TopoDS_Face.hxx>

#include <vector>

// A point of the boundary of a face as an integration along it meets it.
struct sdkBoundaryNode {
    double u;
    double v;
    double weight; // holds dv
};

// Along all edges of the face, which is taken as forward; of a face without edges, along the borders of its
// surface, and nothing when that is unbounded. The surface is that of the face, without restriction to its
// boundary.
std::vector<sdkBoundaryNode> sdk_boundary_nodes(TopoDS_Face const & face, BRepAdaptor_Surface const & surface,
                                                sdkSurfacePatches const & patches);
