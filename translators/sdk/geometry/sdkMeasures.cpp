#include "sdk/geometry/sdkMeasures.h"

#include <BRepBndLib.hxx>
#include <BRepGProp.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>

#include <utility>

namespace {

std::int64_t count(TopoDS_Shape const & shape, TopAbs_ShapeEnum kind)
{
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(shape, kind, all);
    return all.Extent();
}

// The toolkit's exact boxes need surfaces, so meshes are added by their points.
Bnd_Box box_of(TopoDS_Shape const & shape)
{
    Bnd_Box box;
    for (TopExp_Explorer explorer(shape, TopAbs_FACE); explorer.More(); explorer.Next()) {
        auto const & face = TopoDS::Face(explorer.Current());
        TopLoc_Location location;
        if (!BRep_Tool::Surface(face, location).IsNull()) {
            BRepBndLib::AddOptimal(face, box, Standard_False, Standard_False);
            continue;
        }
        auto const & mesh = BRep_Tool::Triangulation(face, location);
        for (int node = 1; !mesh.IsNull() && node <= mesh->NbNodes(); ++node) {
            box.Add(mesh->Node(node).Transformed(location.Transformation()));
        }
    }
    for (auto const & [kind, bounded] :
         {std::pair(TopAbs_EDGE, TopAbs_FACE), std::pair(TopAbs_VERTEX, TopAbs_EDGE)}) {
        for (TopExp_Explorer one(shape, kind, bounded); one.More(); one.Next()) {
            BRepBndLib::AddOptimal(one.Current(), box, Standard_False, Standard_False);
        }
    }
    return box;
}

} // namespace

sdkMeasures sdk_measure(TopoDS_Shape const & shape)
{
    sdkMeasures measures;
    if (shape.IsNull()) {
        return measures;
    }
    GProp_GProps volume;
    BRepGProp::VolumeProperties(shape, volume);
    measures.volume = volume.Mass();
    GProp_GProps area;
    BRepGProp::SurfaceProperties(shape, area);
    measures.area = area.Mass();
    measures.box = box_of(shape);
    measures.solids = count(shape, TopAbs_SOLID);
    measures.shells = count(shape, TopAbs_SHELL);
    measures.edges = count(shape, TopAbs_EDGE);
    measures.vertices = count(shape, TopAbs_VERTEX);
    TopTools_MapOfShape free_edges;
    for (TopExp_Explorer edge(shape, TopAbs_EDGE, TopAbs_FACE); edge.More(); edge.Next()) {
        free_edges.Add(edge.Current());
    }
    measures.free_edges = free_edges.Extent();
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    measures.faces = faces.Extent();
    for (int at = 1; at <= faces.Extent(); ++at) {
        auto const & face = faces(at);
        TopLoc_Location location;
        auto const & mesh = BRep_Tool::Triangulation(TopoDS::Face(face), location);
        measures.triangles += mesh.IsNull() ? 0 : mesh->NbTriangles();
    }
    return measures;
}

sdkMeasures sdk_measure(sdkDocument const & document)
{
    return sdk_measure(sdk_whole_shape(document));
}

TopoDS_Shape sdk_whole_shape(sdkDocument const & document)
{
    auto const labels = document.free_shapes();
    if (labels.IsEmpty()) {
        return {};
    }
    if (labels.Length() == 1) {
        return XCAFDoc_ShapeTool::GetShape(labels.First());
    }
    BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (auto const & label : labels) {
        builder.Add(compound, XCAFDoc_ShapeTool::GetShape(label));
    }
    return compound;
}
