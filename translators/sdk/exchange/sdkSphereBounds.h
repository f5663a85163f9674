#pragma once

#include <ShapeBuild_ReShape.hxx>
#include <TopoDS_Shape.hxx>

// Gives faces that are all of a sphere but what lies within their only loop the whole sphere as their outer
// bound. The library takes such a loop for one that runs the wrong way round, as many a writer has it on a
// plane, and makes the opening the face: of a ball with a notch across its seam the notch is left. The file
// says by the direction of the loop which side is meant, and its reader must have kept that. `precision` and
// `tolerance` in millimetres as in ShapeFix. Null when there is no such face.
Handle(ShapeBuild_ReShape)
    sdk_add_sphere_bounds(TopoDS_Shape const & shape, double precision, double tolerance);
