#include "sdk/exchange/sdkTurnedEllipses.h"

#include "sdk/exchange/sdkRepairCheck.h"
#include "sdk/geometry/sdkEdgeRange.h"
#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/geometry/sdkReShapeHistory.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepTools.hxx>
#include <BRepTools_Modifier.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <GeomAdaptor_Curve.hxx>
#include <GeomConvert_ApproxCurve.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Geom_RectangularTrimmedSurface.hxx>
#include <Geom_SurfaceOfLinearExtrusion.hxx>
#include <Geom_SurfaceOfRevolution.hxx>
#include <Geom_TrimmedCurve.hxx>
#include <Precision.hxx>
#include <ShapeBuild_ReShape.hxx>
#include <ShapeCustom_ConvertToBSpline.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>

#include <cmath>
#include <numbers>

namespace {

constexpr double turn = 2 * std::numbers::pi;

bool is_turned(double first, double last)
{
    return std::abs(last - first - turn) < Precision::PConfusion() &&
           std::abs(std::remainder(first, turn)) > Precision::PConfusion();
}

bool is_turned_ellipse(TopoDS_Edge const & edge)
{
    auto const range = sdk_edge_range(edge);
    return range && is_turned(range->first, range->last) && BRep_Tool::SameRange(edge) &&
           BRepAdaptor_Curve(edge).GetType() == GeomAbs_Ellipse;
}

Handle(Geom_SweptSurface) swept_surface(TopoDS_Face const & face, TopLoc_Location & location)
{
    auto surface = BRep_Tool::Surface(face, location);
    if (auto const trimmed = Handle(Geom_RectangularTrimmedSurface)::DownCast(surface); !trimmed.IsNull()) {
        surface = trimmed->BasisSurface();
    }
    return Handle(Geom_SweptSurface)::DownCast(surface);
}

// Where a face has all of the ellipse that makes its surface by moving along a line or about an axis, the
// parameter at which it begins, if it does not begin on the major axis.
std::optional<double> begin_of_turned_ellipse(TopoDS_Face const & face)
{
    TopLoc_Location location;
    auto const surface = swept_surface(face, location);
    if (surface.IsNull() || GeomAdaptor_Curve(surface->BasisCurve()).GetType() != GeomAbs_Ellipse) {
        return std::nullopt;
    }
    double first_u = 0;
    double last_u = 0;
    double first_v = 0;
    double last_v = 0;
    BRepTools::UVBounds(face, first_u, last_u, first_v, last_v);
    bool const along = surface->IsKind(STANDARD_TYPE(Geom_SurfaceOfLinearExtrusion));
    double const first = along ? first_u : first_v;
    return is_turned(first, along ? last_u : last_v) ? std::optional(first) : std::nullopt;
}

// Puts a B-spline with the same parameters in place of such an ellipse, so that no other curve changes.
class Convert : public ShapeCustom_ConvertToBSpline {
public:
    Convert()
    {
        SetExtrusionMode(Standard_True);
        SetRevolutionMode(Standard_True);
    }

