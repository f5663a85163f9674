#pragma once

#include "sdk/sdkDocument.h"

#include <cstdint>

// Colours of a document that IGES files have otherwise.
struct igesColourLosses {
    std::int64_t transparent = 0; // parts, places and shapes in parts: they become opaque
    std::int64_t overridden = 0;  // places whose colour differs from that of their part: they get the part's
};

igesColourLosses iges_count_colour_losses(sdkDocument const & document);
