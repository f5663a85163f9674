#pragma once

#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <array>
#include <string>

// The smallest box along the axes round a body of surfaces, with a point of the body on each of its sides:
// where its edges reach farthest, and where its surfaces bulge between them.
class sdkTightExtent {
public:
    bool empty() const { return m_empty; }
    bool contains(gp_Pnt const & point) const;
    void add(gp_Pnt const & point);

    // The point of this body that reaches farthest beyond the other box, by more than `allowed`; null when
    // none does.
    gp_Pnt const * farthest_beyond(sdkTightExtent const & other, double allowed) const;

    // As "(1, 2, 3)-(4, 5, 6)".
    std::string text() const;

    // The coordinate of the side, of which there are six: the lower ones of x, y and z, then the upper ones.
    double side(std::size_t number) const { return m_points[number].Coord(axis(number)); }

private:
    static int axis(std::size_t side) { return static_cast<int>(side % 3) + 1; }

    std::array<gp_Pnt, 6> m_points{};
    bool m_empty = true;
};

// Nothing of what goes on without an end. Any thread.
sdkTightExtent sdk_tight_extent(TopoDS_Shape const & body);

// How far a point lies from the nearest point of a shape; takes long. Infinite when nobody can tell.
double sdk_distance(gp_Pnt const & point, TopoDS_Shape const & shape);
