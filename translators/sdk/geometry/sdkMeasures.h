#pragma once

#include "sdk/sdkDocument.h"

#include <Bnd_Box.hxx>

// What a shape has and how large it is, in millimetres. Faces without a surface are measured by their
// triangles. Shapes that are used at several places count once for each.
struct sdkMeasures {
    double volume = 0; // of solids and of closed shells and meshes; inward ones are negative
    double area = 0;
    Bnd_Box box; // void when there is no geometry
    std::int64_t solids = 0;
    std::int64_t shells = 0;
    std::int64_t faces = 0;
    std::int64_t edges = 0;
    std::int64_t free_edges = 0; // bound no face
    std::int64_t vertices = 0;
    std::int64_t triangles = 0;
};

sdkMeasures sdk_measure(TopoDS_Shape const & shape);
// Of all free shapes together, so each part as often as it is placed.
sdkMeasures sdk_measure(sdkDocument const & document);

// All free shapes in one compound; the shape itself when there is one, null when there is none.
TopoDS_Shape sdk_whole_shape(sdkDocument const & document);
