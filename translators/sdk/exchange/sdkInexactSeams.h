#pragma once

#include "sdk/sdkDocument.h"

// Mends faces on closed surfaces whose seam does not meet the other edges of the face, or its own curves on
// the face, within 1e-3 mm. A reader of IGES closes such a face with a tolerance as large as the gap, or not
// at all, and the solid falls apart or loses the face. Where the curves on the face are off by one move, they
// are moved back. Otherwise the face is divided, and its two parts meet within 1e-3 mm; that is kept only
// where the part is no worse by measure. Other faces stay what they are. Returns the number of parts that
// were changed.
int sdk_mend_inexact_seams(sdkDocument & document);
