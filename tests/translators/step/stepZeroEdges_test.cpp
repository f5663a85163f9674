#include "stepBareFile.h"
#include "stepFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <ShapeBuild_ReShape.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>

#include <numbers>

class StepZeroEdges : public stepFormatTest {};

namespace {

TopoDS_Edge piece(TopoDS_Edge const & edge, TopoDS_Vertex const & begin, double first,
                  TopoDS_Vertex const & end, double last)
{
    BRep_Builder builder;
    auto result = TopoDS::Edge(edge.EmptyCopied());
    builder.Add(result, begin.Oriented(TopAbs_FORWARD));
    builder.Add(result, end.Oriented(TopAbs_REVERSED));
    builder.Range(result, first, last);
    return result;
}

// One of the circles has another edge at its begin, which goes on for so little.
TopoDS_Shape cylinder_with_short_edge(double angle)
{
    auto const shape = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    TopExp_Explorer explorer(shape, TopAbs_EDGE);
    while (!BRep_Tool::IsClosed(explorer.Current())) {
        explorer.Next();
    }
    auto const edge = TopoDS::Edge(explorer.Current().Oriented(TopAbs_FORWARD));
    double first = 0;
    double last = 0;
    auto const curve = BRep_Tool::Curve(edge, first, last);
    auto const end = TopExp::FirstVertex(edge);
    BRep_Builder builder;
    TopoDS_Vertex between;
    builder.MakeVertex(between, curve->Value(first + angle), 1e-7);
    TopoDS_Wire wire;
    builder.MakeWire(wire);
    builder.Add(wire, piece(edge, end, first, between, first + angle));
    builder.Add(wire, piece(edge, between, first + angle, end, last));
    Handle(ShapeBuild_ReShape) const context = new ShapeBuild_ReShape;
    context->Replace(edge, wire);
    return context->Apply(shape);
}

int edges(TopoDS_Shape const & shape)
{
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(shape, TopAbs_EDGE, all);
    return all.Extent();
}

constexpr double volume = 250 * std::numbers::pi;

} // namespace

TEST_F(StepZeroEdges, FoldFacesWhenTheToolkitWritesThem)
{
    auto const shape = cylinder_with_short_edge(1e-9);
    ASSERT_TRUE(BRepCheck_Analyzer(shape).IsValid());
    ASSERT_EQ(edges(shape), 4);
    ASSERT_TRUE(step_bare_write(shape, path("bare.stp")));
    EXPECT_GT(std::abs(sdk_measure(step_bare_read(path("bare.stp"))).volume - volume), 1)
        << "the toolkit has learnt it: sdk_drop_zero_edges is needed no more";
}

TEST_F(StepZeroEdges, AreLeftOut)
{
    for (double const angle : {1e-9, 1e-12, 0.0}) {
        ASSERT_TRUE(write(cylinder_with_short_edge(angle), path("cylinder.stp")));
        EXPECT_TRUE(said().says("1 edges without length were left out"));
        auto const after = step_bare_read(path("cylinder.stp"));
        EXPECT_NEAR(sdk_measure(after).volume, volume, 1e-6) << angle;
        EXPECT_EQ(sdk_measure(after).solids, 1) << angle;
        EXPECT_EQ(edges(after), 3) << angle;
        EXPECT_TRUE(BRepCheck_Analyzer(after).IsValid()) << angle;
    }
}

TEST_F(StepZeroEdges, StayWhereTheyHaveALittleLengthOrAreDegenerated)
{
    ASSERT_TRUE(write(cylinder_with_short_edge(1e-4), path("cylinder.stp")));
    EXPECT_FALSE(said().says("without length"));
    EXPECT_EQ(edges(step_bare_read(path("cylinder.stp"))), 4);
    auto const cone = BRepPrimAPI_MakeCone(5, 0, 10).Shape();
    ASSERT_TRUE(write(cone, path("cone.stp")));
    EXPECT_FALSE(said().says("without length"));
    EXPECT_NEAR(sdk_measure(step_bare_read(path("cone.stp"))).volume, sdk_measure(cone).volume, 1e-6);
}
