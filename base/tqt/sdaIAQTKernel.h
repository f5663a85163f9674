#pragma once

#include <array>
#include <vector>

/// A point or vector in the length unit of the model.
struct sdaPoint {
    double x = 0, y = 0, z = 0;
    friend bool operator==(sdaPoint const &, sdaPoint const &) = default;
};

/// Triangles over shared points. Seen from outside a body its triangles run anticlockwise.
struct sdaTriangleMesh {
    std::vector<sdaPoint> points;
    std::vector<std::array<int, 3>> triangles; ///< indices of points
};

/// What can be measured on a mesh; lengths, areas and volumes in powers of the mesh's length unit.
struct sdaMeshMeasures {
    double area = 0;
    double volume = 0;  ///< 0 unless closed; negative for a body that is inside out
    sdaPoint centroid;  ///< of the body when it is closed and has a volume, else of the surface
    sdaPoint low, high; ///< corners of the bounding box of the points that triangles use
    bool closed =
        false; ///< each edge belongs to exactly two triangles, which run along it in opposite directions
};

/// The body kernel: measures bodies given as triangle meshes. Any thread.
class sdaIAQTKernel {
public:
    virtual ~sdaIAQTKernel() = default;

    /// Returns 0, leaving `measures` alone, for a mesh without triangles or with an index that has no point.
    virtual int measure(sdaTriangleMesh const & mesh, sdaMeshMeasures & measures) const = 0;
};
