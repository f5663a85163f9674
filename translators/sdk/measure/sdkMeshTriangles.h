#pragma once

#include "sdk/geometry/sdkVertexMerger.h"

#include <TopoDS_Shape.hxx>
#include <gp_XYZ.hxx>

#include <array>
#include <vector>

// Triangles by the numbers of their corners, so that those of several meshes can be held against each other.
// Corners nearer to each other than a tolerance, in millimetres, have the same number.
class sdkMeshTriangles {
public:
    // Beginning at the lowest number and going round the way that the triangle looks.
    using Triangle = std::array<int, 3>;

    explicit sdkMeshTriangles(double tolerance) : m_points(tolerance, 0) {}

    // All triangles of the faces of a shape at its place.
    std::vector<Triangle> add(TopoDS_Shape const & shape);
    std::vector<gp_XYZ> const & points() const { return m_points.points(); }

private:
    sdkVertexMerger m_points;
};
