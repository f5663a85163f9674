#pragma once

#include <ShapeBuild_ReShape.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>

// True when the curves of each loop of a face follow each other without a gap in the parameters of its
// surface. It is false where a seam runs along the wrong side of its surface, where a curve lies a period
// away, where a seam is missing. Always true of planes, which need no such curves.
bool sdk_boundary_closes(TopoDS_Face const & face);

// Repairs those faces of a shape whose boundary does not close, and leaves all others as they are: what other
// readers make up for by going through the whole of it. `precision` and `tolerance` in millimetres as in
// ShapeFix. Null when there is nothing to repair.
Handle(ShapeBuild_ReShape)
    sdk_close_boundaries(TopoDS_Shape const & shape, double precision, double tolerance);
