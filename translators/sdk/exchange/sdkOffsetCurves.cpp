#include "sdk/exchange/sdkOffsetCurves.h"

#include "sdk/geometry/sdkPartEdit.h"

#include <BRepTools_Modification.hxx>
#include <BRepTools_Modifier.hxx>
#include <BRep_Tool.hxx>
#include <GeomConvert_ApproxCurve.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Geom_OffsetCurve.hxx>
#include <Geom_TrimmedCurve.hxx>
#include <Precision.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>

#include <algorithm>

namespace {

bool has_offset_curve(TopoDS_Edge const & edge)
{
    TopLoc_Location location;
    double first = 0;
    double last = 0;
    auto curve = BRep_Tool::Curve(edge, location, first, last);
    if (auto const trimmed = Handle(Geom_TrimmedCurve)::DownCast(curve); !trimmed.IsNull()) {
        curve = trimmed->BasisCurve();
    }
    return !Handle(Geom_OffsetCurve)::DownCast(curve).IsNull() && !Precision::IsInfinite(first) &&
           !Precision::IsInfinite(last);
}

class Splines : public BRepTools_Modification {
public:
    Standard_Boolean NewCurve(TopoDS_Edge const & edge, Handle(Geom_Curve) & curve,
                              TopLoc_Location & location, Standard_Real & tolerance) override
    {
        if (!has_offset_curve(edge)) {
            return Standard_False;
        }
        double first = 0;
        double last = 0;
        auto const offset = BRep_Tool::Curve(edge, location, first, last);
        GeomConvert_ApproxCurve const spline(new Geom_TrimmedCurve(offset, first, last),
                                             Precision::Confusion(), GeomAbs_C1, 100, 9);
        if (!spline.HasResult()) {
            return Standard_False;
        }
        curve = spline.Curve();
        tolerance = std::max(BRep_Tool::Tolerance(edge), spline.MaxError());
        return Standard_True;
    }

    Standard_Boolean NewSurface(TopoDS_Face const &, Handle(Geom_Surface) &, TopLoc_Location &,
                                Standard_Real &, Standard_Boolean &, Standard_Boolean &) override
    {
        return Standard_False;
    }
    Standard_Boolean NewPoint(TopoDS_Vertex const &, gp_Pnt &, Standard_Real &) override
    {
        return Standard_False;
    }
    Standard_Boolean NewCurve2d(TopoDS_Edge const &, TopoDS_Face const &, TopoDS_Edge const &,
                                TopoDS_Face const &, Handle(Geom2d_Curve) &, Standard_Real &) override
    {
        return Standard_False;
    }
    Standard_Boolean NewParameter(TopoDS_Vertex const &, TopoDS_Edge const &, Standard_Real &,
                                  Standard_Real &) override
    {
        return Standard_False;
    }
    GeomAbs_Shape Continuity(TopoDS_Edge const & edge, TopoDS_Face const & one, TopoDS_Face const & other,
                             TopoDS_Edge const &, TopoDS_Face const &, TopoDS_Face const &) override
    {
        return BRep_Tool::Continuity(edge, one, other);
    }
};

std::optional<TopoDS_Shape> converted(TDF_Label const &, TopoDS_Shape const & shape,
                                      sdkShapeHistory & history)
{
    if (shape.ShapeType() == TopAbs_COMPOUND) {
        return std::nullopt;
    }
    bool any = false;
    for (TopExp_Explorer edge(shape, TopAbs_EDGE); edge.More() && !any; edge.Next()) {
        any = has_offset_curve(TopoDS::Edge(edge.Current()));
    }
    if (!any) {
        return std::nullopt;
    }
    Handle(Splines) const splines = new Splines;
    BRepTools_Modifier const modifier(shape, splines);
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(shape, all);
    for (int at = 1; at <= all.Extent(); ++at) {
        if (auto const now = modifier.ModifiedShape(all(at)); !now.IsSame(all(at))) {
            history.replace(all(at), now);
        }
    }
    return modifier.ModifiedShape(shape);
}

} // namespace

int sdk_convert_offset_curves(sdkDocument & document)
{
    return static_cast<int>(sdk_edit_parts(document, document.parts(), converted).changed);
}
