#include "tqt/tqtKernel.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace {

sdaPoint operator+(sdaPoint const & a, sdaPoint const & b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

sdaPoint operator-(sdaPoint const & a, sdaPoint const & b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

sdaPoint operator*(double factor, sdaPoint const & a)
{
    return {factor * a.x, factor * a.y, factor * a.z};
}

double dot(sdaPoint const & a, sdaPoint const & b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

sdaPoint cross(sdaPoint const & a, sdaPoint const & b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

bool well_formed(sdaTriangleMesh const & mesh)
{
    auto const count = mesh.points.size();
    auto const has_points = [count](std::array<int, 3> const & triangle) {
        return std::all_of(triangle.begin(), triangle.end(), [count](int index) {
            return index >= 0 && static_cast<std::size_t>(index) < count;
        });
    };
    return !mesh.triangles.empty() && std::all_of(mesh.triangles.begin(), mesh.triangles.end(), has_points);
}

bool is_closed(sdaTriangleMesh const & mesh)
{
    std::map<std::pair<int, int>, int> uses;
    for (auto const & triangle : mesh.triangles) {
        for (std::size_t i = 0; i < 3; ++i)
            ++uses[{triangle[i], triangle[(i + 1) % 3]}];
    }
    return std::all_of(uses.begin(), uses.end(), [&uses](auto const & use) {
        auto const & [edge, count] = use;
        return count == 1 && edge.first != edge.second && uses.count({edge.second, edge.first}) == 1;
    });
}

} // namespace

int tqtKernel::measure(sdaTriangleMesh const & mesh, sdaMeshMeasures & measures) const
{
    if (!well_formed(mesh))
        return 0;
    auto const point = [&mesh](int index) { return mesh.points[static_cast<std::size_t>(index)]; };
    // Near the body, so that one far from the origin is measured as well as one at it.
    auto const fixed = point(mesh.triangles.front()[0]);
    sdaMeshMeasures sums;
    sums.low = sums.high = fixed;
    double volume = 0;
    sdaPoint volume_moment, area_moment;
    for (auto const & triangle : mesh.triangles) {
        std::array<sdaPoint, 3> corners;
        for (std::size_t i = 0; i < 3; ++i) {
            auto const corner = point(triangle[i]);
            sums.low = {std::min(sums.low.x, corner.x), std::min(sums.low.y, corner.y),
                        std::min(sums.low.z, corner.z)};
            sums.high = {std::max(sums.high.x, corner.x), std::max(sums.high.y, corner.y),
                         std::max(sums.high.z, corner.z)};
            corners[i] = corner - fixed;
        }
        auto const & [a, b, c] = corners;
        auto const normal = cross(b - a, c - a);
        double const area = std::sqrt(dot(normal, normal)) / 2;
        double const tetrahedron = dot(a, cross(b, c)) / 6;
        sums.area += area;
        area_moment = area_moment + (area / 3) * (a + b + c);
        volume += tetrahedron;
        volume_moment = volume_moment + (tetrahedron / 4) * (a + b + c);
    }
    sums.closed = is_closed(mesh);
    if (sums.closed)
        sums.volume = volume;
    if (sums.volume != 0)
        sums.centroid = fixed + (1 / sums.volume) * volume_moment;
    else if (sums.area != 0)
        sums.centroid = fixed + (1 / sums.area) * area_moment;
    else
        sums.centroid = fixed;
    measures = sums;
    return 1;
}
