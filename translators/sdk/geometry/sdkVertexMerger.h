#pragma once

#include <gp_XYZ.hxx>

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

// Gives points that are equal, or closer to each other than a tolerance, one number. With a tolerance, a
// point joins the first that came near it, so chains of near points do not grow together.
class sdkVertexMerger {
public:
    // A tolerance of zero merges equal points only. The number of points expected may be zero.
    sdkVertexMerger(double tolerance, std::size_t expected);

    // The number of the point, counted from 0. Coordinates must be finite.
    int add(gp_XYZ const & point);

    std::vector<gp_XYZ> const & points() const { return m_points; }
    // How many of the added points took the number of another one that was not exactly equal.
    std::int64_t moved() const { return m_moved; }

private:
    struct Cell {
        double x, y, z;
        bool operator==(Cell const &) const = default;
    };
    struct Hash {
        std::size_t operator()(Cell const & cell) const;
    };

    int find_near(gp_XYZ const & point) const;
    Cell cell_of(gp_XYZ const & point) const;

    double m_tolerance;
    double m_cell_size;
    std::unordered_map<Cell, int, Hash> m_cells; // to the latest point of the cell
    std::vector<int> m_earlier;                  // per point: the next older one of the same cell, or -1
    std::vector<gp_XYZ> m_points;
    std::int64_t m_moved = 0;
};
