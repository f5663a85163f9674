#include "sdk/geometry/sdkFacetOutlines.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int none = -1;

// What lies beside the edges of outlines that leave a point.
struct Corner {
    int left = none;
    int right = none;
    int leaving = 0;
    bool passed = true; // the edges are one line, with the same on either side

    void add(int region, int other)
    {
        ++leaving;
        if (leaving == 1) {
            left = region;
            right = other;
        } else {
            passed = leaving == 2 && left != right && region == right && other == left;
        }
    }
    bool is_passed() const { return passed && (leaving == 2 || right == none); }
};

double distance_to_segment(gp_XYZ const & point, gp_XYZ const & from, gp_XYZ const & to)
{
    auto const along = to - from;
    double const square = along.SquareModulus();
    double const share = square > 0 ? std::clamp((point - from).Dot(along) / square, 0.0, 1.0) : 0.0;
    return (point - from - along * share).Modulus();
}

} // namespace

sdkFacetOutlines::sdkFacetOutlines(sdkFacetMesh const & mesh, bool merge)
    : m_mesh(mesh), m_regions(mesh, merge), m_kept(mesh.points().size(), true)
{
    if (!merge) {
        return;
    }
    m_regions.dissolve(unbounded());
    find_corners();
    for (int region = 0; region < m_regions.size(); ++region) {
        straighten(region);
    }
    keep_areas();
    measure_reach();
}

std::vector<int> sdkFacetOutlines::unbounded() const
{
    std::vector<int> regions;
    for (int region = 0; region < m_regions.size(); ++region) {
        if (is_merged(region) && !bounds(region, sdk_facet_loops(m_mesh, m_regions, region))) {
            regions.push_back(region);
        }
    }
    return regions;
}

// True when one line goes round the region and the others round holes, and what they enclose is as large as
// the triangles together.
bool sdkFacetOutlines::bounds(int region, std::vector<sdkFacetLoop> const & loops) const
{
    auto const plane = m_regions.plane(region);
    double enclosed = 0;
    int outer = 0;
    for (auto const & loop : loops) {
        double const doubled = sdk_doubled_area(m_mesh, loop, plane);
        enclosed += doubled / 2;
        outer += doubled > 0 ? 1 : 0;
        if (loop.size() < 3 || doubled == 0) {
            return false;
        }
    }
    double const area = m_regions.area(region);
    return outer == 1 && std::abs(enclosed - area) <= 1.0e-6 * area;
}

void sdkFacetOutlines::find_corners()
{
    std::vector<Corner> corners(m_mesh.points().size());
    for (int triangle = 0; triangle < static_cast<int>(m_mesh.triangles().size()); ++triangle) {
        int const region = m_regions.region(triangle);
        for (int side = 0; side < 3; ++side) {
            int const beyond = m_mesh.neighbour(triangle, side);
            int const other = beyond == none ? none : m_regions.region(beyond);
            if (other != region) {
                int const from = m_mesh.triangle(triangle)[static_cast<std::size_t>(side)];
                corners[static_cast<std::size_t>(from)].add(region, other);
            }
        }
    }
    for (std::size_t point = 0; point < corners.size(); ++point) {
        auto const & corner = corners[point];
        bool const between_merged =
            corner.leaving > 0 && is_merged(corner.left) && (corner.right == none || is_merged(corner.right));
        m_kept[point] = !(between_merged && corner.is_passed());
    }
}

void sdkFacetOutlines::straighten(int region)
{
    if (!is_merged(region)) {
        return;
    }
    for (auto & loop : sdk_facet_loops(m_mesh, m_regions, region)) {
        auto const plane = m_regions.plane(region);
        auto first = std::find_if(loop.begin(), loop.end(), [&](int point) { return kept(point); });
        if (first == loop.end()) {
            // The point that is farthest from any other is a corner.
            first = std::max_element(loop.begin(), loop.end(), [&](int one, int other) {
                return (m_mesh.point(one) - plane.origin).SquareModulus() <
                       (m_mesh.point(other) - plane.origin).SquareModulus();
            });
            keep(*first);
        }
        std::rotate(loop.begin(), first, loop.end());
        loop.push_back(loop.front());
        std::size_t from = 0;
        for (std::size_t to = 1; to < loop.size(); ++to) {
            if (kept(loop[to])) {
                straighten(loop, from, to);
                from = to;
            }
        }
    }
}

