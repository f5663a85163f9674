#pragma once

#include <Bnd_Box.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <vector>

// A box that all faces of a shape lie in, for certain and quickly: surfaces may not reach as far as it, those
// without end make it open. Faces that have triangles only have the box of these.
Bnd_Box sdk_outer_extent(TopoDS_Shape const & shape);

// The corners of the triangles of faces without a surface, and the vertices of the other faces.
std::vector<gp_Pnt> sdk_face_points(TopoDS_Shape const & shape);

// True when there are faces and none of them has a surface.
bool sdk_triangles_only(TopoDS_Shape const & shape);
