#pragma once

#include "sdk/sdkDocument.h"

// Divides faces on closed surfaces whose seam does not meet the other edges of the face within 1e-3 mm. A
// reader of IGES closes such a face with a tolerance as large as the gap, or not at all, and the solid falls
// apart; the two parts of a divided face meet within 1e-3 mm. Other faces stay what they are. Kept only where
// the part is no worse by measure. Returns the number of parts that were changed.
int sdk_divide_inexact_seams(sdkDocument & document);
