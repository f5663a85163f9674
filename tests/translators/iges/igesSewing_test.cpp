#include "iges/igesSewing.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <gtest/gtest.h>

namespace {

void sew(igesSewing & sewing, sdkDocument & document)
{
    sewing.sew(document.free_shapes(), "Whole", {});
}

} // namespace

TEST(IgesSewing, MakesASolidOfTheFacesOfAGroup)
{
    sdkDocument document;
    document.add_shape(kit_compound(kit_loose_faces(kit_cube(10))), "Cube");
    igesSewing sewing(document, 0.01);
    sew(sewing, document);
    EXPECT_EQ(sewing.faces(), 6);
    EXPECT_EQ(sewing.solids(), 1);
    EXPECT_EQ(sewing.shells(), 0);
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    EXPECT_EQ(sdkDocument::name(document.parts().First()), "Cube");
}

TEST(IgesSewing, GathersFacesThatStandAlone)
{
    sdkDocument document;
    for (auto const & face : kit_loose_faces(kit_cube(10))) {
        document.colours()->SetColor(document.add_shape(face, {}), kit_red(), XCAFDoc_ColorSurf);
    }
    igesSewing sewing(document, 0.01);
    sew(sewing, document);
    ASSERT_EQ(document.free_shapes().Length(), 1);
    auto const part = document.free_shapes().First();
    EXPECT_EQ(sdkDocument::name(part), "Whole");
    EXPECT_TRUE(kit_colour(document, part).IsEqual(kit_red()));
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-6);
    EXPECT_EQ(sdk_measure(document).solids, 1);
}

TEST(IgesSewing, LeavesAnOpenShellOpen)
{
    auto faces = kit_loose_faces(kit_cube(10));
    faces.pop_back();
    sdkDocument document;
    document.add_shape(kit_compound(faces), "Box");
    igesSewing sewing(document, 0.01);
    sew(sewing, document);
    EXPECT_EQ(sewing.solids(), 0);
    EXPECT_EQ(sewing.shells(), 1);
    EXPECT_NEAR(sdk_measure(document).area, 500, 1e-6);
}

TEST(IgesSewing, DoesNotJoinGroups)
{
    sdkDocument document;
    document.add_shape(kit_compound(kit_loose_faces(kit_cube(10))), "Cube");
    document.add_shape(kit_compound(kit_loose_faces(kit_cube(10))), "Same place");
    igesSewing sewing(document, 0.01);
    sew(sewing, document);
    EXPECT_EQ(sewing.solids(), 2);
    EXPECT_EQ(document.parts().Length(), 2);
}

TEST(IgesSewing, LeavesSolidsCurvesAndSingleFacesAlone)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Cube");
    document.add_shape(kit_wire(), "Wire");
    document.add_shape(kit_loose_faces(kit_cube(5)).front(), "Face");
    igesSewing sewing(document, 0.01);
    sew(sewing, document);
    EXPECT_EQ(sewing.faces(), 0);
    EXPECT_EQ(document.parts().Length(), 3);
}

TEST(IgesSewing, TakesAShellInsideAnotherForTheWallOfACavity)
{
    sdkDocument document;
    document.add_shape(kit_compound(kit_loose_faces(kit_hollow_cube())), "Hollow");
    igesSewing sewing(document, 0.01);
    sew(sewing, document);
    EXPECT_EQ(sewing.solids(), 1);
    EXPECT_NEAR(sdk_measure(document).volume, 7000, 1e-6);
}
