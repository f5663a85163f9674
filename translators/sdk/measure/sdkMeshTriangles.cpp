#include "sdk/measure/sdkMeshTriangles.h"

#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>

#include <algorithm>
#include <utility>

std::vector<sdkMeshTriangles::Triangle> sdkMeshTriangles::add(TopoDS_Shape const & shape)
{
    std::vector<Triangle> result;
    for (TopExp_Explorer one(shape, TopAbs_FACE); one.More(); one.Next()) {
        TopLoc_Location location;
        auto const & face = TopoDS::Face(one.Current());
        auto const & triangles = BRep_Tool::Triangulation(face, location);
        if (triangles.IsNull()) {
            continue;
        }
        auto const place = location.Transformation();
        bool const turned = (face.Orientation() == TopAbs_REVERSED) != place.IsNegative();
        std::vector<int> numbers;
        for (int node = 1; node <= triangles->NbNodes(); ++node) {
            numbers.push_back(m_points.add(triangles->Node(node).Transformed(place).XYZ()));
        }
        for (int number = 1; number <= triangles->NbTriangles(); ++number) {
            Triangle nodes{};
            triangles->Triangle(number).Get(nodes[0], nodes[1], nodes[2]);
            if (turned) {
                std::swap(nodes[1], nodes[2]);
            }
            Triangle corners{};
            std::transform(nodes.begin(), nodes.end(), corners.begin(),
                           [&](int node) { return numbers[static_cast<std::size_t>(node - 1)]; });
            std::rotate(corners.begin(), std::min_element(corners.begin(), corners.end()), corners.end());
            result.push_back(corners);
        }
    }
    return result;
}
