#include "sdk/measure/sdkTightExtent.h"

#include "sdk/geometry/sdkPointText.h"

#include <algorithm>
#include <limits>

gp_XYZ sdkTightExtent::direction(std::size_t side)
{
    double const sign = side < 3 ? -1 : 1;
    return {side % 3 == 0 ? sign : 0, side % 3 == 1 ? sign : 0, side % 3 == 2 ? sign : 0};
}

bool sdkTightExtent::contains(gp_Pnt const & point) const
{
    for (std::size_t at = 0; at < 3; ++at) {
        double const value = point.Coord(axis(at));
        if (m_empty || !(value >= side(at) && value <= side(at + 3))) {
            return false;
        }
    }
    return true;
}

void sdkTightExtent::add(gp_Pnt const & point)
{
    for (std::size_t at = 0; at < 6; ++at) {
        double const value = point.Coord(axis(at));
        if (m_empty || (at < 3 ? value < side(at) : value > side(at))) {
            m_points[at] = point;
        }
    }
    m_empty = false;
}

gp_Pnt const * sdkTightExtent::farthest_beyond(sdkTightExtent const & other, double allowed) const
{
    gp_Pnt const * farthest = nullptr;
    for (std::size_t at = 0; !m_empty && !other.m_empty && at < 6; ++at) {
        double const beyond = at < 3 ? other.side(at) - side(at) : side(at) - other.side(at);
        if (beyond > allowed) {
            farthest = &m_points[at];
            allowed = beyond;
        }
    }
    return farthest;
}

std::string sdkTightExtent::text() const
{
    return sdk_point_text(gp_Pnt(side(0), side(1), side(2))) + "-" +
           sdk_point_text(gp_Pnt(side(3), side(4), side(5)));
}

bool sdkTightExtent::may_grow(gp_Pnt const & point, std::size_t side,
                              std::vector<gp_Pnt> const & points) const
{
    if (m_empty) {
        return true;
    }
    auto const along = direction(side);
    double low = std::numeric_limits<double>::infinity();
    for (auto const & one : points) {
        low = std::min(low, one.XYZ().Dot(along));
    }
    double const high = point.XYZ().Dot(along);
    double const known = this->side(side) * (side < 3 ? -1 : 1);
    return high + 0.1 * (high - low) > known;
}