// Keeps points of a line between two of its points until none of the others is farther from it than the
// tolerance.
void sdkFacetOutlines::straighten(sdkFacetLoop const & line, std::size_t from, std::size_t to)
{
    std::vector<std::pair<std::size_t, std::size_t>> pieces{{from, to}};
    while (!pieces.empty()) {
        auto const [begin, end] = pieces.back();
        pieces.pop_back();
        double farthest = m_regions.tolerance();
        std::size_t corner = begin;
        for (std::size_t at = begin + 1; at < end; ++at) {
            double const distance = distance_to_segment(m_mesh.point(line[at]), m_mesh.point(line[begin]),
                                                        m_mesh.point(line[end]));
            if (distance > farthest) {
                farthest = distance;
                corner = at;
            }
        }
        if (corner != begin) {
            keep(line[corner]);
            pieces.emplace_back(begin, corner);
            pieces.emplace_back(corner, end);
        }
    }
}

sdkFacetLoop sdkFacetOutlines::straightened(sdkFacetLoop const & loop) const
{
    sdkFacetLoop result;
    std::copy_if(loop.begin(), loop.end(), std::back_inserter(result),
                 [&](int point) { return kept(point); });
    return result;
}

// A region that would not have its area any more gets all its points back, which can only bring its
// neighbours nearer to theirs.
void sdkFacetOutlines::keep_areas()
{
    for (bool changed = true; changed;) {
        changed = false;
        for (int region = 0; region < m_regions.size(); ++region) {
            if (!is_merged(region)) {
                continue;
            }
            auto const loops = sdk_facet_loops(m_mesh, m_regions, region);
            std::vector<sdkFacetLoop> straight;
            bool complete = true;
            for (auto const & loop : loops) {
                straight.push_back(straightened(loop));
                complete = complete && straight.back().size() == loop.size();
            }
            if (!complete && !bounds(region, straight)) {
                changed = true;
                for (auto const & loop : loops) {
                    std::for_each(loop.begin(), loop.end(), [&](int point) { keep(point); });
                }
            }
        }
    }
}

void sdkFacetOutlines::measure_reach()
{
    m_reach.assign(m_mesh.points().size(), 0);
    for (int region = 0; region < m_regions.size(); ++region) {
        if (!is_merged(region)) {
            continue;
        }
        auto const plane = m_regions.plane(region);
        for (auto const triangle : m_regions.triangles(region)) {
            for (auto const point : m_mesh.triangle(triangle)) {
                auto & reach = m_reach[static_cast<std::size_t>(point)];
                reach = std::max(reach, plane.distance(m_mesh.point(point)));
            }
        }
    }
}

std::vector<std::vector<sdkFacetOutlines::Edge>> sdkFacetOutlines::edges(int region) const
{
    std::vector<std::vector<Edge>> result;
    auto loops = sdk_facet_loops(m_mesh, m_regions, region);
    if (loops.size() > 1) {
        auto const plane = m_regions.plane(region);
        std::stable_partition(loops.begin(), loops.end(), [&](sdkFacetLoop const & loop) {
            return sdk_doubled_area(m_mesh, loop, plane) > 0;
        });
    }
    for (auto & loop : loops) {
        std::rotate(loop.begin(),
                    std::find_if(loop.begin(), loop.end(), [&](int point) { return kept(point); }),
                    loop.end());
        loop.push_back(loop.front());
        std::vector<Edge> line;
        std::size_t from = 0;
        for (std::size_t to = 1; to < loop.size(); ++to) {
            if (!kept(loop[to])) {
                continue;
            }
            // Named after the side of a triangle at the end whose point has the lower number.
            auto const number = loop[from] < loop[to] ? sdk_facet_edge(loop[from], loop[from + 1])
                                                      : sdk_facet_edge(loop[to - 1], loop[to]);
            line.push_back({loop[from], loop[to], number});
            from = to;
        }
        result.push_back(std::move(line));
    }
    return result;
}
