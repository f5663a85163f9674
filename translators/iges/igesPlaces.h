#pragma once

#include "sdk/sdkDocument.h"

#include <string>

// Entities that stand under a transformation, and instances of subfigures, come into a document as free
// references to definitions beside them. Those that share a definition become instances in one assembly with
// the name; of any other the place becomes part of the geometry, as must every place that scales or mirrors.
// Works on the given free shapes.
void iges_settle_places(sdkDocument & document, TDF_LabelSequence const & labels, std::string const & name);
