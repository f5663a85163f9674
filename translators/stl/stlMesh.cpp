#include "stl/stlMesh.h"

#include <algorithm>
#include <cmath>
#include <utility>

gp_XYZ stl_area_vector(stlCorners const & corners)
{
    return (corners[1] - corners[0]).Crossed(corners[2] - corners[0]);
}

double stl_height(stlCorners const & corners)
{
    double const longest = std::max({(corners[1] - corners[0]).Modulus(), (corners[2] - corners[1]).Modulus(),
                                     (corners[0] - corners[2]).Modulus()});
    return longest > 0 ? stl_area_vector(corners).Modulus() / longest : 0;
}

double stl_reach(stlCorners const & corners)
{
    double reach = 0;
    for (auto const & corner : corners) {
        reach = std::max({reach, std::abs(corner.X()), std::abs(corner.Y()), std::abs(corner.Z())});
    }
    return reach;
}

stlMesh::stlMesh(std::string name, double tolerance, std::size_t expected)
    : m_name(std::move(name)), m_merger(tolerance, expected / 2)
{
    m_triangles.reserve(expected);
}

void stlMesh::add(stlCorners const & corners, gp_XYZ const & normal)
{
    std::array<int, 3> numbers{};
    for (std::size_t corner = 0; corner < 3; ++corner) {
        numbers[corner] = m_merger.add(corners[corner]);
    }
    auto const & points = m_merger.points();
    auto const area = stl_area_vector({points[static_cast<std::size_t>(numbers[0])],
                                       points[static_cast<std::size_t>(numbers[1])],
                                       points[static_cast<std::size_t>(numbers[2])]});
    if (area.SquareModulus() == 0) {
        ++m_dropped;
        return;
    }
    if (area.Dot(normal) < 0) {
        ++m_turned;
    }
    m_triangles.push_back(numbers);
}

Handle(Poly_Triangulation) stlMesh::make_triangulation() const
{
    auto const & points = m_merger.points();
    Handle(Poly_Triangulation) const mesh = new Poly_Triangulation(
        static_cast<int>(points.size()), static_cast<int>(m_triangles.size()), Standard_False);
    for (std::size_t node = 0; node < points.size(); ++node) {
        mesh->SetNode(static_cast<int>(node) + 1, gp_Pnt(points[node]));
    }
    for (std::size_t at = 0; at < m_triangles.size(); ++at) {
        auto const & [a, b, c] = m_triangles[at];
        mesh->SetTriangle(static_cast<int>(at) + 1, Poly_Triangle(a + 1, b + 1, c + 1));
    }
    return mesh;
}
