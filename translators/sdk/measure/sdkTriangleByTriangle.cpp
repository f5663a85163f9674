#include "sdk/measure/sdkTriangleByTriangle.h"

#include "sdk/geometry/sdkPointText.h"
#include "sdk/measure/sdkMeshTriangles.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>

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

// Points that lie as close together as rounding goes are taken for one another here and not there. What is
// the same triangle all the same leaves both lists.
class PairingOff {
public:
    PairingOff(std::vector<gp_XYZ> const & points, double rounding) : m_points(points), m_near(3 * rounding)
    {
    }

    void operator()(Triangles & missing, Triangles & others) const
    {
        std::multimap<double, Triangle> waiting;
        for (auto const & one : others) {
            waiting.emplace(middle(one), one);
        }
        std::erase_if(missing, [&](Triangle const & one) {
            auto const begin = waiting.lower_bound(middle(one) - m_near);
            auto const end = waiting.upper_bound(middle(one) + m_near);
            auto const found =
                std::find_if(begin, end, [&](auto const & other) { return same(one, other.second); });
            if (found == end) {
                return false;
            }
            waiting.erase(found);
            return true;
        });
        others.clear();
        std::transform(waiting.begin(), waiting.end(), std::back_inserter(others),
                       [](auto const & other) { return other.second; });
    }

private:
    using Triangle = sdkMeshTriangles::Triangle;

    gp_XYZ const & point(int number) const { return m_points[static_cast<std::size_t>(number)]; }

    double middle(Triangle const & one) const
    {
        return (point(one[0]).X() + point(one[1]).X() + point(one[2]).X()) / 3;
    }

    bool same(Triangle const & a, Triangle const & b) const
    {
        for (std::size_t turn = 0; turn < 3; ++turn) {
            bool near = true;
            for (std::size_t at = 0; at < 3; ++at) {
                near = near && (point(a[at]) - point(b[(at + turn) % 3])).Modulus() <= m_near;
            }
            if (near) {
                return true;
            }
        }
        return false;
    }

    std::vector<gp_XYZ> const & m_points;
    double m_near;
};

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
    PairingOff(mesh.points(), rounding)(missing, others);
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
