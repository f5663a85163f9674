#pragma once

#include <TopoDS_Shape.hxx>

// The shape with solids instead of the closed shells in it. Trimmed surfaces do not say which side of them is
// outside, so of closed shells that lie inside each other every second one is the wall of a cavity and goes
// into the solid around it; all others become solids at their place.
TopoDS_Shape iges_with_solids(TopoDS_Shape const & shape);
