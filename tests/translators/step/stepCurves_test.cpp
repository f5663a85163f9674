#include "stepBareFile.h"
#include "stepFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitFault.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepPrimAPI_MakeHalfSpace.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Solid.hxx>
#include <gp_Lin.hxx>
#include <gp_Pln.hxx>

class StepCurves : public stepFormatTest {
protected:
    // The shape that another reader finds in the file that is written.
    TopoDS_Shape trip(TopoDS_Shape const & shape)
    {
        EXPECT_TRUE(write(shape, path("curves.stp")));
        return step_bare_read(path("curves.stp"));
    }
};

TEST_F(StepCurves, AtADistanceOfOthersAreLostByTheToolkitsOwnWriter)
{
    step_bare_write(kit_fault("e_offset.brep"), path("bare.stp"));
    EXPECT_TRUE(step_bare_read(path("bare.stp")).IsNull())
        << "the toolkit writes them now: sdk_convert_offset_curves is needed no more";
}

TEST_F(StepCurves, AtADistanceOfOthersBecomeSplines)
{
    auto const before = kit_fault("e_offset.brep");
    auto const after = trip(before);
    EXPECT_EQ(sdk_count_entities(after).curves, 1);
    EXPECT_NEAR(kit_length(after), kit_length(before), 1e-5 * kit_length(before));
    EXPECT_EQ(said().processed(), 1);
}

TEST_F(StepCurves, AndFacesOfAllKindsAreWritten)
{
    auto const before = sdk_count_entities(kit_fault("mixed.brep"));
    auto const after = sdk_count_entities(trip(kit_fault("mixed.brep")));
    EXPECT_EQ(after.curves, before.curves);
    EXPECT_EQ(after.points, before.points);
    EXPECT_EQ(after.faces, before.faces);
    EXPECT_EQ(after.solids, before.solids);
    EXPECT_TRUE(account().findings().empty());
}

TEST_F(StepCurves, AndFacesWithoutEndAreLossesWithAReason)
{
    auto const plane = kit_fault("f_infinite_plane.brep");
    EXPECT_TRUE(write(plane, path("none.stp"), {}, "Ground"));
    EXPECT_EQ(said().processed(), 0);
    EXPECT_EQ(said().failed(), 1);
    EXPECT_FALSE(std::filesystem::exists(path("none.stp")));
    ASSERT_EQ(account().findings().size(), 1);
    auto const & finding = account().findings().front();
    EXPECT_EQ(finding.weight, sdkWeight::loss);
    EXPECT_EQ(finding.kind, "without-end");
    EXPECT_EQ(finding.part, "Ground");
    EXPECT_NE(finding.text.formatted().find("(Ground)"), std::string::npos);
    EXPECT_TRUE(finding.text.fits());
}

TEST_F(StepCurves, WithoutEndAreLossesBesideOthersThatStay)
{
    auto const line = BRepBuilderAPI_MakeEdge(gp_Lin(gp_Pnt(1, 2, 3), gp::DX())).Edge();
    auto const ground = BRepBuilderAPI_MakeFace(gp_Pln()).Face();
    auto const half = BRepPrimAPI_MakeHalfSpace(ground, gp_Pnt(0, 0, 1)).Solid();
    auto const after = trip(kit_compound({kit_cube(10), line, half, kit_wire()}));
    EXPECT_EQ(sdk_count_entities(after).faces, 6);
    EXPECT_EQ(sdk_count_entities(after).curves, 2);
    EXPECT_EQ(said().failed(), 2);
    EXPECT_EQ(said().processed(), 8);
    EXPECT_EQ(account().findings().size(), 2);
}
