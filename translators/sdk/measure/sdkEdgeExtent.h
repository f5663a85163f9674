#pragma once

#include "sdk/measure/sdkTightExtent.h"

#include <TopoDS_Edge.hxx>

// The ends of the edge.
void sdk_add_ends(TopoDS_Edge const & edge, sdkTightExtent & extent);

// Where the edge reaches farthest between its ends. Nothing of an edge that has no end.
void sdk_add_edge(TopoDS_Edge const & edge, sdkTightExtent & extent);
