#include "sdk/measure/sdkDoubledTriangles.h"

#include "sdk/measure/sdkBodyPairs.h"
#include "sdk/measure/sdkMeshTriangles.h"

#include <BRep_Builder.hxx>
#include <Poly_Triangulation.hxx>
#include <TopoDS_Face.hxx>

#include <algorithm>
#include <vector>

namespace {

struct Mesh {
    std::vector<gp_XYZ> points;
    std::vector<sdkMeshTriangles::Triangle> triangles;
    std::int64_t doubled = 0;
};

Mesh without_doubled(TopoDS_Shape const & shape)
{
    sdkMeshTriangles mesh(sdkTolerances().absolute);
    auto all = mesh.add(shape);
    std::sort(all.begin(), all.end());
    auto const last = std::unique(all.begin(), all.end());
    auto const doubled = all.end() - last;
    all.erase(last, all.end());
    return {mesh.points(), all, doubled};
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
