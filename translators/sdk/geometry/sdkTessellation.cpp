#include "sdk/geometry/sdkTessellation.h"

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Message_ProgressScope.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>

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
    Message_ProgressScope scope(range, nullptr, 1);
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
        BRepMesh_IncrementalMesh const mesher(surfaces, parameters, scope.Next());
    }
    counts.cancelled = scope.UserBreak();
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
