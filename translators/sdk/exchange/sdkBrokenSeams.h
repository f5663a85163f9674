#pragma once

#include "sdk/sdkDocument.h"

// Divides faces that go round a surface with poles, or round one that is closed both ways, along a seam of
// several pieces, such as a ball with an opening across its seam. The STEP reader of Open CASCADE takes the
// pieces out of the boundary and reads the opening as the face, or nothing. Other faces stay what they are.
// Returns the number of parts that were changed.
int sdk_divide_broken_seams(sdkDocument & document);
