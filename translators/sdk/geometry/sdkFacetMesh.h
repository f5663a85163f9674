#pragma once

#include <TopTools_ListOfShape.hxx>
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
    gp_XYZ const & point(int number) const { return m_points[static_cast<std::size_t>(number)]; }
    std::vector<Triangle> const & triangles() const { return m_triangles; }
    Triangle const & triangle(int number) const { return m_triangles[static_cast<std::size_t>(number)]; }
    // The cross product of two sides: it points to where the triangle looks, and its length is twice the
    // area.
    gp_XYZ area_vector(int triangle) const;
    // The triangle beyond the side that goes from corner `side` to the next; negative where there is none,
    // or more than one.
    int neighbour(int triangle, int side) const
    {
        return m_neighbours[static_cast<std::size_t>(triangle)][static_cast<std::size_t>(side)];
    }

    // Triangles without area, which are not among the others.
    std::int64_t dropped() const { return m_dropped; }
    // Triangles that are there already and look to the same side; they are not among the others either.
    std::int64_t doubled() const { return m_doubled; }
    // How many triangles were turned so that neighbours look to the same side.
    std::int64_t turned() const { return m_turned; }
    // How many triangles belong to sets with borders.
    std::int64_t open() const { return m_open; }

    // Triangles that are connected make a set. Only an edge of two triangles connects: where more of them
    // meet, solids touch, or the mesh is none.
    int sets() const { return static_cast<int>(m_closed.size()); }
    int set(int triangle) const { return m_sets[static_cast<std::size_t>(triangle)]; }
    // True when the set has no border.
    bool closed(int set) const { return m_closed[static_cast<std::size_t>(set)]; }

private:
    // One side of one triangle: the edge that it lies on, and three times the triangle plus the corner at
    // which it begins.
    struct Side {
        std::uint64_t edge;
        std::uint32_t number;
    };

    void collect(TopTools_ListOfShape const & faces, double tolerance);
    void drop_doubled();
    std::vector<Side> sorted_sides() const;
    void find_neighbours(std::vector<Side> const & sides);
    void find_sets();
    void reach_from(int seed, std::vector<char> & turned);
    void find_borders(std::vector<Side> const & sides);

    std::vector<gp_XYZ> m_points;
    std::vector<Triangle> m_triangles;
    std::vector<std::array<int, 3>> m_neighbours;
    std::vector<int> m_sets;    // per triangle
    std::vector<bool> m_closed; // per set
    std::int64_t m_dropped = 0;
    std::int64_t m_doubled = 0;
    std::int64_t m_turned = 0;
    std::int64_t m_open = 0;
};

// One number for the edge between two points, whichever comes first.
std::uint64_t sdk_facet_edge(int one, int other);
