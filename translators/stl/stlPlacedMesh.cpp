#include "stl/stlPlacedMesh.h"

#include <BRep_Tool.hxx>
#include <TopLoc_Location.hxx>

#include <algorithm>
#include <cmath>
#include <utility>

stlPlacedMesh::stlPlacedMesh(TopoDS_Face const & face, double millimetres_per_unit, bool single)
    : m_factor(1 / millimetres_per_unit), m_single(single)
{
    TopLoc_Location location;
    m_mesh = BRep_Tool::Triangulation(face, location);
    m_place = location.Transformation();
    m_turned = (face.Orientation() == TopAbs_REVERSED) != m_place.IsNegative();
}

stlCorners stlPlacedMesh::corners(int number) const
{
    std::array<int, 3> nodes{};
    m_mesh->Triangle(number).Get(nodes[0], nodes[1], nodes[2]);
    if (m_turned) {
        std::swap(nodes[1], nodes[2]);
    }
    stlCorners corners;
    for (std::size_t corner = 0; corner < 3; ++corner) {
        auto point = node(nodes[corner]);
        for (int axis = 1; axis <= 3; ++axis) {
            if (std::abs(point.Coord(axis)) < m_zero) {
                point.SetCoord(axis, 0);
            }
        }
        if (m_single) {
            point.SetCoord(static_cast<float>(point.X()), static_cast<float>(point.Y()),
                           static_cast<float>(point.Z()));
        }
        corners[corner] = point;
    }
    return corners;
}

gp_XYZ stlPlacedMesh::node(int number) const
{
    auto point = m_mesh->Node(number).XYZ();
    m_place.Transforms(point);
    return point * m_factor;
}

double stlPlacedMesh::reach() const
{
    double reach = 0;
    for (int number = 1; number <= m_mesh->NbNodes(); ++number) {
        auto const point = node(number);
        reach = std::max({reach, std::abs(point.X()), std::abs(point.Y()), std::abs(point.Z())});
    }
    return reach;
}
