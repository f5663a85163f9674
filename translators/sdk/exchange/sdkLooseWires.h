#pragma once

#include "sdk/sdkDocument.h"

// Takes wires that bound no face apart into their edges, where not every edge follows from another one: wires
// that branch, have gaps or an edge that is turned round. Open CASCADE writes of such a wire to IGES only
// what it passes when it walks along. Returns the number of parts that were changed.
int sdk_split_loose_wires(sdkDocument & document);
