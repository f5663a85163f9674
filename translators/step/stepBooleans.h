#pragma once

#include <Standard_Handle.hxx>
#include <StepShape_BooleanOperator.hxx>
#include <TopoDS_Shape.hxx>

class StepShape_HalfSpaceSolid;

// What the operation leaves of two solids: one solid or a compound of several; a null shape when the
// operation fails or leaves nothing.
TopoDS_Shape step_boolean(StepShape_BooleanOperator operation, TopoDS_Shape const & first,
                          TopoDS_Shape const & second);

// The unbounded solid on one side of a plane, in millimetres, to be used as second operand only; a null shape
// when its surface is no plane. The units of its representation must have been prepared.
TopoDS_Shape step_half_space(Handle(StepShape_HalfSpaceSolid) const & half_space);
