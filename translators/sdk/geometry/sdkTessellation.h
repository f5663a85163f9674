#pragma once

#include "sdk/sdkDocument.h"

#include <Message_ProgressRange.hxx>

// How closely triangles follow the surfaces: the largest distance in millimetres, and the largest angle in
// radians between neighbouring triangles of one face.
struct sdkTessellationTolerances {
    double linear = 0.1;
    double angular = 0.5;
};

struct sdkTessellationCounts {
    std::int64_t faces = 0;     // faces with triangles now
    std::int64_t triangles = 0; // of these faces
    std::int64_t failed = 0;    // faces that could not be tessellated
    bool cancelled = false;

    sdkTessellationCounts & operator+=(sdkTessellationCounts const & other);
};

// Gives triangles to the faces that have none, or only coarser ones. Faces without a surface keep theirs. The
// triangles become part of the shape. In one thread.
sdkTessellationCounts sdk_tessellate(TopoDS_Shape const & shape, sdkTessellationTolerances const & tolerances,
                                     Message_ProgressRange const & range = {});

// The same for all parts of a document.
sdkTessellationCounts sdk_tessellate(sdkDocument const & document,
                                     sdkTessellationTolerances const & tolerances,
                                     Message_ProgressRange const & range = {});

// What the parts of a document have of triangles as they are.
sdkTessellationCounts sdk_count_triangles(sdkDocument const & document);
