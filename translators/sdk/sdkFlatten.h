#pragma once

#include "sdk/sdkDocument.h"

// Replaces each of the given free shapes that is an assembly by its parts, each at its place, as free shapes.
// They keep names, colours and layers of the part and, where the part has none, those of its place in the
// assembly. Returns the number of assemblies taken apart.
int sdk_flatten(sdkDocument & document, TDF_LabelSequence const & free_shapes);
