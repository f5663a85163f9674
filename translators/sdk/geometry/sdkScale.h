#pragma once

#include <TopoDS_Shape.hxx>

// The shape with all lengths multiplied by a factor greater than zero, for formats that write numbers without
// a unit. Geometry, tolerances, triangles and the places of members are scaled; what is used several times
// stays shared. The shape given is not changed.
TopoDS_Shape sdk_scaled(TopoDS_Shape const & shape, double factor);
