#pragma once

#include "sdk/sdkDocument.h"

// Marks a part, an instance or a sub-shape as one that its author does not want to be seen.
void sdk_hide(sdkDocument & document, TDF_Label const & label);

// True when the label itself is marked, when it is an instance of something that is, or when it lies on
// layers and all of them are hidden. A hidden instance says nothing of the definition that it refers to.
bool sdk_hidden(sdkDocument const & document, TDF_Label const & label);

// All labels of parts, instances and sub-shapes that are marked themselves, each once.
TDF_LabelSequence sdk_hidden_labels(sdkDocument const & document);

// The instances that must be hidden themselves, as what they place is seen elsewhere: components of
// assemblies that are marked, or whose assembly is, and free shapes that only place another one.
TDF_LabelSequence sdk_hidden_instances(sdkDocument const & document);

// Hides parts in place of instances and assemblies, for formats in which only bodies can be hidden: a part is
// hidden when none of its places is seen. Returns how many parts have both hidden places and such that are
// seen; all their places will be seen.
std::int64_t sdk_hide_parts_for_instances(sdkDocument & document);
