#pragma once

#include "sdk/sdkDocument.h"

// Makes all places in a document such as shapes can have, before something moves shapes by them. What a place
// in an assembly scales or mirrors becomes a part of its own with that in its geometry, once for each factor,
// with names, colours and layers; a part that is not used any more is gone. Places within parts become part
// of the geometry. Returns how many places scaled or mirrored.
int sdk_make_places_rigid(sdkDocument & document);
