#include "sdk/geometry/sdkFacetRegions.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int none = -1;

// What a region knows of its plane while triangles join it.
class Fit {
public:
    void add(sdkFacetMesh const & mesh, int triangle)
    {
        auto const vector = mesh.area_vector(triangle);
        double const weight = vector.Modulus();
        auto const & [a, b, c] = mesh.triangle(triangle);
        m_vector += vector;
        m_weight += weight;
        // Near the origin of the coordinates little is lost to rounding, so sums are taken from a corner.
        if (!m_started) {
            m_corner = mesh.point(a);
            m_started = true;
        }
        m_moment += (mesh.point(a) + mesh.point(b) + mesh.point(c) - 3 * m_corner) * (weight / 3);
    }

    sdkFacetRegions::Plane plane() const
    {
        return {m_corner + m_moment / m_weight, m_vector / m_vector.Modulus()};
    }
    double area() const { return m_weight / 2; }

private:
    bool m_started = false;
    gp_XYZ m_corner;
    gp_XYZ m_vector;
    gp_XYZ m_moment;
    double m_weight = 0;
};

bool lies_in(sdkFacetRegions::Plane const & plane, sdkFacetMesh const & mesh, int triangle, double tolerance)
{
    // The direction of a sliver says little, but one that is folded back belongs to another plane.
    auto const vector = mesh.area_vector(triangle);
    auto const & corners = mesh.triangle(triangle);
    return vector.Dot(plane.normal) > 0.9 * vector.Modulus() &&
           std::all_of(corners.begin(), corners.end(),
                       [&](int corner) { return plane.distance(mesh.point(corner)) <= tolerance; });
}

bool look_alike(sdkFacetMesh const & mesh, int triangle, int side, int other)
{
    auto const & corners = mesh.triangle(triangle);
    int const from = corners[static_cast<std::size_t>(side)];
    int const to = corners[static_cast<std::size_t>((side + 1) % 3)];
    auto const & [a, b, c] = mesh.triangle(other);
    return (a == to && b == from) || (b == to && c == from) || (c == to && a == from);
}

// A ten-thousandth of a millimetre, less for small meshes, but never less than single precision can tell.
double plane_tolerance(std::vector<gp_XYZ> const & points)
{
    if (points.empty()) {
        return 0;
    }
    gp_XYZ low = points.front();
    gp_XYZ high = points.front();
    for (auto const & point : points) {
        for (int axis = 1; axis <= 3; ++axis) {
            low.SetCoord(axis, std::min(low.Coord(axis), point.Coord(axis)));
            high.SetCoord(axis, std::max(high.Coord(axis), point.Coord(axis)));
        }
    }
    double farthest = 0;
    for (int axis = 1; axis <= 3; ++axis) {
        farthest = std::max({farthest, std::abs(low.Coord(axis)), std::abs(high.Coord(axis))});
    }
    return std::max(std::min(1.0e-4, 1.0e-6 * (high - low).Modulus()), 2.5e-7 * farthest);
}

// The height of a triangle over its longest side: the larger, the better it knows its plane.
double height(sdkFacetMesh const & mesh, int triangle)
{
    auto const & [a, b, c] = mesh.triangle(triangle);
    double const longest =
        std::max({(mesh.point(b) - mesh.point(a)).Modulus(), (mesh.point(c) - mesh.point(b)).Modulus(),
                  (mesh.point(a) - mesh.point(c)).Modulus()});
    return mesh.area_vector(triangle).Modulus() / longest;
}

} // namespace

double sdkFacetRegions::Plane::distance(gp_XYZ const & point) const
{
    return std::abs(normal.Dot(point - origin));
}

sdkFacetRegions::sdkFacetRegions(sdkFacetMesh const & mesh, bool merge)
    : m_mesh(mesh), m_tolerance(plane_tolerance(mesh.points())), m_regions(mesh.triangles().size(), none)
{
    if (merge) {
        grow_all();
    } else {
        std::iota(m_regions.begin(), m_regions.end(), 0);
        m_order = m_regions;
        m_ends.resize(m_regions.size());
        std::iota(m_ends.begin(), m_ends.end(), 1);
    }
}

