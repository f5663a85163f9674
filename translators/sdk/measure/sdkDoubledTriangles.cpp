#include "sdk/measure/sdkDoubledTriangles.h"

#include "sdk/geometry/sdkVertexMerger.h"
#include "sdk/measure/sdkBodyPairs.h"

#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

using Corners = std::array<int, 3>;

struct Mesh {
    std::vector<gp_XYZ> points;
    std::vector<Corners> triangles;
    std::int64_t doubled = 0;
};

Mesh without_doubled(TopoDS_Shape const & shape)
{
    Mesh mesh;
    sdkVertexMerger merger(sdkTolerances().absolute, 0);
    for (TopExp_Explorer one(shape, TopAbs_FACE); one.More(); one.Next()) {
        TopLoc_Location location;
        auto const & face = TopoDS::Face(one.Current());
        auto const & triangles = BRep_Tool::Triangulation(face, location);
        if (triangles.IsNull()) {
            continue;
        }
        auto const place = location.Transformation();
        bool const turned = (face.Orientation() == TopAbs_REVERSED) != place.IsNegative();
        for (int number = 1; number <= triangles->NbTriangles(); ++number) {
            Corners nodes{};
            triangles->Triangle(number).Get(nodes[0], nodes[1], nodes[2]);
            if (turned) {
                std::swap(nodes[1], nodes[2]);
            }
            Corners corners{};
            std::transform(nodes.begin(), nodes.end(), corners.begin(), [&](int node) {
                return merger.add(triangles->Node(node).Transformed(place).XYZ());
            });
            // Wherever it begins.
            std::rotate(corners.begin(), std::min_element(corners.begin(), corners.end()), corners.end());
            mesh.triangles.push_back(corners);
        }
    }
    auto & all = mesh.triangles;
    std::sort(all.begin(), all.end());
    auto const last = std::unique(all.begin(), all.end());
    mesh.doubled = all.end() - last;
    all.erase(last, all.end());
    mesh.points = merger.points();
    return mesh;
}

TopoDS_Face face_of(Mesh const & mesh)
{
    Handle(Poly_Triangulation) const triangles = new Poly_Triangulation(
        static_cast<int>(mesh.points.size()), static_cast<int>(mesh.triangles.size()), Standard_False);
    for (int at = 1; at <= triangles->NbNodes(); ++at) {
        triangles->SetNode(at, gp_Pnt(mesh.points[static_cast<std::size_t>(at - 1)]));
    }
    for (int at = 1; at <= triangles->NbTriangles(); ++at) {
        auto const & [a, b, c] = mesh.triangles[static_cast<std::size_t>(at - 1)];
        triangles->SetTriangle(at, {a + 1, b + 1, c + 1});
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, triangles);
    return face;
}

} // namespace

sdkDoubledTriangles sdk_take_triangles_once(sdkInventory const & inventory)
{
    sdkDoubledTriangles result{.once = inventory};
    for (auto & body : result.once.bodies) {
        if (body.kind != sdkBodyKind::mesh || body.shape.IsNull()) {
            continue;
        }
        auto const mesh = without_doubled(body.shape);
        if (mesh.doubled > 0) {
            result.triangles += mesh.doubled;
            body.shape = face_of(mesh);
            body.measure = sdk_measure_body(body.shape, sdkMeasureLevel::full);
        }
    }
    return result;
}
