#pragma once

#include "sdk/sdkDocument.h"

#include <Message_ProgressRange.hxx>
#include <TopoDS_Shape.hxx>

#include <functional>

// What may be repaired; lengths in millimetres.
struct sdkHealingOptions {
    double precision = 1.0e-4; // gaps up to this are closed, and edges shorter than it are dropped
    double max_tolerance =
        0.01;                   // a repair may not loosen the tolerance of a vertex, edge or face beyond this
    bool same_parameter = true; // curves in space are fitted to the curves on their surfaces
    // Whether a repair is good enough to stay, by what there was and what there is; none keeps all repairs.
    std::function<bool(TopoDS_Shape const & before, TopoDS_Shape const & after)> keep = nullptr;
};

struct sdkHealingCounts {
    std::int64_t parts = 0;         // parts looked at
    std::int64_t repaired = 0;      // parts that were changed
    std::int64_t invalid = 0;       // parts that were not valid before
    std::int64_t still_invalid = 0; // and that still are not
    std::int64_t loose_edges = 0;   // edges left whose tolerance exceeds the maximum
    std::int64_t taken_back = 0;    // shapes that are as they were because the repair was not good enough
    std::int64_t details = 0;       // names, colours and layers of sub-shapes that went with these
    bool cancelled = false;
};

sdkHealingCounts sdk_heal(sdkDocument & document, TDF_LabelSequence const & parts,
                          sdkHealingOptions const & options, Message_ProgressRange const & range = {});
