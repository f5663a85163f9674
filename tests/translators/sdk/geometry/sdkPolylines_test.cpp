#include "sdk/geometry/sdkPolylines.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <BRepTools_WireExplorer.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <GeomAPI_PointsToBSpline.hxx>
#include <Geom_BSplineCurve.hxx>
#include <TColgp_Array1OfPnt.hxx>
#include <TopoDS.hxx>
#include <gp_Circ.hxx>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

TopoDS_Edge circle(double radius)
{
    return BRepBuilderAPI_MakeEdge(gp_Circ(gp::XOY(), radius)).Edge();
}

TopoDS_Edge helix()
{
    TColgp_Array1OfPnt points(1, 40);
    for (int at = 1; at <= 40; ++at) {
        double const angle = 0.3 * at;
        points(at) = gp_Pnt(10 * std::cos(angle), 10 * std::sin(angle), 2 * angle);
    }
    return BRepBuilderAPI_MakeEdge(GeomAPI_PointsToBSpline(points).Curve()).Edge();
}

// The largest distance of points of the curve from the polyline.
double deviation(TopoDS_Edge const & edge, TopoDS_Shape const & polyline)
{
    BRepAdaptor_Curve const curve(edge);
    double farthest = 0;
    constexpr int samples = 500;
    for (int at = 0; at <= samples; ++at) {
        double const share = static_cast<double>(at) / samples;
        double const parameter = curve.FirstParameter() * (1 - share) + curve.LastParameter() * share;
        BRepExtrema_DistShapeShape const distance(BRepBuilderAPI_MakeVertex(curve.Value(parameter)).Vertex(),
                                                  polyline);
        farthest = std::max(farthest, distance.Value());
    }
    return farthest;
}

TopoDS_Shape part_shape(sdkDocument const & document)
{
    return XCAFDoc_ShapeTool::GetShape(document.parts().First());
}

} // namespace

TEST(Polylines, StayWithinTheToleranceOfAPlanarCurve)
{
    for (double const tolerance : {1.0, 0.1, 0.01}) {
        sdkDocument document;
        document.add_shape(circle(10), "Circle");
        auto const counts =
            sdk_make_polylines(document, document.parts(), {.planar = tolerance, .spatial = 1e-6});
        EXPECT_EQ(counts.curves, 1);
        EXPECT_EQ(part_shape(document).ShapeType(), TopAbs_WIRE);
        EXPECT_TRUE(part_shape(document).Closed());
        EXPECT_EQ(sdk_measure(document).edges, counts.segments);
        EXPECT_LE(deviation(circle(10), part_shape(document)), tolerance);
    }
}

TEST(Polylines, HaveMoreSegmentsForASmallerTolerance)
{
    std::vector<std::int64_t> segments;
    for (double const tolerance : {0.01, 0.001}) {
        sdkDocument document;
        document.add_shape(circle(10), "Circle");
        segments.push_back(sdk_make_polylines(document, document.parts(), {.planar = tolerance}).segments);
    }
    EXPECT_GT(segments[1], 2 * segments[0]);
    EXPECT_LT(segments[0], 150);
}

TEST(Polylines, FollowTheOtherToleranceForACurveInSpace)
{
    std::vector<std::int64_t> segments;
    for (double const tolerance : {0.1, 0.001}) {
        sdkDocument document;
        document.add_shape(helix(), "Helix");
        segments.push_back(
            sdk_make_polylines(document, document.parts(), {.planar = 1, .spatial = tolerance}).segments);
        EXPECT_LE(deviation(helix(), part_shape(document)), tolerance);
    }
    EXPECT_GT(segments[1], 2 * segments[0]);
}

TEST(Polylines, KeepStraightEdgesAndTheOrderOfAWire)
{
    sdkDocument document;
    document.add_shape(kit_wire(), "Wire");
    auto const counts = sdk_make_polylines(document, document.parts(), {});
    EXPECT_EQ(counts.curves, 1);
    auto const wire = TopoDS::Wire(part_shape(document));
    std::int64_t in_order = 0;
    for (BRepTools_WireExplorer edge(wire); edge.More(); edge.Next()) {
        EXPECT_EQ(BRepAdaptor_Curve(edge.Current()).GetType(), GeomAbs_Line);
        ++in_order;
    }
    EXPECT_EQ(in_order, counts.segments + 1);
    EXPECT_NEAR(kit_length(wire), 10 + 2.5 * std::numbers::pi, 0.02);
}

TEST(Polylines, LeaveTheEdgesOfFacesAlone)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Cube");
    auto const before = part_shape(document);
    EXPECT_EQ(sdk_make_polylines(document, document.parts(), {}).curves, 0);
    EXPECT_TRUE(part_shape(document).IsEqual(before));
}

TEST(Polylines, FollowTheDirectionOfAReversedEdge)
{
    BRep_Builder builder;
    TopoDS_Wire wire;
    builder.MakeWire(wire);
    auto const arc = BRepBuilderAPI_MakeEdge(gp_Circ(gp::XOY(), 5), 0, 1).Edge();
    builder.Add(wire, arc.Reversed());
    sdkDocument document;
    document.add_shape(wire, "Reversed");
    sdk_make_polylines(document, document.parts(), {.planar = 0.001});
    BRepTools_WireExplorer first(TopoDS::Wire(part_shape(document)));
    auto const start = BRep_Tool::Pnt(first.CurrentVertex());
    EXPECT_NEAR(start.Distance(gp_Pnt(5 * std::cos(1), 5 * std::sin(1), 0)), 0, 1e-9);
}
