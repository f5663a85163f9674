#pragma once

#include "sdk/measure/sdkFaceIntegrals.h"

#include <Bnd_Box.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <cstdint>

// How large the triangles of a face are.
struct sdkMeshMeasure {
    std::int64_t triangles = 0;
    sdkFaceIntegrals integrals;
    Bnd_Box extent;
};

sdkMeshMeasure sdk_measure_mesh(TopoDS_Face const & face, gp_Pnt const & reference);

// How many sides of triangles, of all faces of the shape together, have no triangle that runs along them the
// other way. Points that are equal are one. 0 for a watertight mesh.
std::int64_t sdk_unmatched_edges(TopoDS_Shape const & shape);
