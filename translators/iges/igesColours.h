#pragma once

#include "sdk/sdkDocument.h"

#include <cstdint>

// How many parts, places and shapes in parts are transparent; IGES files have them opaque.
std::int64_t iges_count_transparent(sdkDocument const & document);
