#pragma once

#include <Standard_Handle.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Trsf.hxx>

class StepGeom_Axis2Placement3d;
class StepGeom_CartesianTransformationOperator3d;

// What an operator does to points in millimetres: turn, mirror and scale about the origin, then move, as ISO
// 10303-42 derives it from the axes that are given (base_axis). The units of the operator's representation
// must have been prepared. False when its axes are degenerate.
bool step_transformation(Handle(StepGeom_CartesianTransformationOperator3d) const & transformation,
                         gp_Trsf & result);

// Takes the frame of the placement to the axes of the origin; the identity when there is no placement.
gp_Trsf step_from_placement(Handle(StepGeom_Axis2Placement3d) const & placement);

// True when a placement of a shape can express it.
bool step_is_rigid(gp_Trsf const & transformation);

// A copy that shares nothing with the shape. Solids of a mirrored copy keep their material inside.
TopoDS_Shape step_transformed_copy(TopoDS_Shape const & shape, gp_Trsf const & transformation);
