#include "sdk/measure/sdkTriangleByTriangle.h"

#include "sdk/geometry/sdkPointText.h"
#include "sdk/measure/sdkMeshTriangles.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

using Triangles = std::vector<sdkMeshTriangles::Triangle>;

// Relative to the size of the source, and to the coordinates, which have single precision.
constexpr double of_size = 1.0e-6;
constexpr double of_coordinates = 2.0e-7;

double rounding_of(sdkInventory const & source)
{
    auto const extent = source.extent();
    if (extent.IsVoid()) {
        return 0;
    }
    double const reach = std::max(extent.CornerMin().XYZ().Modulus(), extent.CornerMax().XYZ().Modulus());
    return of_size * std::sqrt(extent.SquareExtent()) + of_coordinates * reach;
}

bool flat(sdkMeshTriangles::Triangle const & triangle)
{
    return triangle[0] == triangle[1] || triangle[1] == triangle[2] || triangle[2] == triangle[0];
}

Triangles sorted(sdkInventory const & inventory, sdkMeshTriangles & mesh)
{
    Triangles all;
    for (auto const & body : inventory.bodies) {
        if (body.kind == sdkBodyKind::mesh) {
            auto const its = mesh.add(body.shape);
            std::copy_if(its.begin(), its.end(), std::back_inserter(all),
                         [](auto const & triangle) { return !flat(triangle); });
        }
    }
    std::sort(all.begin(), all.end());
    return all;
}

// A long thin triangle may have corners apart and no area all the same.
void drop_thin(Triangles & triangles, std::vector<gp_XYZ> const & points, double rounding)
{
    std::erase_if(triangles, [&](auto const & triangle) {
        auto const & a = points[static_cast<std::size_t>(triangle[0])];
        auto const along = points[static_cast<std::size_t>(triangle[1])] - a;
        auto const across = points[static_cast<std::size_t>(triangle[2])] - a;
        double const longest = std::max({along.Modulus(), across.Modulus(), (across - along).Modulus()});
        return along.Crossed(across).Modulus() <= 2 * rounding * longest;
    });
}

Triangles without(Triangles const & all, Triangles const & others)
{
    Triangles rest;
    std::set_difference(all.begin(), all.end(), others.begin(), others.end(), std::back_inserter(rest));
    return rest;
}

std::string place_of(Triangles const & triangles, std::vector<gp_XYZ> const & points)
{
    return sdk_point_text(gp_Pnt(points[static_cast<std::size_t>(triangles.front()[0])]));
}

} // namespace

void sdk_compare_triangle_by_triangle(sdkInventory const & source, sdkInventory const & output,
                                      std::vector<sdkFinding> & findings)
{
    if (std::any_of(source.bodies.begin(), source.bodies.end(),
                    [](sdkBody const & body) { return body.kind < sdkBodyKind::mesh; })) {
        return;
    }
    double const rounding = rounding_of(source);
    sdkMeshTriangles mesh(rounding);
    auto const wanted = sorted(source, mesh);
    auto const there = sorted(output, mesh);
    auto missing = without(wanted, there);
    auto others = without(there, wanted);
    drop_thin(missing, mesh.points(), rounding);
    drop_thin(others, mesh.points(), rounding);
    if (!missing.empty()) {
        auto const place = place_of(missing, mesh.points());
        // As many others stand where these were moved to.
        auto const weight = others.size() < missing.size() ? sdkWeight::loss : sdkWeight::difference;
        findings.push_back({weight,
                            "missing-triangle",
                            {},
                            place,
                            static_cast<double>(wanted.size()),
                            static_cast<double>(wanted.size() - missing.size()),
                            sdkText("measure::%d of %d triangles of the source are not in the output, or not "
                                    "in their place; the first is at %s",
                                    missing.size(), wanted.size(), place)});
    } else if (!others.empty()) {
        auto const place = place_of(others, mesh.points());
        findings.push_back(
            {sdkWeight::difference,
             "extra-triangle",
             {},
             place,
             static_cast<double>(wanted.size()),
             static_cast<double>(there.size()),
             sdkText("measure::%d triangles are in the output and not in the source; the first "
                     "is at %s",
                     others.size(), place)});
    }
}
