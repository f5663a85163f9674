#include "sdk/geometry/sdkEntityFilter.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>
#include <gtest/gtest.h>

namespace {

constexpr sdkEntityKinds only_surfaces{.wireframe = false, .surfaces = true};
constexpr sdkEntityKinds only_wireframe{.wireframe = true, .surfaces = false};

TopoDS_Shape moved(TopoDS_Shape const & shape, double x)
{
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(x, 0, 0));
    return shape.Moved(TopLoc_Location(shift));
}

TopoDS_Shape point()
{
    return BRepBuilderAPI_MakeVertex(gp_Pnt(1, 2, 3)).Vertex();
}

TopoDS_Shape first_face(TopoDS_Shape const & shape)
{
    return TopExp_Explorer(shape, TopAbs_FACE).Current();
}

} // namespace

TEST(EntityFilter, DropsFreeCurvesAndPointsAndKeepsTheEdgesOfFaces)
{
    sdkDocument document;
    document.add_shape(kit_compound({kit_cube(10), kit_wire(), kit_compound({point()})}), "Mixed");
    auto const counts = sdk_filter_entities(document, document.parts(), only_surfaces);
    EXPECT_EQ(counts.dropped.curves, 2);
    EXPECT_EQ(counts.dropped.points, 1);
    EXPECT_EQ(counts.dropped.faces, 0);
    EXPECT_EQ(counts.parts, 0);
    auto const measures = sdk_measure(document);
    EXPECT_EQ(measures.free_edges, 0);
    EXPECT_EQ(measures.edges, 12);
    EXPECT_NEAR(measures.volume, 1000, 1e-9);
}

TEST(EntityFilter, DropsSolidsShellsAndFacesAndKeepsFreeCurvesAndPoints)
{
    sdkDocument document;
    document.add_shape(kit_compound({kit_cube(10), first_face(kit_cube(5)), kit_wire(), point()}), "Mixed");
    auto const counts = sdk_filter_entities(document, document.parts(), only_wireframe);
    EXPECT_EQ(counts.dropped.faces, 7);
    EXPECT_EQ(counts.dropped.solids, 1);
    EXPECT_EQ(counts.dropped.curves, 0);
    auto const left = document.count_entities();
    EXPECT_EQ(left.faces, 0);
    EXPECT_EQ(left.curves, 2);
    EXPECT_EQ(left.points, 1);
}

TEST(EntityFilter, LeavesNothingWhenBothKindsAreTurnedOff)
{
    sdkDocument document;
    document.add_shape(kit_compound({kit_cube(10), kit_wire()}), "Mixed");
    auto const counts =
        sdk_filter_entities(document, document.parts(), {.wireframe = false, .surfaces = false});
    EXPECT_EQ(counts.parts, 1);
    EXPECT_TRUE(document.empty());
}

TEST(EntityFilter, ChangesNothingWhenBothKindsAreKept)
{
    sdkDocument document;
    auto const label = document.add_shape(kit_compound({kit_cube(10), kit_wire()}), "Mixed");
    auto const before = XCAFDoc_ShapeTool::GetShape(label);
    sdk_filter_entities(document, document.parts(), {});
    EXPECT_TRUE(XCAFDoc_ShapeTool::GetShape(label).IsEqual(before));
}

TEST(EntityFilter, RemovesPartsThatBecameEmptyFromTheirAssemblies)
{
    sdkDocument document;
    kit_add_assembly(document);
    auto const curve = document.add_shape(kit_wire(), "Sketch");
    auto const assembly = document.free_shapes().First();
    document.shapes()->AddComponent(assembly, curve, TopLoc_Location());
    document.shapes()->UpdateAssemblies();
    auto const counts = sdk_filter_entities(document, document.parts(), only_surfaces);
    EXPECT_EQ(counts.parts, 1);
    EXPECT_EQ(document.parts().Length(), 2);
    EXPECT_EQ(XCAFDoc_ShapeTool::NbComponents(assembly), 3);
    EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-9);
    EXPECT_EQ(sdk_measure(document).free_edges, 0);
}

TEST(EntityFilter, RemovesAnAssemblyOfWhichNothingIsLeft)
{
    sdkDocument document;
    kit_add_assembly(document);
    auto const counts = sdk_filter_entities(document, document.parts(), only_wireframe);
    EXPECT_EQ(counts.parts, 2);
    EXPECT_EQ(counts.dropped.faces, 12);
    EXPECT_TRUE(document.empty());
}

