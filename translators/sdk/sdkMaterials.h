#pragma once

#include "sdk/sdkDocument.h"

// What a part is made of: the entry of the document's material tool, with a name or a density; null when the
// document does not say.
TDF_Label sdk_material(TDF_Label const & shape);
void sdk_set_material(sdkDocument const & document, TDF_Label const & shape, TDF_Label const & material);

// How many parts and assemblies have a material of their own.
std::int64_t sdk_count_materials(sdkDocument const & document);
