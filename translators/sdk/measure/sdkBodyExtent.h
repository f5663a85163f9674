#pragma once

#include "sdk/measure/sdkTightExtent.h"

#include <TopoDS_Shape.hxx>

// Nothing of what goes on without an end. Any thread.
sdkTightExtent sdk_tight_extent(TopoDS_Shape const & body);

// How far a point lies from the nearest point of a shape; takes long. Infinite when nobody can tell.
double sdk_distance(gp_Pnt const & point, TopoDS_Shape const & shape);
