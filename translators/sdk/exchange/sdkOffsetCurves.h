#pragma once

#include "sdk/sdkDocument.h"

// Puts B-splines with the same parameters in place of curves that are given by their distance from others:
// Open CASCADE writes nothing for an edge that has one. They follow within 1e-7 mm where a hundred spans are
// enough for it, as they nearly always are. Returns the number of parts that were changed.
int sdk_convert_offset_curves(sdkDocument & document);
