#pragma once

#include <TopoDS_Face.hxx>
#include <gp_Pnt.hxx>

#include <vector>

// How far a point of one surface lies from another surface, in millimetres.
struct sdkGap {
    double distance = 0;
    gp_Pnt point;
};

// True when the distance from the surface of the face is a matter of a formula: of planes, cylinders, cones,
// spheres and tori.
bool sdk_is_elementary(TopoDS_Face const & face);

// True when both faces have the same B-spline surface: poles in space no farther apart than `tolerance`, and
// the same weights and spans, whatever the parameters run from and to.
bool sdk_same_spline(TopoDS_Face const & a, TopoDS_Face const & b, double tolerance);

// The largest distance of points of a face from the nearest of the other faces, whose surfaces are taken
// beyond their edges. Points of elementary faces lie on their edges, those of others between the edges, in
// each span. What is not more than `enough` need not be exact. All faces must have surfaces.
sdkGap sdk_face_gap(TopoDS_Face const & face, std::vector<TopoDS_Face> const & others, double enough);
