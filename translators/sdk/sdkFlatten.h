#pragma once

#include "sdk/sdkDocument.h"

// How a free shape, which has no place of its own in a document, holds a part that is placed elsewhere.
enum class sdkPlacing {
    geometry, // as a copy whose geometry is moved
    compound  // as a compound with the part at its place; costs nothing, unless the place scales or mirrors,
              // and formats without structure do not mind
};

// Replaces each of the given free shapes that is an assembly, or a place of a definition that stands beside
// it, by its parts, each at its place, as free shapes.
// They keep names, colours and layers of the part and, where the part has none, those of its place in the
// assembly or of the assembly; a colour of the part's own place hides that of the part. Returns the number of
// assemblies taken apart.
int sdk_flatten(sdkDocument & document, TDF_LabelSequence const & free_shapes, sdkPlacing placing);
