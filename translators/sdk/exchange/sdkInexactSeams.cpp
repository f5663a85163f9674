#include "sdk/exchange/sdkInexactSeams.h"

#include "sdk/exchange/sdkDividedFaces.h"
#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/measure/sdkEdgeDeviation.h"

#include <BRepTools.hxx>
#include <BRepTools_Modification.hxx>
#include <BRepTools_Modifier.hxx>
#include <BRep_Tool.hxx>
#include <Geom2d_Curve.hxx>
#include <Geom_Curve.hxx>
#include <Geom_Surface.hxx>
#include <Precision.hxx>
#include <ShapeAnalysis_Surface.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Vertex.hxx>

#include <algorithm>
#include <cmath>

namespace {

constexpr double exact = 1e-3; // in millimetres

double gap_at(TopoDS_Vertex const & vertex, gp_Pnt const & point)
{
    return vertex.IsNull() ? 0 : BRep_Tool::Pnt(vertex).Distance(point);
}

bool misses_its_ends(TopoDS_Edge const & edge, Geom_Curve const & curve, double first, double last)
{
    return gap_at(TopExp::FirstVertex(edge), curve.Value(first)) > exact ||
           gap_at(TopExp::LastVertex(edge), curve.Value(last)) > exact;
}

// How far the curve that the edge has on the face in that orientation is from the edge.
double gap_on(TopoDS_Face const & face, TopoDS_Edge const & edge, Geom_Curve const & curve)
{
    double first = 0;
    double last = 0;
    auto const on_face = BRep_Tool::CurveOnSurface(edge, face, first, last);
    TopLoc_Location location;
    auto const surface = BRep_Tool::Surface(face, location);
    double gap = 0;
    for (double const share : {0.0, 0.5, 1.0}) {
        double const at = first + share * (last - first);
        if (!on_face.IsNull()) {
            auto const place = on_face->Value(at);
            auto const point = surface->Value(place.X(), place.Y()).Transformed(location);
            gap = std::max(gap, point.Distance(curve.Value(at)));
        }
    }
    return gap;
}

bool has_inexact_seam(TopoDS_Face const & face)
{
    for (TopExp_Explorer explorer(face, TopAbs_EDGE); explorer.More(); explorer.Next()) {
        auto const edge = TopoDS::Edge(explorer.Current().Oriented(TopAbs_FORWARD));
        double first = 0;
        double last = 0;
        if (BRep_Tool::Degenerated(edge) || !BRepTools::IsReallyClosed(edge, face)) {
            continue;
        }
        auto const curve = BRep_Tool::Curve(edge, first, last);
        if (!curve.IsNull() &&
            (misses_its_ends(edge, *curve, first, last) || gap_on(face, edge, *curve) > exact ||
             gap_on(face, TopoDS::Edge(edge.Reversed()), *curve) > exact)) {
            return true;
        }
    }
    return false;
}

double nearest(double difference, bool periodic, double period)
{
    return periodic ? std::remainder(difference, period) : difference;
}

// The curve of a seam on its face, moved so that it begins below the begin of the edge.
Handle(Geom2d_Curve) moved_to(TopoDS_Face const & face, TopoDS_Edge const & edge, double & gap)
{
    double first = 0;
    double last = 0;
    auto const on_face = BRep_Tool::CurveOnSurface(edge, face, first, last);
    auto const curve = BRep_Tool::Curve(edge, first, last);
    TopLoc_Location location;
    auto const surface = BRep_Tool::Surface(face, location);
    if (on_face.IsNull() || curve.IsNull()) {
        return {};
    }
    auto const begin = curve->Value(first).Transformed(location.Transformation().Inverted());
    auto const wanted = ShapeAnalysis_Surface(surface).ValueOfUV(begin, Precision::Confusion());
    auto const there = on_face->Value(first);
    gp_Vec2d const move(nearest(wanted.X() - there.X(), surface->IsUPeriodic(),
                                surface->IsUPeriodic() ? surface->UPeriod() : 1),
                        nearest(wanted.Y() - there.Y(), surface->IsVPeriodic(),
                                surface->IsVPeriodic() ? surface->VPeriod() : 1));
    auto const result = Handle(Geom2d_Curve)::DownCast(on_face->Translated(move));
    gap = 0;
    for (double const share : {0.0, 0.5, 1.0}) {
        double const at = first + share * (last - first);
        auto const place = result->Value(at);
        gap = std::max(gap,
                       surface->Value(place.X(), place.Y()).Transformed(location).Distance(curve->Value(at)));
    }
    return result;
}

// Moves the curves of seams on their faces below the seams, where the seams themselves are right.
class Move : public BRepTools_Modification {
public:
    explicit Move(TopoDS_Shape const & shape)
    {
        for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
            auto const forward = TopoDS::Face(face.Current().Oriented(TopAbs_FORWARD));
            for (TopExp_Explorer edge(forward, TopAbs_EDGE); edge.More(); edge.Next()) {
                if (can_be_moved(forward, TopoDS::Edge(edge.Current().Oriented(TopAbs_FORWARD)))) {
                    m_edges.Add(edge.Current());
                }
            }
        }
    }

