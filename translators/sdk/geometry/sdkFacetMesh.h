#pragma once

#include <TopTools_ListOfShape.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_XYZ.hxx>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

// The triangles of faces with their common points joined, neighbours turned to the same side.
class sdkFacetMesh {
public:
    using Triangle = std::array<int, 3>;

    // Takes the triangles of the faces of a shape, at their places.
    sdkFacetMesh(TopTools_ListOfShape const & faces, double tolerance);

    std::vector<gp_XYZ> const & points() const { return m_points; }
    std::vector<Triangle> const & triangles() const { return m_triangles; }
    // Triangles without area, which are not among the others.
    std::int64_t dropped() const { return m_dropped; }

    // How many triangles were turned so that neighbours look to the same side.
    std::int64_t turned() const { return m_turned; }
    // How many triangles belong to sets with borders.
    std::int64_t open() const { return m_open; }

    // A shell of planar faces for each set of triangles that are connected. Only an edge of two triangles
    // connects: where more of them meet, solids touch, or the mesh is none. A shell without borders is marked
    // as closed.
    std::vector<TopoDS_Shape> shells() const;

private:
    // One side of one triangle.
    struct Side {
        std::uint64_t edge;
        std::size_t triangle;
        bool forward;
    };

    void collect(TopTools_ListOfShape const & faces, double tolerance);
    std::vector<Side> sorted_sides() const;
    void connect();

    std::vector<gp_XYZ> m_points;
    std::vector<Triangle> m_triangles;
    std::vector<std::size_t> m_sets; // per triangle, the set that it is connected with
    std::vector<bool> m_closed;      // per set
    std::int64_t m_dropped = 0;
    std::int64_t m_turned = 0;
    std::int64_t m_open = 0;
};