TEST(EntityFilter, KeepsNamesColoursAndLayersOfWhatRemains)
{
    sdkDocument document;
    auto const cube = kit_cube(10);
    auto const face = first_face(cube);
    auto const label = document.add_shape(kit_compound({cube, kit_wire()}), "Mixed");
    document.colours()->SetColor(label, kit_red(), XCAFDoc_ColorSurf);
    document.layers()->SetLayer(label, TCollection_ExtendedString("Upper"));
    auto const detail = document.shapes()->AddSubShape(label, face);
    sdkDocument::set_name(detail, "Top");
    document.colours()->SetColor(detail, kit_blue(), XCAFDoc_ColorSurf);

    sdk_filter_entities(document, document.parts(), only_surfaces);

    auto const part = document.parts().First();
    EXPECT_EQ(sdkDocument::name(part), "Mixed");
    Quantity_Color colour;
    ASSERT_TRUE(document.colours()->GetColor(part, XCAFDoc_ColorSurf, colour));
    EXPECT_TRUE(colour.IsEqual(kit_red()));
    EXPECT_TRUE(document.layers()->IsSet(part, TCollection_ExtendedString("Upper")));
    TDF_LabelSequence details;
    XCAFDoc_ShapeTool::GetSubShapes(part, details);
    ASSERT_EQ(details.Length(), 1);
    EXPECT_EQ(sdkDocument::name(details.First()), "Top");
    EXPECT_TRUE(XCAFDoc_ShapeTool::GetShape(details.First()).IsSame(face));
    ASSERT_TRUE(document.colours()->GetColor(details.First(), XCAFDoc_ColorSurf, colour));
    EXPECT_TRUE(colour.IsEqual(kit_blue()));
}

TEST(EntityFilter, ForgetsTheDetailsOfWhatIsGone)
{
    sdkDocument document;
    auto const wire = kit_wire();
    auto const label = document.add_shape(kit_compound({kit_cube(10), wire}), "Mixed");
    auto const detail = document.shapes()->AddSubShape(label, TopExp_Explorer(wire, TopAbs_EDGE).Current());
    document.colours()->SetColor(detail, kit_blue(), XCAFDoc_ColorCurv);
    sdk_filter_entities(document, document.parts(), only_surfaces);
    TDF_LabelSequence details;
    XCAFDoc_ShapeTool::GetSubShapes(document.parts().First(), details);
    EXPECT_TRUE(details.IsEmpty());
}

TEST(EntityFilter, KeepsThePlacesOfMembers)
{
    auto const inner = kit_compound({moved(kit_cube(10), 5), kit_wire()});
    sdkDocument document;
    document.add_shape(kit_compound({moved(inner, 100)}), "Nested");
    sdk_filter_entities(document, document.parts(), only_surfaces);
    auto const box = sdk_measure(document).box;
    EXPECT_NEAR(box.CornerMin().X(), 105, 1e-6);
    EXPECT_NEAR(box.CornerMax().X(), 115, 1e-6);
}

TEST(EntityFilter, LeavesPartsAloneThatItWasNotGiven)
{
    sdkDocument document;
    document.add_shape(kit_wire(), "Old");
    TDF_LabelSequence fresh;
    fresh.Append(document.add_shape(kit_wire(), "New"));
    EXPECT_EQ(sdk_filter_entities(document, fresh, only_surfaces).parts, 1);
    ASSERT_EQ(document.parts().Length(), 1);
    EXPECT_EQ(sdkDocument::name(document.parts().First()), "Old");
}

TEST(EntityFilter, FiltersAShapeThatIsInNoDocument)
{
    sdkEntityCount dropped;
    auto const kept = sdk_filter_shape(kit_compound({kit_cube(10), kit_wire()}), only_wireframe, dropped);
    EXPECT_EQ(dropped.faces, 6);
    EXPECT_EQ(sdk_count_entities(kept).curves, 2);
    EXPECT_TRUE(sdk_filter_shape(kit_wire(), only_surfaces, dropped).IsNull());
    EXPECT_EQ(dropped.curves, 2);
}
