#pragma once

#include "sdk/sdkDocument.h"

#include <TopoDS_Shape.hxx>

// All parts of a document, each at each of its places, in one compound without further structure; the part
// itself when there is one, null when there is none.
TopoDS_Shape brep_flattened(sdkDocument const & document);
