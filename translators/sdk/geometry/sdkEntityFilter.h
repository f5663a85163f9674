#pragma once

#include "sdk/geometry/sdkPartEdit.h"

// Which kinds of geometry stay. Wireframe are curves and points that bound no face; surfaces are faces,
// shells and solids.
struct sdkEntityKinds {
    bool wireframe = true;
    bool surfaces = true;
};

struct sdkFilterCounts {
    sdkEntityCount dropped;
    std::int64_t parts = 0; // parts that had nothing else
};

sdkFilterCounts sdk_filter_entities(sdkDocument & document, TDF_LabelSequence const & parts,
                                    sdkEntityKinds kinds);

// The same for a shape that is in no document yet; what was dropped is added to the count. Null when nothing
// is left.
TopoDS_Shape sdk_filter_shape(TopoDS_Shape const & shape, sdkEntityKinds kinds, sdkEntityCount & dropped);