void sdkFacetRegions::grow_all()
{
    auto const count = m_regions.size();
    std::vector<float> heights(count);
    for (std::size_t at = 0; at < count; ++at) {
        heights[at] = static_cast<float>(height(m_mesh, static_cast<int>(at)));
    }
    std::vector<int> seeds(count);
    std::iota(seeds.begin(), seeds.end(), 0);
    std::stable_sort(seeds.begin(), seeds.end(), [&](int one, int other) {
        return heights[static_cast<std::size_t>(one)] > heights[static_cast<std::size_t>(other)];
    });
    heights = {};
    std::vector<int> mark(count, none);
    m_order.reserve(count);
    for (auto const seed : seeds) {
        if (m_regions[static_cast<std::size_t>(seed)] != none) {
            continue;
        }
        for (auto const member : grown_from(seed, mark)) {
            m_regions[static_cast<std::size_t>(member)] = size();
            m_order.push_back(member);
        }
        m_ends.push_back(static_cast<int>(m_order.size()));
    }
}

// The triangles round the seed that lie in one plane. The plane is fitted as they are added, because that of
// a small triangle does not reach far; where it has turned away from some of them by that, as on a surface of
// small curvature, they are gathered once more round the plane as it is then.
std::vector<int> sdkFacetRegions::grown_from(int seed, std::vector<int> & mark)
{
    Fit fit;
    fit.add(m_mesh, seed);
    auto plane = fit.plane();
    auto const grow = [&](int stamp, bool fitting) {
        std::vector<int> reached{seed};
        mark[static_cast<std::size_t>(seed)] = stamp;
        for (std::size_t at = 0; at < reached.size(); ++at) {
            for (int side = 0; side < 3; ++side) {
                int const other = m_mesh.neighbour(reached[at], side);
                if (other == none || m_regions[static_cast<std::size_t>(other)] != none ||
                    mark[static_cast<std::size_t>(other)] == stamp ||
                    !look_alike(m_mesh, reached[at], side, other) ||
                    !lies_in(plane, m_mesh, other, m_tolerance)) {
                    continue;
                }
                mark[static_cast<std::size_t>(other)] = stamp;
                reached.push_back(other);
                if (fitting) {
                    fit.add(m_mesh, other);
                    plane = fit.plane();
                }
            }
        }
        return reached;
    };
    auto const on_plane = [&](std::vector<int> const & members) {
        return std::all_of(members.begin(), members.end(),
                           [&](int member) { return lies_in(plane, m_mesh, member, m_tolerance); });
    };
    auto const all_on_own_plane = [&](std::vector<int> const & members) {
        Fit own;
        for (auto const member : members) {
            own.add(m_mesh, member);
        }
        plane = own.plane();
        return on_plane(members);
    };
    auto members = grow(2 * seed, true);
    if (members.size() > 1 && !on_plane(members)) {
        if (!lies_in(plane, m_mesh, seed, m_tolerance)) {
            return {seed};
        }
        members = grow(2 * seed + 1, false);
        if (!all_on_own_plane(members)) {
            return {seed};
        }
    }
    return members;
}

std::span<int const> sdkFacetRegions::triangles(int region) const
{
    auto const at = static_cast<std::size_t>(region);
    auto const begin = static_cast<std::size_t>(region == 0 ? 0 : m_ends[at - 1]);
    return std::span<int const>(m_order).subspan(begin, static_cast<std::size_t>(m_ends[at]) - begin);
}

sdkFacetRegions::Plane sdkFacetRegions::plane(int region) const
{
    Fit fit;
    for (auto const member : triangles(region)) {
        fit.add(m_mesh, member);
    }
    return fit.plane();
}

double sdkFacetRegions::area(int region) const
{
    double doubled = 0;
    for (auto const member : triangles(region)) {
        doubled += m_mesh.area_vector(member).Modulus();
    }
    return doubled / 2;
}

void sdkFacetRegions::dissolve(std::vector<int> const & regions)
{
    if (regions.empty()) {
        return;
    }
    std::vector<bool> gone(m_ends.size(), false);
    for (auto const region : regions) {
        gone[static_cast<std::size_t>(region)] = true;
    }
    std::vector<int> ends;
    int begin = 0;
    for (std::size_t region = 0; region < gone.size(); ++region) {
        if (gone[region]) {
            for (int end = begin + 1; end < m_ends[region]; ++end) {
                ends.push_back(end);
            }
        }
        ends.push_back(m_ends[region]);
        begin = m_ends[region];
    }
    m_ends = std::move(ends);
    for (int region = 0; region < size(); ++region) {
        for (auto const member : triangles(region)) {
            m_regions[static_cast<std::size_t>(member)] = region;
        }
    }
}
