#pragma once

#include "sdk/sdkCapabilities.h"
#include "sdk/sdkDocument.h"
#include "sdk/sdkReporter.h"

#include <string_view>

// What a document has besides geometry. Sub-shapes with a name, colour or layer of their own count too.
struct sdkAttributeCounts {
    std::int64_t assemblies = 0;
    std::int64_t instances = 0; // places of parts and assemblies in assemblies
    std::int64_t named = 0;     // parts, assemblies and sub-shapes
    std::int64_t coloured = 0;  // the same and instances
    std::int64_t layered = 0;   // the same
};

sdkAttributeCounts sdk_count_attributes(sdkDocument const & document);

// Tells the user what of the document a file of that format will lack, one message with counts for each kind.
// Call it before the document is changed to fit. Returns the number of entities that the file cannot hold in
// any form: curves and points.
std::int64_t sdk_report_losses(sdkDocument const & document, sdkCapabilities const & capabilities,
                               std::string_view format, sdkReporter & reporter);
