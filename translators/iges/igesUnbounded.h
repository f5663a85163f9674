#pragma once

#include "sdk/sdkDocument.h"

class TopoDS_Shape;

// A face without a boundary on a surface that has no end, such as a whole plane. It says where something may
// lie, not that something is there, and most formats cannot hold it.
bool iges_is_unbounded(TopoDS_Shape const & shape);

// Drops such faces from the parts of the given shapes.
void iges_drop_unbounded(sdkDocument & document, TDF_LabelSequence const & shapes);
