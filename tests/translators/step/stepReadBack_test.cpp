#include "stepFormatTest.h"

#include "sdk/measure/sdkInventory.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <Quantity_Color.hxx>
#include <TopExp_Explorer.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <gp_Ax2.hxx>
#include <gp_Trsf.hxx>

class StepReadBack : public stepFormatTest {
protected:
    static double volume(sdkDocument const & document) { return sdk_take_inventory(document, {}).volume(); }
};

namespace {

kitSide::Values const unrepaired{{"stepReadHealing", "false"}};

// On a mirrored surface readers take the sides of a seam for each other.
TopoDS_Shape mirrored(TopoDS_Shape const & body)
{
    gp_Trsf mirror;
    mirror.SetMirror(gp_Ax2());
    return TopExp_Explorer(BRepBuilderAPI_Transform(body, mirror, Standard_True).Shape(), TopAbs_SOLID)
        .Current();
}

} // namespace

TEST_F(StepReadBack, PutsSeamsOnTheirSideWithoutRepairingAll)
{
    auto const ring = mirrored(BRepPrimAPI_MakeTorus(20, 5, 0, 2).Solid());
    ASSERT_TRUE(write(ring, path("ring.step")));
    sdkDocument whole;
    ASSERT_TRUE(read(path("ring.step"), whole));
    sdkDocument back;
    ASSERT_TRUE(read_back(path("ring.step"), back, unrepaired));
    EXPECT_NEAR(volume(back), volume(whole), 1e-6 * volume(whole));
    // It is of use as long as this fails.
    sdkDocument bare;
    ASSERT_TRUE(read(path("ring.step"), bare, unrepaired));
    EXPECT_GT(std::abs(volume(bare) - volume(whole)), 1e-3 * volume(whole));
}

TEST_F(StepReadBack, KeepsTheColoursOfFacesThatItRepairs)
{
    sdkDocument document;
    auto const body = mirrored(BRepPrimAPI_MakeCylinder(5, 20).Solid());
    auto const part = document.add_shape(body, "Rod");
    for (TopExp_Explorer face(body, TopAbs_FACE); face.More(); face.Next()) {
        document.colours()->SetColor(document.shapes()->AddSubShape(part, face.Current()),
                                     Quantity_Color(Quantity_NOC_RED), XCAFDoc_ColorSurf);
    }
    ASSERT_TRUE(write(document, path("rod.step")));
    sdkDocument back;
    ASSERT_TRUE(read_back(path("rod.step"), back, unrepaired));
    auto const bodies = sdk_take_inventory(back, {}).bodies;
    ASSERT_EQ(bodies.size(), 1U);
    EXPECT_EQ(bodies[0].colours.size(), 1U);
    EXPECT_EQ(bodies[0].colours.begin()->first, "#ff0000ff");
}
