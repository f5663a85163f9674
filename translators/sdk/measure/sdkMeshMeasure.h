#pragma once

#include <Bnd_Box.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Mat.hxx>
#include <gp_Pnt.hxx>

#include <cstdint>

// How large the triangles of a face are, in mm2 and mm3. The volume is that between the triangles and the
// reference point, as it adds up over a closed mesh.
struct sdkMeshMeasure {
    std::int64_t triangles = 0;
    double area = 0;
    gp_Pnt area_centroid;
    gp_Mat inertia{0, 0, 0, 0, 0, 0, 0, 0, 0}; // of the area about its centroid
    double volume = 0;
    gp_Pnt volume_centroid;
    Bnd_Box extent;
};

sdkMeshMeasure sdk_measure_mesh(TopoDS_Face const & face, gp_Pnt const & reference);

// How many sides of triangles, of all faces of the shape together, have no triangle that runs along them the
// other way. Points that are equal are one. 0 for a watertight mesh.
std::int64_t sdk_unmatched_edges(TopoDS_Shape const & shape);
