#include "iges/igesSewing.h"

#include "igesFormatTest.h"
#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <TopExp_Explorer.hxx>
#include <gp_Ax2.hxx>
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

TEST(IgesSewing, MakesASolidOfAFaceThatIsClosedByItself)
{
    sdkDocument document;
    auto const face = TopExp_Explorer(BRepPrimAPI_MakeSphere(10).Shape(), TopAbs_FACE).Current();
    document.colours()->SetColor(document.add_shape(face, "Ball"), kit_red(), XCAFDoc_ColorSurf);
    igesSewing sewing(document, 0.01);
    sew(sewing, document);
    EXPECT_EQ(sewing.faces(), 1);
    EXPECT_EQ(sewing.solids(), 1);
    EXPECT_EQ(sdk_measure(document).solids, 1);
    EXPECT_NEAR(sdk_measure(document).volume, 4188.790205, 1e-5);
    auto const part = document.parts().First();
    EXPECT_EQ(sdkDocument::name(part), "Ball");
    EXPECT_TRUE(kit_colour(document, part).IsEqual(kit_red()));
}

TEST(IgesSewing, LeavesAPipeOpen)
{
    sdkDocument document;
    auto const face = TopExp_Explorer(BRepPrimAPI_MakeCylinder(10, 20).Shape(), TopAbs_FACE).Current();
    document.add_shape(face, "Pipe");
    igesSewing sewing(document, 0.01);
    sew(sewing, document);
    EXPECT_EQ(sewing.faces() + sewing.solids() + sewing.shells(), 0);
    EXPECT_EQ(sdk_measure(document).faces, 1);
}

TEST(IgesSewing, TakesABallAmongLooseFacesForACavity)
{
    auto faces = kit_loose_faces(kit_cube(30));
    auto const centre = gp_Ax2(gp_Pnt(15, 15, 15), gp::DZ());
    faces.push_back(TopExp_Explorer(BRepPrimAPI_MakeSphere(centre, 10).Shape(), TopAbs_FACE).Current());
    sdkDocument document;
    document.add_shape(kit_compound(faces), "Hollow");
    igesSewing sewing(document, 0.01);
    sew(sewing, document);
    EXPECT_EQ(sewing.faces(), 7);
    EXPECT_EQ(sewing.solids(), 1);
    EXPECT_NEAR(sdk_measure(document).volume, 27000 - 4188.790205, 1e-5);
}

class IgesSewingOfFiles : public igesFormatTest {
protected:
    void expect_solid(std::string const & file, int faces, double volume)
    {
        sdkDocument document;
        ASSERT_TRUE(read(FAULTS "/" + file, document));
        auto const measures = sdk_measure(document);
        EXPECT_EQ(measures.solids, 1) << file;
        EXPECT_EQ(measures.faces, faces) << file;
        EXPECT_NEAR(measures.volume, volume, volume * 1e-6) << file;
        EXPECT_TRUE(said().says(std::to_string(faces) + " faces were sewn into 1 solids and 0 open shells"));
    }
};

TEST_F(IgesSewingOfFiles, MakesSolids)
{
    expect_solid("sphere_f.igs", 1, 4188.790205);
    expect_solid("void_faces.igs", 7, 59811.2098);
    expect_solid("plate_faces.igs", 7, 44722.12434);
}
