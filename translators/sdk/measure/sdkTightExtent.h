#pragma once

#include <gp_Pnt.hxx>

#include <array>
#include <string>
#include <vector>

// The smallest box along the axes round a body of surfaces, with a point of the body on each of its sides:
// where its edges reach farthest, and where its surfaces bulge between them.
class sdkTightExtent {
public:
    bool empty() const { return m_empty; }
    // An empty one contains nothing.
    bool contains(gp_Pnt const & point) const;
    void add(gp_Pnt const & point);

    // The point of this body that reaches farthest beyond the other box, by more than `allowed`; null when
    // none does.
    gp_Pnt const * farthest_beyond(sdkTightExtent const & other, double allowed) const;

    // True when something near the point, which lies farthest to that side of all these points of one curve
    // or surface, may reach beyond this box.
    bool may_grow(gp_Pnt const & point, std::size_t side, std::vector<gp_Pnt> const & points) const;

    // As "(1, 2, 3)-(4, 5, 6)".
    std::string text() const;

    // The coordinate of the side, of which there are six: the lower ones of x, y and z, then the upper ones.
    double side(std::size_t number) const { return m_points[number].Coord(axis(number)); }

    // From the middle of the box to the side; of length 1.
    static gp_XYZ direction(std::size_t side);

    // How often the search for the farthest point of a curve or surface halves its step.
    static constexpr int halvings = 24;

private:
    static int axis(std::size_t side) { return static_cast<int>(side % 3) + 1; }

    std::array<gp_Pnt, 6> m_points{};
    bool m_empty = true;
};
