#include "sdk/exchange/sdkBrokenSeams.h"

#include "sdk/exchange/sdkDividedFaces.h"

#include <BRepTools.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Surface.hxx>
#include <TopExp_Explorer.hxx>
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
            seams.Add(one.Current());
        }
    }
    bool const both_ways = surface->IsUPeriodic() && surface->IsVPeriodic();
    return both_ways ? seams.Extent() > 2 : poles && seams.Extent() > 1;
}

} // namespace

int sdk_divide_broken_seams(sdkDocument & document)
{
    return static_cast<int>(sdk_edit_parts(document, document.parts(),
                                           [](TDF_Label const &, TopoDS_Shape const & shape,
                                              sdkShapeHistory & history) -> std::optional<TopoDS_Shape> {
                                               if (shape.ShapeType() == TopAbs_COMPOUND) {
                                                   return std::nullopt;
                                               }
                                               return sdk_divide_faces(shape, has_broken_seam, history);
                                           })
                                .changed);
}
