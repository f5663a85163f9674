#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkDocument.h"

#include <cstdint>

// True when all numbers of a shape can be reckoned with (sdkLimits.h): points, curves, surfaces, triangles,
// tolerances, places. Those that end a curve or surface without end are no fault.
bool sdk_is_finite(TopoDS_Shape const & shape);

// Takes faces, loose curves and loose points that have a number which cannot be reckoned with out of the
// document, tells the user of each and counts it as failed: what measures, tessellates or writes them would
// go on for ever, or write what no program reads. Returns how many were taken out.
std::int64_t sdk_drop_not_finite(sdkDocument & document, sdkContext & context);
