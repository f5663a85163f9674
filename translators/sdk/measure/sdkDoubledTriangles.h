#pragma once

#include "sdk/measure/sdkInventory.h"

#include <cstdint>

// Triangles of one mesh that are there more than once, with corners at the same places within the usual
// tolerance and looking to the same side: a fault of the source that writers of surfaces mend.
struct sdkDoubledTriangles {
    std::int64_t triangles = 0; // that are there again
    sdkInventory once;          // the inventory as it would be without them
};

sdkDoubledTriangles sdk_take_triangles_once(sdkInventory const & inventory);
