#pragma once

#include "sdk/measure/sdkComparison.h"

// For bodies that have no counterpart of their kind: looks for their faces in what is left of the output,
// where a solid may have fallen apart or loose faces may have become one. What is not found is told as
// missing, what is left over as extra.
void sdk_compare_by_faces(sdkBodies const & missing, sdkBodies const & extra,
                          sdkComparisonOptions const & options, std::vector<sdkFinding> & findings);

// A loss for each of them, and a difference for each of them.
void sdk_tell_missing(sdkBodies const & bodies, std::vector<sdkFinding> & findings);
void sdk_tell_extra(sdkBodies const & bodies, std::vector<sdkFinding> & findings);
// A difference: the faces of the body look to the other side in the output.
void sdk_tell_turned(sdkBody const & body, std::vector<sdkFinding> & findings);
// A note: a curve or point is in the output once, where the source has it twice at the same place.
void sdk_tell_coincident(sdkBody const & body, std::vector<sdkFinding> & findings);
