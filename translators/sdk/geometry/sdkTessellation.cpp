#include "sdk/geometry/sdkTessellation.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Message_ProgressScope.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>

#include <algorithm>
#include <cmath>

namespace {

constexpr int attempts = 4;

// How far the surface lies from the planes of the triangles, looked at in the middle of each.
double deviation(TopTools_IndexedMapOfShape const & faces)
{
    double farthest = 0;
    for (int at = 1; at <= faces.Extent(); ++at) {
        TopLoc_Location location;
        auto const & face = TopoDS::Face(faces(at));
        auto const & mesh = BRep_Tool::Triangulation(face, location);
        BRepAdaptor_Surface surface;
        if (mesh.IsNull() || !mesh->HasUVNodes() || BRep_Tool::Surface(face, location).IsNull()) {
            continue;
        }
        surface.Initialize(TopoDS::Face(face.Located(TopLoc_Location())), Standard_False);
        if (surface.GetType() == GeomAbs_Plane) {
            continue;
        }
        for (int number = 1; number <= mesh->NbTriangles(); ++number) {
            int a = 0;
            int b = 0;
            int c = 0;
            mesh->Triangle(number).Get(a, b, c);
            auto const middle = (mesh->UVNode(a).XY() + mesh->UVNode(b).XY() + mesh->UVNode(c).XY()) / 3;
            auto const origin = mesh->Node(a).XYZ();
            auto const normal = (mesh->Node(b).XYZ() - origin).Crossed(mesh->Node(c).XYZ() - origin);
            double const length = normal.Modulus();
            if (length > gp::Resolution()) {
                auto const offset = surface.Value(middle.X(), middle.Y()).XYZ() - origin;
                farthest = std::max(farthest, std::abs(offset.Dot(normal)) / length);
            }
        }
    }
    return farthest;
}

sdkTessellationCounts count(TopTools_IndexedMapOfShape const & faces)
{
    sdkTessellationCounts counts;
    TopLoc_Location location;
    for (int at = 1; at <= faces.Extent(); ++at) {
        auto const & face = faces(at);
        auto const & triangles = BRep_Tool::Triangulation(TopoDS::Face(face), location);
        if (triangles.IsNull() || triangles->NbTriangles() == 0) {
            ++counts.failed;
        } else {
            ++counts.faces;
            counts.triangles += triangles->NbTriangles();
        }
    }
    return counts;
}

} // namespace

sdkTessellationCounts & sdkTessellationCounts::operator+=(sdkTessellationCounts const & other)
{
    faces += other.faces;
    triangles += other.triangles;
    failed += other.failed;
    cancelled = cancelled || other.cancelled;
    return *this;
}

sdkTessellationCounts sdk_tessellate(TopoDS_Shape const & shape, sdkTessellationTolerances const & tolerances,
                                     Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, attempts);
    sdkTessellationCounts counts;
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);

    BRep_Builder builder;
    TopoDS_Compound surfaces;
    builder.MakeCompound(surfaces);
    bool any = false;
    TopLoc_Location location;
    for (int at = 1; at <= faces.Extent(); ++at) {
        auto const & face = faces(at);
        if (!BRep_Tool::Surface(TopoDS::Face(face), location).IsNull()) {
            builder.Add(surfaces, face);
            any = true;
        }
    }
    if (any) {
        IMeshTools_Parameters parameters;
        parameters.Deflection = tolerances.linear;
        parameters.Angle = tolerances.angular;
        // The mesher looks at few points of each triangle, and on round faces goes astray up to twice as far.
        for (int attempt = 0; attempt < attempts && !scope.UserBreak(); ++attempt) {
            BRepMesh_IncrementalMesh const mesher(surfaces, parameters, scope.Next());
            double const farthest = deviation(faces);
            if (farthest <= tolerances.linear) {
                break;
            }
            parameters.Deflection *= std::max(0.3, 0.9 * tolerances.linear / farthest);
        }
    }
    counts = count(faces);
    counts.cancelled = scope.UserBreak();
    return counts;
}

sdkTessellationCounts sdk_count_triangles(sdkDocument const & document)
{
    sdkTessellationCounts counts;
    for (auto const & part : document.parts()) {
        TopTools_IndexedMapOfShape faces;
        TopExp::MapShapes(XCAFDoc_ShapeTool::GetShape(part), TopAbs_FACE, faces);
        counts += count(faces);
    }
    return counts;
}

sdkTessellationCounts sdk_tessellate(sdkDocument const & document,
                                     sdkTessellationTolerances const & tolerances,
                                     Message_ProgressRange const & range)
{
    sdkTessellationCounts counts;
    auto const parts = document.parts();
    Message_ProgressScope scope(range, nullptr, parts.Length());
    for (auto const & part : parts) {
        counts += sdk_tessellate(XCAFDoc_ShapeTool::GetShape(part), tolerances, scope.Next());
        if (counts.cancelled) {
            break;
        }
    }
    return counts;
}
