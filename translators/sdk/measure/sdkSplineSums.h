#pragma once

#include "sdk/measure/sdkFaceBoundary.h"
#include "sdk/measure/sdkFaceSums.h"

// Adds what lies along u between the first of the spans and each node of the boundary, on a spline surface:
// in each span the rule of so many points.
void sdk_add_spline_rows(BRepAdaptor_Surface const & surface, std::vector<sdkBoundaryNode> const & nodes,
                         sdkSpans const & spans, int points, sdkFaceSums & sums);
