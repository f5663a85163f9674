#include "sdk/geometry/sdkFacetLoops.h"

#include <unordered_map>
#include <unordered_set>

namespace {

struct Side {
    int triangle;
    int corner;
};

class Tracer {
public:
    Tracer(sdkFacetMesh const & mesh, sdkFacetRegions const & regions, int region)
        : m_mesh(mesh), m_regions(regions), m_region(region)
    {
    }

    std::vector<sdkFacetLoop> loops()
    {
        for (auto const triangle : m_regions.triangles(m_region)) {
            for (int corner = 0; corner < 3; ++corner) {
                if (!is_inner({triangle, corner}) && !m_seen.contains(number({triangle, corner}))) {
                    divide(traced({triangle, corner}));
                }
            }
        }
        return std::move(m_loops);
    }

private:
    static std::int64_t number(Side side) { return 3 * std::int64_t{side.triangle} + side.corner; }

    int start(Side side) const
    {
        return m_mesh.triangle(side.triangle)[static_cast<std::size_t>(side.corner)];
    }

    // The same line in the triangle beyond it, from the other end; its corner is negative when that triangle
    // looks to the other side.
    Side beyond(Side side) const
    {
        int const other = m_mesh.neighbour(side.triangle, side.corner);
        int const to = start({side.triangle, (side.corner + 1) % 3});
        for (int corner = 0; corner < 3; ++corner) {
            if (start({other, corner}) == to && start({other, (corner + 1) % 3}) == start(side)) {
                return {other, corner};
            }
        }
        return {other, -1};
    }

    bool is_inner(Side side) const
    {
        int const other = m_mesh.neighbour(side.triangle, side.corner);
        return other >= 0 && m_regions.region(other) == m_region && beyond(side).corner >= 0;
    }

    sdkFacetLoop traced(Side side)
    {
        sdkFacetLoop loop;
        while (m_seen.insert(number(side)).second) {
            loop.push_back(start(side));
            // Round the end of this side, through the triangles of the region, to the next one on the border.
            side = {side.triangle, (side.corner + 1) % 3};
            while (is_inner(side)) {
                auto const other = beyond(side);
                side = {other.triangle, (other.corner + 1) % 3};
            }
        }
        return loop;
    }

    // Where a line touches itself it is divided into two.
    void divide(sdkFacetLoop const & line)
    {
        sdkFacetLoop open;
        std::unordered_map<int, std::size_t> places;
        for (auto const point : line) {
            if (auto const found = places.find(point); found != places.end()) {
                auto const from = open.begin() + static_cast<std::ptrdiff_t>(found->second);
                sdkFacetLoop const loop(from, open.end());
                for (auto const member : loop) {
                    places.erase(member);
                }
                open.erase(from, open.end());
                m_loops.push_back(loop);
            }
            places.emplace(point, open.size());
            open.push_back(point);
        }
        m_loops.push_back(open);
    }

    sdkFacetMesh const & m_mesh;
    sdkFacetRegions const & m_regions;
    int m_region;
    std::unordered_set<std::int64_t> m_seen;
    std::vector<sdkFacetLoop> m_loops;
};

} // namespace

std::vector<sdkFacetLoop> sdk_facet_loops(sdkFacetMesh const & mesh, sdkFacetRegions const & regions,
                                          int region)
{
    if (auto const members = regions.triangles(region); members.size() == 1) {
        auto const & corners = mesh.triangle(members.front());
        return {{corners.begin(), corners.end()}};
    }
    return Tracer(mesh, regions, region).loops();
}

double sdk_doubled_area(sdkFacetMesh const & mesh, sdkFacetLoop const & loop,
                        sdkFacetRegions::Plane const & plane)
{
    gp_XYZ sum;
    for (std::size_t at = 0; at < loop.size(); ++at) {
        auto const & next = mesh.point(loop[(at + 1) % loop.size()]);
        sum += (mesh.point(loop[at]) - plane.origin).Crossed(next - plane.origin);
    }
    return sum.Dot(plane.normal);
}
