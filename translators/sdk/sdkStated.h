#pragma once

#include "sdk/sdkDocument.h"

// Files may state volume, surface area and centroid of products for those who receive them to check. Readers
// that compare these with what arrived note for how many products there were any; several readers of one
// document add up. Writers write them again, or say that they are lost.
void sdk_add_stated(sdkDocument const & document, std::int64_t products);
std::int64_t sdk_stated(sdkDocument const & document);
