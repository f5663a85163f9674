#include "sdk/exchange/sdkBrokenSeams.h"

#include "sdk/exchange/sdkDividedFaces.h"
#include "sdk/exchange/sdkRepairCheck.h"
#include "sdk/geometry/sdkReShapeHistory.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Surface.hxx>
#include <Precision.hxx>
#include <ShapeAnalysis_FreeBounds.hxx>
#include <ShapeBuild_ReShape.hxx>
#include <ShapeFix_Face.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_HSequenceOfShape.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>

namespace {

bool has_broken_seam(TopoDS_Face const & face)
{
    TopLoc_Location location;
    auto const surface = BRep_Tool::Surface(face, location);
    if (surface.IsNull()) {
        return false;
    }
    bool poles = false;
    TopTools_MapOfShape seams;
    for (TopExp_Explorer one(face, TopAbs_EDGE); one.More(); one.Next()) {
        auto const & edge = TopoDS::Edge(one.Current());
        if (BRep_Tool::Degenerated(edge)) {
            poles = true;
        } else if (BRepTools::IsReallyClosed(edge, face)) {
            seams.Add(edge);
        }
    }
    bool const both_ways = surface->IsUPeriodic() && surface->IsVPeriodic();
    return both_ways ? seams.Extent() > 2 : poles && seams.Extent() > 1;
}

bool on_sphere(TopoDS_Face const & face)
{
    return BRepAdaptor_Surface(face, Standard_False).GetType() == GeomAbs_Sphere;
}

// The loops of a face without its seams and poles, on a surface of its own: what is repaired in the
// parameters of the old one would change the old face, too.
TopoDS_Face with_openings_only(TopoDS_Face const & face)
{
    Handle(TopTools_HSequenceOfShape) edges = new TopTools_HSequenceOfShape;
    for (TopExp_Explorer one(face, TopAbs_EDGE); one.More(); one.Next()) {
        auto const & edge = TopoDS::Edge(one.Current());
        if (!BRep_Tool::Degenerated(edge) && !BRepTools::IsReallyClosed(edge, face)) {
            edges->Append(edge);
        }
    }
    Handle(TopTools_HSequenceOfShape) loops;
    ShapeAnalysis_FreeBounds::ConnectEdgesToWires(edges, Precision::Confusion(), Standard_True, loops);
    TopLoc_Location location;
    auto const surface = BRep_Tool::Surface(face, location);
    TopoDS_Face result;
    BRep_Builder().MakeFace(result, Handle(Geom_Surface)::DownCast(surface->Copy()), location,
                            BRep_Tool::Tolerance(face));
    for (auto const & loop : *loops) {
        BRep_Builder().Add(result, loop);
    }
    return result;
}

// With the whole sphere as the outer bound of the face, whose seam then lies where the openings are not.
std::optional<TopoDS_Shape> with_whole_spheres(TopoDS_Shape const & shape, sdkShapeHistory & history)
{
    Handle(ShapeBuild_ReShape) const changes = new ShapeBuild_ReShape;
    bool any = false;
    for (TopExp_Explorer one(shape, TopAbs_FACE); one.More(); one.Next()) {
        auto const face = TopoDS::Face(one.Current().Oriented(TopAbs_FORWARD));
        if (!has_broken_seam(face) || BRepAdaptor_Surface(face, Standard_False).GetType() != GeomAbs_Sphere) {
            continue;
        }
        ShapeFix_Face bound(with_openings_only(face));
        bound.SetContext(new ShapeBuild_ReShape);
        bound.SetMaxTolerance(1.0e-3);
        bound.FixAddNaturalBoundMode() = Standard_True;
        bound.SetPrecision(Precision::Confusion());
        bound.Perform();
        if (bound.Status(ShapeExtend_DONE5)) {
            changes->Replace(face, bound.Result());
            any = true;
        }
    }
    if (!any) {
        return std::nullopt;
    }
    auto const result = changes->Apply(shape);
    if (!sdk_no_worse(shape, result)) {
        return std::nullopt;
    }
    sdk_remember(shape, changes, history);
    return result;
}

std::optional<TopoDS_Shape> without_broken_seams(TDF_Label const &, TopoDS_Shape const & shape,
                                                 sdkShapeHistory & history)
{
    if (shape.ShapeType() == TopAbs_COMPOUND) {
        return std::nullopt;
    }
    if (auto result = with_whole_spheres(shape, history)) {
        return result;
    }
    return sdk_divide_faces(
        shape, [](TopoDS_Face const & face) { return has_broken_seam(face) && !on_sphere(face); }, history);
}

} // namespace

int sdk_mend_broken_seams(sdkDocument & document)
{
    return static_cast<int>(sdk_edit_parts(document, document.parts(), without_broken_seams).changed);
}
