#pragma once

#include "sdk/measure/sdkBodyPairs.h"

#include <cstdint>
#include <optional>
#include <string>

// The faces of two bodies that are the same but for their colour, and the first of them.
struct sdkFaceColourDifference {
    std::int64_t faces = 0;
    std::string place;
    std::string source; // "#rrggbbaa"; empty for none
    std::string output;
};

struct sdkFaceColourOptions {
    sdkTolerances tolerances;
    bool transparency = true; // is compared too
    bool bare = true;         // a face without a colour has to stay without one
};

// Holds the colours of faces against each other that have the same area and centroid. Nothing where either
// body has one colour only, which is compared as that of the body, and where no face differs. Faces that were
// divided or joined are left out.
std::optional<sdkFaceColourDifference> sdk_compare_face_colours(sdkBody const & source,
                                                                sdkBody const & output,
                                                                sdkFaceColourOptions const & options);