    bool any() const { return !m_edges.IsEmpty(); }

    Standard_Boolean NewSurface(TopoDS_Face const &, Handle(Geom_Surface) &, TopLoc_Location &,
                                Standard_Real &, Standard_Boolean &, Standard_Boolean &) override
    {
        return Standard_False;
    }
    Standard_Boolean NewCurve(TopoDS_Edge const & edge, Handle(Geom_Curve) & curve,
                              TopLoc_Location & location, Standard_Real & tolerance) override
    {
        double first = 0;
        double last = 0;
        curve = BRep_Tool::Curve(edge, location, first, last);
        tolerance = BRep_Tool::Tolerance(edge);
        return m_edges.Contains(edge);
    }
    Standard_Boolean NewPoint(TopoDS_Vertex const &, gp_Pnt &, Standard_Real &) override
    {
        return Standard_False;
    }
    Standard_Boolean NewCurve2d(TopoDS_Edge const & edge, TopoDS_Face const & face, TopoDS_Edge const &,
                                TopoDS_Face const &, Handle(Geom2d_Curve) & curve,
                                Standard_Real & tolerance) override
    {
        double gap = 0;
        curve = m_edges.Contains(edge) && BRep_Tool::IsClosed(edge, face) ? moved_to(face, edge, gap)
                                                                          : Handle(Geom2d_Curve)();
        tolerance = BRep_Tool::Tolerance(edge);
        return !curve.IsNull();
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

private:
    static bool can_be_moved(TopoDS_Face const & face, TopoDS_Edge const & edge)
    {
        double first = 0;
        double last = 0;
        if (BRep_Tool::Degenerated(edge) || !BRepTools::IsReallyClosed(edge, face)) {
            return false;
        }
        auto const curve = BRep_Tool::Curve(edge, first, last);
        auto const other = TopoDS::Edge(edge.Reversed());
        if (curve.IsNull() || misses_its_ends(edge, *curve, first, last) ||
            (gap_on(face, edge, *curve) <= exact && gap_on(face, other, *curve) <= exact)) {
            return false;
        }
        double gap = 0;
        double other_gap = 0;
        return !moved_to(face, edge, gap).IsNull() && !moved_to(face, other, other_gap).IsNull() &&
               gap <= exact && other_gap <= exact;
    }

    TopTools_MapOfShape m_edges;
};

bool has_inexact_seams(TopoDS_Shape const & shape)
{
    bool any = false;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More() && !any; face.Next()) {
        any = has_inexact_seam(TopoDS::Face(face.Current()));
    }
    return any;
}

// The area of a face between two curves that are off is off as well, so amounts are no measure here.
std::optional<TopoDS_Shape> moved(TopoDS_Shape const & shape, sdkShapeHistory & history)
{
    Handle(Move) const move = new Move(shape);
    if (!move->any()) {
        return std::nullopt;
    }
    BRepTools_Modifier const modifier(shape, move);
    auto const result = modifier.ModifiedShape(shape);
    if (sdk_edge_deviation(result) > sdk_edge_deviation(shape)) {
        return std::nullopt;
    }
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(shape, all);
    for (int at = 1; at <= all.Extent(); ++at) {
        history.replace(all(at), modifier.ModifiedShape(all(at)));
    }
    return result;
}

std::optional<TopoDS_Shape> with_exact_seams(TDF_Label const &, TopoDS_Shape const & shape,
                                             sdkShapeHistory & history)
{
    if (shape.ShapeType() == TopAbs_COMPOUND || !has_inexact_seams(shape)) {
        return std::nullopt;
    }
    if (auto const result = moved(shape, history)) {
        return result;
    }
    return sdk_divide_faces(shape, has_inexact_seam, history);
}

} // namespace

int sdk_mend_inexact_seams(sdkDocument & document)
{
    return static_cast<int>(sdk_edit_parts(document, document.parts(), with_exact_seams).changed);
}
