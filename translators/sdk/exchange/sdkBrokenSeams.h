#pragma once

#include "sdk/sdkDocument.h"

// Mends faces that go round a surface with poles, or round one that is closed both ways, along a seam of
// several pieces, such as a ball with an opening across its seam. The STEP reader of Open CASCADE, and so
// that of many a program, takes the pieces out of the boundary and reads the opening as the face, or nothing.
// Faces on spheres get the whole sphere as their outer bound, others are divided; both stay only where the
// part is no worse by measure. Other faces stay what they are. Returns the number of parts that were changed.
int sdk_mend_broken_seams(sdkDocument & document);
