#pragma once

#include "sdk/sdkDocument.h"

// Gives the second label the name, the colours and the material of the first where it has none of its own,
// and the layers of the first besides its own; what is hidden hides it.
void sdk_add_attributes(sdkDocument & document, TDF_Label const & from, TDF_Label const & to);

// The colours alone.
void sdk_add_colours(sdkDocument & document, TDF_Label const & from, TDF_Label const & to);
