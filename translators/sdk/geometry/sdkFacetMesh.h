#pragma once

#include <TopTools_ListOfShape.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_XYZ.hxx>

#include <array>
#include <cstdint>
#include <vector>

// The triangles of faces with their common points joined.
class sdkFacetMesh {
public:
    using Triangle = std::array<int, 3>;

    // Appends the triangles of the faces of a shape, at their places, turned as the faces are.
    sdkFacetMesh(TopTools_ListOfShape const & faces, double tolerance);

    std::vector<gp_XYZ> const & points() const { return m_points; }
    std::vector<Triangle> const & triangles() const { return m_triangles; }
    // Triangles without area, which are not among the others.
    std::int64_t dropped() const { return m_dropped; }

    // True when no edge has more than two triangles, and those of each edge look to the same side.
    bool regular() const;
    // True when edges have one triangle only.
    bool open() const;

    // One shell for each set of triangles that are connected by edges, when the mesh is regular.
    std::vector<TopoDS_Shape> shells() const;
    // One separate face for each triangle.
    std::vector<TopoDS_Shape> loose_faces() const;

private:
    std::vector<gp_XYZ> m_points;
    std::vector<Triangle> m_triangles;
    std::int64_t m_dropped = 0;
};
