#pragma once

#include "sdk/measure/sdkComparison.h"

// Curves that bound no face, and points, of one kind. A curve may be divided on the way, and curves may be
// joined: then the pieces together have the length and the centroid of the whole.
void sdk_compare_loose(sdkBodies const & source, sdkBodies const & output,
                       sdkComparisonOptions const & options, std::vector<sdkFinding> & findings);
