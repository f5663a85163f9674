#include "sdk/geometry/sdkPolylines.h"

#include "sdk/geometry/sdkEdgeRange.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <GCPnts_TangentialDeflection.hxx>
#include <Precision.hxx>
#include <ShapeAnalysis_Curve.hxx>
#include <TopExp.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_XYZ.hxx>

#include <algorithm>
#include <vector>

namespace {

constexpr double largest_turn = 0.5; // between neighbouring segments, so that a coarse circle stays a figure
constexpr int deepest = 16;

double distance_to_segment(gp_XYZ const & point, gp_XYZ const & begin, gp_XYZ const & end)
{
    auto const along = end - begin;
    double const length = along.SquareModulus();
    double const share = length > 0 ? std::clamp((point - begin).Dot(along) / length, 0.0, 1.0) : 0.0;
    return (point - begin - along * share).Modulus();
}

// Appends the parameters inside a stretch at which it must be divided to keep the tolerance.
void divide(BRepAdaptor_Curve const & curve, double begin, double end, double tolerance, int depth,
            std::vector<double> & parameters)
{
    auto const first = curve.Value(begin).XYZ();
    auto const last = curve.Value(end).XYZ();
    double farthest = 0;
    for (double const share : {0.18, 0.34, 0.5, 0.66, 0.82}) {
        auto const point = curve.Value(begin + share * (end - begin)).XYZ();
        farthest = std::max(farthest, distance_to_segment(point, first, last));
    }
    // The points looked at may miss the farthest one by a little.
    if (farthest <= 0.98 * tolerance || depth == deepest) {
        return;
    }
    double const middle = 0.5 * (begin + end);
    divide(curve, begin, middle, tolerance, depth + 1, parameters);
    parameters.push_back(middle);
    divide(curve, middle, end, tolerance, depth + 1, parameters);
}

bool in_a_plane(TopoDS_Edge const & edge)
{
    double first = 0;
    double last = 0;
    auto const curve = BRep_Tool::Curve(edge, first, last);
    gp_XYZ normal;
    return ShapeAnalysis_Curve::IsPlanar(curve, normal, Precision::Confusion());
}

// Replaces edges of one shape and remembers what it has done.
class Polylines {
public:
    explicit Polylines(sdkPolylineTolerances const & tolerances) : m_tolerances(tolerances) {}

    sdkPolylineCounts const & counts() const { return m_counts; }

    std::optional<TopoDS_Shape> edited(TopoDS_Shape const & shape)
    {
        if (shape.ShapeType() != TopAbs_EDGE && shape.ShapeType() != TopAbs_WIRE) {
            return std::nullopt;
        }
        std::vector<TopoDS_Shape> edges;
        bool changed = false;
        if (shape.ShapeType() == TopAbs_EDGE) {
            changed = append(TopoDS::Edge(shape), edges);
        } else {
            for (TopoDS_Iterator member(shape); member.More(); member.Next()) {
                changed = append(TopoDS::Edge(member.Value()), edges) || changed;
            }
        }
        if (!changed) {
            return std::nullopt;
        }
        BRep_Builder builder;
        TopoDS_Wire wire;
        builder.MakeWire(wire);
        for (auto const & edge : edges) {
            builder.Add(wire, edge);
        }
        wire.Closed(BRep_Tool::IsClosed(wire));
        return wire;
    }

private:
    bool append(TopoDS_Edge const & edge, std::vector<TopoDS_Shape> & edges)
    {
        if (!sdk_edge_range(edge)) {
            edges.push_back(edge);
            return false;
        }
        BRepAdaptor_Curve const curve(edge);
        auto segments =
            curve.GetType() == GeomAbs_Line ? std::vector<TopoDS_Shape>() : make_segments(edge, curve);
        if (segments.empty()) {
            edges.push_back(edge);
            return false;
        }
        ++m_counts.curves;
        m_counts.segments += static_cast<std::int64_t>(segments.size());
        if (edge.Orientation() == TopAbs_REVERSED) {
            std::reverse(segments.begin(), segments.end());
            for (auto & segment : segments) {
                segment.Reverse();
            }
        }
        edges.insert(edges.end(), segments.begin(), segments.end());
        return true;
    }

    // In the direction of the curve. Empty when the edge has no two ends or is a single point.
    std::vector<TopoDS_Shape> make_segments(TopoDS_Edge const & edge, BRepAdaptor_Curve const & curve) const
    {
        TopoDS_Vertex begin;
        TopoDS_Vertex end;
        auto const forward = TopoDS::Edge(edge.Oriented(TopAbs_FORWARD));
        TopExp::Vertices(forward, begin, end);
        if (begin.IsNull() || end.IsNull()) {
            return {};
        }
        double const tolerance = in_a_plane(edge) ? m_tolerances.planar : m_tolerances.spatial;
        std::vector<TopoDS_Vertex> vertices{begin};
        for (double const parameter : make_parameters(curve, tolerance)) {
            vertices.push_back(BRepBuilderAPI_MakeVertex(curve.Value(parameter)).Vertex());
        }
        vertices.push_back(end);
        std::vector<TopoDS_Shape> segments;
        for (std::size_t at = 0; at + 1 < vertices.size(); ++at) {
            BRepBuilderAPI_MakeEdge maker(vertices[at], vertices[at + 1]);
            if (!maker.IsDone()) {
                return {};
            }
            segments.push_back(maker.Edge());
        }
        return segments;
    }

    // Those between the ends.
    static std::vector<double> make_parameters(BRepAdaptor_Curve const & curve, double tolerance)
    {
        GCPnts_TangentialDeflection const points(curve, curve.FirstParameter(), curve.LastParameter(),
                                                 largest_turn, tolerance, 3);
        std::vector<double> parameters;
        for (int point = 1; point < points.NbPoints(); ++point) {
            if (point > 1) {
                parameters.push_back(points.Parameter(point));
            }
            divide(curve, points.Parameter(point), points.Parameter(point + 1), tolerance, 0, parameters);
        }
        return parameters;
    }

    sdkPolylineTolerances m_tolerances;
    sdkPolylineCounts m_counts;
};

} // namespace

sdkPolylineCounts sdk_make_polylines(sdkDocument & document, TDF_LabelSequence const & parts,
                                     sdkPolylineTolerances const & tolerances,
                                     Message_ProgressRange const & range)
{
    Polylines polylines(tolerances);
    auto const edit = [&](TDF_Label const &, TopoDS_Shape const & shape, sdkShapeHistory &) {
        return polylines.edited(shape);
    };
    bool const cancelled = sdk_edit_parts(document, parts, edit, range).cancelled;
    auto counts = polylines.counts();
    counts.cancelled = cancelled;
    return counts;
}
