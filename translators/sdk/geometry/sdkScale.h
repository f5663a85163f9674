#pragma once

#include <TopoDS_Shape.hxx>

// The shape with all lengths multiplied by a factor greater than zero, for formats that write numbers without
// a unit. Geometry, tolerances, triangles and the places of members are scaled; what is used several times
// stays shared. The shape given is not changed. Afterwards no place of a member scales or mirrors: that has
// become part of the geometry, also with the factor 1.
TopoDS_Shape sdk_scaled(TopoDS_Shape const & shape, double factor);