    Standard_Boolean NewSurface(TopoDS_Face const & face, Handle(Geom_Surface) & surface,
                                TopLoc_Location & location, Standard_Real & tolerance,
                                Standard_Boolean & wires_reversed, Standard_Boolean & face_reversed) override
    {
        auto const begin = begin_of_turned_ellipse(face);
        if (!begin) {
            return Standard_False;
        }
        auto const swept = swept_surface(face, location);
        Handle(Geom_Curve) const ellipse = new Geom_TrimmedCurve(swept->BasisCurve(), *begin, *begin + turn);
        GeomConvert_ApproxCurve const spline(ellipse, Precision::Confusion(), GeomAbs_C2, 100, 9);
        if (!spline.HasResult()) {
            return Standard_False;
        }
        surface = Handle(Geom_Surface)::DownCast(swept->Copy());
        if (auto const extrusion = Handle(Geom_SurfaceOfLinearExtrusion)::DownCast(surface);
            !extrusion.IsNull()) {
            extrusion->SetBasisCurve(spline.Curve());
        } else if (auto const revolution = Handle(Geom_SurfaceOfRevolution)::DownCast(surface);
                   !revolution.IsNull()) {
            revolution->SetBasisCurve(spline.Curve());
        }
        tolerance = BRep_Tool::Tolerance(face);
        wires_reversed = Standard_False;
        face_reversed = Standard_False;
        return Standard_True;
    }
};

// One of the halves of an edge, with all its curves.
TopoDS_Edge piece(TopoDS_Edge const & edge, TopoDS_Vertex const & begin, double first,
                  TopoDS_Vertex const & end, double last)
{
    BRep_Builder builder;
    auto half = TopoDS::Edge(edge.EmptyCopied());
    builder.Add(half, begin.Oriented(TopAbs_FORWARD));
    builder.Add(half, end.Oriented(TopAbs_REVERSED));
    builder.Range(half, first, last);
    return half;
}

// The toolkit has a service that divides closed edges, but the ranges of some halves on faces are off by a
// turn.
TopoDS_Wire halves(TopoDS_Edge const & edge)
{
    auto const forward = TopoDS::Edge(edge.Oriented(TopAbs_FORWARD).Located(TopLoc_Location()));
    double first = 0;
    double last = 0;
    auto const curve = BRep_Tool::Curve(forward, first, last);
    double const middle = 0.5 * (first + last);
    BRep_Builder builder;
    auto const end = TopExp::FirstVertex(forward);
    TopoDS_Vertex between;
    builder.MakeVertex(between, curve->Value(middle), BRep_Tool::Tolerance(forward));
    TopoDS_Wire wire;
    builder.MakeWire(wire);
    builder.Add(wire, piece(forward, end, first, between, middle));
    builder.Add(wire, piece(forward, between, middle, end, last));
    wire.Closed(Standard_True);
    return wire;
}

// The same curve from its major axis on, for an edge at which nothing else hangs.
TopoDS_Edge begun_anew(TopoDS_Edge const & edge)
{
    auto const forward = TopoDS::Edge(edge.Oriented(TopAbs_FORWARD).Located(TopLoc_Location()));
    double first = 0;
    double last = 0;
    auto curve = BRep_Tool::Curve(forward, first, last);
    if (auto const trimmed = Handle(Geom_TrimmedCurve)::DownCast(curve); !trimmed.IsNull()) {
        curve = trimmed->BasisCurve();
    }
    BRep_Builder builder;
    TopoDS_Vertex begin;
    builder.MakeVertex(begin, curve->Value(0), BRep_Tool::Tolerance(TopExp::FirstVertex(forward)));
    TopoDS_Edge result;
    builder.MakeEdge(result, curve, BRep_Tool::Tolerance(forward));
    builder.Add(result, begin.Oriented(TopAbs_FORWARD));
    builder.Add(result, begin.Oriented(TopAbs_REVERSED));
    builder.Range(result, 0, turn);
    return TopoDS::Edge(result.Located(edge.Location()).Oriented(edge.Orientation()));
}

bool has_turned_ellipse(TopoDS_Shape const & shape)
{
    for (TopExp_Explorer edge(shape, TopAbs_EDGE); edge.More(); edge.Next()) {
        if (is_turned_ellipse(TopoDS::Edge(edge.Current()))) {
            return true;
        }
    }
    return false;
}

bool has_face_on_turned_ellipse(TopoDS_Shape const & shape)
{
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        if (begin_of_turned_ellipse(TopoDS::Face(face.Current()))) {
            return true;
        }
    }
    return false;
}

TopoDS_Shape with_other_surfaces(TopoDS_Shape const & shape, sdkShapeHistory & history)
{
    Handle(Convert) const convert = new Convert;
    BRepTools_Modifier const modifier(shape, convert);
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(shape, all);
    for (int at = 1; at <= all.Extent(); ++at) {
        history.replace(all(at), modifier.ModifiedShape(all(at)));
    }
    return modifier.ModifiedShape(shape);
}

TopoDS_Shape with_divided_edges(TopoDS_Shape const & shape, sdkShapeHistory & history)
{
    Handle(ShapeBuild_ReShape) const context = new ShapeBuild_ReShape;
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(shape, TopAbs_EDGE, edges);
    for (int at = 1; at <= edges.Extent(); ++at) {
        auto const & edge = TopoDS::Edge(edges(at));
        if (is_turned_ellipse(edge)) {
            context->Replace(edge.Oriented(TopAbs_FORWARD), halves(edge).Located(edge.Location()));
        }
    }
    auto const result = context->Apply(shape);
    sdk_remember(shape, context, history);
    return result;
}

std::optional<TopoDS_Shape> described_anew(TopoDS_Shape const & shape, sdkShapeHistory & history)
{
    auto result = shape;
    sdkShapeHistory of_surfaces;
    sdkShapeHistory of_edges;
    if (has_face_on_turned_ellipse(shape)) {
        result = with_other_surfaces(shape, of_surfaces);
    }
    result = with_divided_edges(result, of_edges);
    if (result.IsSame(shape) || !sdk_no_worse(shape, result)) {
        return std::nullopt;
    }
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(shape, all);
    for (int at = 1; at <= all.Extent(); ++at) {
        auto const now = of_edges.now(of_surfaces.now(all(at)));
        if (!now.IsEqual(all(at))) {
            history.replace(all(at), now);
        }
    }
    return result;
}

} // namespace

int sdk_divide_turned_ellipses(sdkDocument & document, Message_ProgressRange const & range)
{
    auto const edit = [](TDF_Label const &, TopoDS_Shape const & shape,
                         sdkShapeHistory & history) -> std::optional<TopoDS_Shape> {
        if (shape.ShapeType() == TopAbs_COMPOUND ||
            (!has_turned_ellipse(shape) && !has_face_on_turned_ellipse(shape))) {
            return std::nullopt;
        }
        if (shape.ShapeType() == TopAbs_EDGE) {
            return begun_anew(TopoDS::Edge(shape));
        }
        if (shape.ShapeType() == TopAbs_WIRE && shape.NbChildren() == 1) {
            BRep_Builder builder;
            TopoDS_Wire wire;
            builder.MakeWire(wire);
            builder.Add(wire, begun_anew(TopoDS::Edge(TopoDS_Iterator(shape).Value())));
            wire.Closed(Standard_True);
            return wire;
        }
        return described_anew(shape, history);
    };
    return static_cast<int>(sdk_edit_parts(document, document.parts(), edit, range).changed);
}
