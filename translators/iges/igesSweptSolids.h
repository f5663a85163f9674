#pragma once

#include <TopoDS_Shape.hxx>

class IGESSolid_SolidOfLinearExtrusion;
class IGESSolid_SolidOfRevolution;

// The solid that the area within a plane curve leaves behind, in millimetres as the curve; the dimensions of
// the entity are in the unit of the file. Null when there is no such solid: the curve is missing, does not
// close or is not plane, or the motion has no length. Which side of its faces is outside depends on the
// direction of the motion. What is thrown on the way is Standard_Failure.
TopoDS_Shape iges_revolved(IGESSolid_SolidOfRevolution const & solid, TopoDS_Shape const & curve,
                           double millimetres_per_unit);
TopoDS_Shape iges_extruded(IGESSolid_SolidOfLinearExtrusion const & solid, TopoDS_Shape const & curve,
                           double millimetres_per_unit);
