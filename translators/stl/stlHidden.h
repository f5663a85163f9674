#pragma once

#include "sdk/sdkDocument.h"

#include <TopLoc_Location.hxx>
#include <TopTools_MapOfShape.hxx>

// The bodies within a part that are hidden while the part is not, and their faces as the part has them at a
// place. A single hidden face of a body that is seen is none of them: without it the body would have a hole.
struct stlHiddenFaces {
    TopTools_MapOfShape faces;
    std::int64_t bodies = 0;
};

stlHiddenFaces stl_hidden_faces(sdkDocument const & document, TDF_Label const & part,
                                TopLoc_Location const & place);
