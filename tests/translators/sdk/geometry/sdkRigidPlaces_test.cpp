#include "sdk/geometry/sdkRigidPlaces.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/sdkPlaced.h"
#include "translators/kit/kitParts.h"

#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>
#include <gp_Ax2.hxx>
#include <gtest/gtest.h>

namespace {

TopLoc_Location shift(double x)
{
    gp_Trsf transformation;
    transformation.SetTranslation(gp_Vec(x, 0, 0));
    return TopLoc_Location(transformation);
}

TopLoc_Location scale(double factor)
{
    gp_Trsf transformation;
    transformation.SetScale(gp_Pnt(), factor);
    return TopLoc_Location(transformation);
}

TopLoc_Location mirror(double x)
{
    gp_Trsf transformation;
    transformation.SetMirror(gp_Ax2(gp_Pnt(x, 0, 0), gp::DX()));
    return TopLoc_Location(transformation);
}

// A cube with a red face, once plain, once in double size, twice mirrored, and all of these a second time in
// a sub-assembly that is scaled by three.
void fill(sdkDocument & document)
{
    auto const cube = document.add_shape(kit_cube(10), "Cube");
    auto const face = document.shapes()->AddSubShape(
        cube, TopExp_Explorer(XCAFDoc_ShapeTool::GetShape(cube), TopAbs_FACE).Current());
    document.colours()->SetColor(face, kit_red(), XCAFDoc_ColorSurf);
    auto const inner = document.shapes()->NewShape();
    sdkDocument::set_name(inner, "Inner");
    document.shapes()->AddComponent(inner, cube, {});
    document.shapes()->AddComponent(inner, cube, shift(100) * scale(2));
    document.shapes()->AddComponent(inner, cube, mirror(-10));
    document.shapes()->AddComponent(inner, cube, mirror(-50));
    auto const outer = document.shapes()->NewShape();
    sdkDocument::set_name(outer, "Outer");
    document.shapes()->AddComponent(outer, inner, {});
    document.shapes()->AddComponent(outer, inner, shift(1000) * scale(3));
}

} // namespace

TEST(RigidPlaces, BecomePartsOfTheirOwnInEachSize)
{
    sdkDocument document;
    fill(document);
    EXPECT_EQ(sdk_make_places_rigid(document), 3 + 1);
    auto const measures = sdk_measure(document);
    double const once = 1000 + 8000 + 1000 + 1000;
    EXPECT_EQ(measures.solids, 8);
    EXPECT_NEAR(measures.volume, once + 27 * once, 1e-6 * once);
    EXPECT_NEAR(measures.box.CornerMax().X(), 1000 + 3 * 120, 1e-4);
    EXPECT_NEAR(measures.box.CornerMin().X(), -110, 1e-4);
    EXPECT_EQ(document.free_shapes().Length(), 1);
    // Plain, doubled, mirrored, and each of them three times as large.
    EXPECT_EQ(document.parts().Length(), 6);
    for (auto const & part : document.parts()) {
        EXPECT_EQ(sdkDocument::name(part), "Cube");
        EXPECT_TRUE(kit_colour(document, part).IsEqual(kit_red()));
        EXPECT_GT(sdk_measure(XCAFDoc_ShapeTool::GetShape(part)).volume, 0);
    }
    EXPECT_EQ(sdk_make_places_rigid(document), 0);
}

TEST(RigidPlaces, LeaveNoPartThatNothingUses)
{
    sdkDocument document;
    auto const cube = document.add_shape(kit_cube(10), "Cube");
    auto const assembly = document.shapes()->NewShape();
    document.shapes()->AddComponent(assembly, cube, mirror(0));
    EXPECT_EQ(sdk_make_places_rigid(document), 1);
    EXPECT_EQ(document.parts().Length(), 1);
    EXPECT_EQ(document.free_shapes().Length(), 1);
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
}

TEST(RigidPlaces, AreMadeWithinParts)
{
    BRep_Builder builder;
    TopoDS_Compound whole;
    builder.MakeCompound(whole);
    builder.Add(whole, kit_cube(10).Moved(mirror(-10), Standard_False));
    sdkDocument document;
    document.add_shape(whole, "Cubes");
    EXPECT_EQ(sdk_make_places_rigid(document), 1);
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    EXPECT_EQ(sdk_make_places_rigid(document), 0);
}

TEST(RigidPlaces, AreMadeOfAFreePlaceOfADefinition)
{
    sdkDocument document;
    document.add_shape(kit_cube(10).Moved(mirror(-10), Standard_False), "Cube");
    ASSERT_TRUE(XCAFDoc_ShapeTool::IsReference(document.free_shapes().First()));
    EXPECT_EQ(sdk_make_places_rigid(document), 1);
    ASSERT_EQ(document.free_shapes().Length(), 1);
    EXPECT_EQ(sdkDocument::name(document.free_shapes().First()), "Cube");
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), -20, 1e-5);
}

TEST(RigidPlaces, LeaveOtherDocumentsAlone)
{
    sdkDocument document;
    kit_add_assembly(document);
    EXPECT_EQ(sdk_make_places_rigid(document), 0);
    EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-6);
    EXPECT_EQ(document.parts().Length(), 2);
}
