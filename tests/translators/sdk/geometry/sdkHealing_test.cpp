#include "sdk/geometry/sdkHealing.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>
#include <gtest/gtest.h>

namespace {

} // namespace

TEST(Healing, LeavesSoundPartsAlone)
{
    sdkDocument document;
    kit_add_assembly(document);
    auto const counts = sdk_heal(document, document.parts(), {});
    EXPECT_EQ(counts.parts, 2);
    EXPECT_EQ(counts.invalid, 0);
    EXPECT_EQ(counts.still_invalid, 0);
    EXPECT_EQ(counts.loose_edges, 0);
    EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-9);
}

TEST(Healing, RepairsAFaceWhoseBoundaryIsTurnedAndKeepsItsColour)
{
    auto const face = kit_inverted_face();
    ASSERT_FALSE(BRepCheck_Analyzer(face).IsValid());
    sdkDocument document;
    auto const label = document.add_shape(kit_compound({face}), "Patch");
    document.colours()->SetColor(document.shapes()->AddSubShape(label, face), kit_red(), XCAFDoc_ColorSurf);
    auto const counts = sdk_heal(document, document.parts(), {});
    EXPECT_EQ(counts.invalid, 1);
    EXPECT_EQ(counts.repaired, 1);
    EXPECT_EQ(counts.still_invalid, 0);
    EXPECT_EQ(counts.details, 0);
    auto const part = document.parts().First();
    EXPECT_TRUE(BRepCheck_Analyzer(XCAFDoc_ShapeTool::GetShape(part)).IsValid());
    EXPECT_NEAR(sdk_measure(document).area, 100, 1e-9);
    EXPECT_EQ(sdkDocument::name(part), "Patch");
    EXPECT_TRUE(kit_colour(document, part).IsEqual(kit_red()));
}

TEST(Healing, TakesARepairBackThatIsNotGoodEnough)
{
    for (bool const good : {false, true}) {
        auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
        auto const edge = TopoDS::Edge(TopExp_Explorer(cylinder, TopAbs_EDGE).Current());
        BRep_Builder().UpdateEdge(edge, 0.1);
        BRep_Builder().SameParameter(edge, Standard_False);
        sdkDocument document;
        auto const part = document.add_shape(cylinder, "Cylinder");
        auto const face = TopExp_Explorer(cylinder, TopAbs_FACE).Current();
        document.colours()->SetColor(document.shapes()->AddSubShape(part, face), kit_red(),
                                     XCAFDoc_ColorSurf);
        TopoDS_Shape judged;
        sdkHealingOptions options;
        options.keep = [&](TopoDS_Shape const & before, TopoDS_Shape const & after) {
            EXPECT_TRUE(before.IsSame(cylinder));
            judged = after;
            return good;
        };
        auto const counts = sdk_heal(document, document.parts(), options);
        ASSERT_FALSE(judged.IsNull());
        EXPECT_EQ(counts.taken_back, good ? 0 : 1);
        EXPECT_EQ(counts.repaired, good ? 1 : 0);
        EXPECT_EQ(counts.details, 0);
        EXPECT_EQ(XCAFDoc_ShapeTool::GetShape(part).IsSame(cylinder), !good);
        EXPECT_EQ(XCAFDoc_ShapeTool::GetShape(part).IsSame(judged), good);
        EXPECT_EQ(BRep_Tool::Tolerance(edge), 0.1) << "the repair has changed what it had to leave alone";
        EXPECT_FALSE(BRep_Tool::SameParameter(edge));
        EXPECT_TRUE(kit_colour(document, part).IsEqual(kit_red()));
    }
}

TEST(Healing, CountsEdgesWhoseToleranceExceedsTheMaximum)
{
    auto const cube = kit_cube(10);
    BRep_Builder const builder;
    builder.UpdateEdge(TopoDS::Edge(TopExp_Explorer(cube, TopAbs_EDGE).Current()), 0.5);
    for (double const maximum : {0.1, 1.0}) {
        sdkDocument document;
        document.add_shape(cube, "Loose");
        auto const counts =
            sdk_heal(document, document.parts(), {.max_tolerance = maximum, .same_parameter = false});
        EXPECT_EQ(counts.loose_edges, maximum < 0.5 ? 1 : 0);
    }
}

TEST(Healing, FitsCurvesInSpaceToTheirSurfacesWhenAsked)
{
    for (bool const wanted : {false, true}) {
        auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
        auto const edge = TopoDS::Edge(TopExp_Explorer(cylinder, TopAbs_EDGE).Current());
        BRep_Builder const builder;
        builder.SameParameter(edge, Standard_False);
        builder.SameRange(edge, Standard_False);
        sdkDocument document;
        document.add_shape(cylinder, "Cylinder");
        sdk_heal(document, document.parts(), {.same_parameter = wanted});
        EXPECT_EQ(sdk_measure(document).faces, 3);
        bool all = true;
        auto const healed = XCAFDoc_ShapeTool::GetShape(document.parts().First());
        for (TopExp_Explorer one(healed, TopAbs_EDGE); one.More(); one.Next()) {
            all = all && BRep_Tool::SameParameter(TopoDS::Edge(one.Current()));
        }
        EXPECT_TRUE(all || !wanted);
    }
}

TEST(Healing, DropsEdgesShorterThanThePrecision)
{
    for (double const precision : {1e-4, 0.1}) {
        BRepBuilderAPI_MakePolygon outline;
        for (auto const & corner : {gp_Pnt(0, 0, 0), gp_Pnt(10, 0, 0), gp_Pnt(10, 10, 0), gp_Pnt(0.05, 10, 0),
                                    gp_Pnt(0, 9.98, 0)}) {
            outline.Add(corner);
        }
        outline.Close();
        sdkDocument document;
        document.add_shape(BRepBuilderAPI_MakeFace(outline.Wire(), Standard_True).Shape(), "Plate");
        auto const counts =
            sdk_heal(document, document.parts(), {.precision = precision, .max_tolerance = 1});
        EXPECT_EQ(counts.repaired, precision < 0.01 ? 0 : 1);
        EXPECT_EQ(sdk_measure(document).edges, precision < 0.01 ? 5 : 4);
        EXPECT_EQ(counts.still_invalid, 0);
    }
}

TEST(Healing, PassesOverMeshes)
{
    sdkDocument document;
    document.add_shape(kit_facet_cube(), "Mesh");
    auto const counts = sdk_heal(document, document.parts(), {});
    EXPECT_EQ(counts.parts, 0);
    EXPECT_EQ(sdk_measure(document).triangles, 12);
}
