#pragma once

#include "sdk/geometry/sdkPartEdit.h"

// The largest distance between a curve and its polyline, in millimetres: for curves that lie in a plane, and
// for the others.
struct sdkPolylineTolerances {
    double planar = 0.01;
    double spatial = 0.01;
};

struct sdkPolylineCounts {
    std::int64_t curves = 0;   // curves that were replaced
    std::int64_t segments = 0; // straight segments that stand in their place
    bool cancelled = false;
};

// Replaces curves that bound no face by polygonal wires. Straight ones stay.
sdkPolylineCounts sdk_make_polylines(sdkDocument & document, TDF_LabelSequence const & parts,
                                     sdkPolylineTolerances const & tolerances,
                                     Message_ProgressRange const & range = {});
