#include "stepBareFile.h"
#include "stepFormatTest.h"

#include "sdk/measure/sdkInventory.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <Quantity_Color.hxx>
#include <ShapeUpgrade_ShapeDivideClosedEdges.hxx>
#include <TopExp_Explorer.hxx>
#include <XCAFDoc_ColorTool.hxx>

class StepBrokenSeams : public stepFormatTest {
protected:
    static double volume(sdkDocument const & document) { return sdk_take_inventory(document, {}).volume(); }

    // Of the shape, written and read again. A program without our repairs has to read it as well.
    double volume_after(TopoDS_Shape const & shape)
    {
        EXPECT_TRUE(write(shape, path("part.step")));
        sdkDocument document;
        EXPECT_TRUE(read(path("part.step"), document));
        faces = sdk_take_inventory(document, {}).bodies.at(0).measure.faces.size();
        return volume(document);
    }

    static double volume_of(TopoDS_Shape const & shape)
    {
        sdkDocument document;
        document.add_shape(shape, "Part");
        return volume(document);
    }

    std::size_t faces = 0;
};

namespace {

// The opening lies across the seam.
TopoDS_Shape ball_with_opening()
{
    BRepAlgoAPI_Cut const cut(BRepPrimAPI_MakeSphere(10).Solid(),
                              BRepPrimAPI_MakeBox(gp_Pnt(5, -2, 3), gp_Pnt(20, 3, 6)).Solid());
    return TopExp_Explorer(const_cast<BRepAlgoAPI_Cut &>(cut).Shape(), TopAbs_SOLID).Current();
}

TopoDS_Shape ring_with_halved_seams()
{
    ShapeUpgrade_ShapeDivideClosedEdges divide(BRepPrimAPI_MakeTorus(20, 5).Solid());
    divide.SetNbSplitPoints(1);
    divide.Perform();
    return TopExp_Explorer(divide.Result(), TopAbs_SOLID).Current();
}

} // namespace

TEST_F(StepBrokenSeams, OfABallLeaveTheBallWhole)
{
    auto const ball = ball_with_opening();
    EXPECT_NEAR(volume_after(ball), volume_of(ball), 1e-6 * volume_of(ball));
    EXPECT_NEAR(volume_of(step_bare_read(path("part.step"))), volume_of(ball), 1e-6 * volume_of(ball));
}

TEST_F(StepBrokenSeams, OfARingLeaveTheRingWhole)
{
    auto const ring = ring_with_halved_seams();
    EXPECT_NEAR(volume_after(ring), volume_of(ring), 1e-6 * volume_of(ring));
    EXPECT_NEAR(volume_of(step_bare_read(path("part.step"))), volume_of(ring), 1e-6 * volume_of(ring));
}

// As long as this holds, the repairs are of use.
TEST_F(StepBrokenSeams, AreLostByTheToolkitAlone)
{
    for (auto const & whole : {ball_with_opening(), ring_with_halved_seams()}) {
        ASSERT_TRUE(step_bare_write(whole, path("bare.step")));
        auto const bare = step_bare_read(path("bare.step"));
        EXPECT_LT(volume_of(bare), 0.1 * volume_of(whole));
    }
}

TEST_F(StepBrokenSeams, OfABallOfAnotherProgramAreUnderstood)
{
    auto const ball = ball_with_opening();
    ASSERT_TRUE(step_bare_write(ball, path("bare.step")));
    sdkDocument document;
    ASSERT_TRUE(read(path("bare.step"), document));
    EXPECT_NEAR(volume(document), volume_of(ball), 1e-6 * volume_of(ball));
}

TEST_F(StepBrokenSeams, AreOfNoImportanceElsewhere)
{
    for (auto const & whole : {TopoDS_Shape(BRepPrimAPI_MakeSphere(10).Solid()),
                               TopoDS_Shape(BRepPrimAPI_MakeTorus(20, 5).Solid())}) {
        EXPECT_NEAR(volume_after(whole), volume_of(whole), 1e-6 * volume_of(whole));
        EXPECT_EQ(faces, 1U);
    }
}

TEST_F(StepBrokenSeams, GiveBothHalvesTheColourOfTheFace)
{
    sdkDocument document;
    auto const ball = ball_with_opening();
    auto const part = document.add_shape(ball, "Ball");
    for (TopExp_Explorer face(ball, TopAbs_FACE); face.More(); face.Next()) {
        document.colours()->SetColor(document.shapes()->AddSubShape(part, face.Current()),
                                     Quantity_Color(Quantity_NOC_RED), XCAFDoc_ColorSurf);
    }
    ASSERT_TRUE(write(document, path("ball.step")));
    sdkDocument back;
    ASSERT_TRUE(read(path("ball.step"), back));
    auto const bodies = sdk_take_inventory(back, {}).bodies;
    ASSERT_EQ(bodies.size(), 1U);
    EXPECT_EQ(bodies[0].colours.size(), 1U);
    EXPECT_EQ(bodies[0].colours.begin()->first, "#ff0000ff");
}
