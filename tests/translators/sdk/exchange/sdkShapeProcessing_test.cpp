#include "sdk/exchange/sdkShapeProcessing.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_ConicalSurface.hxx>
#include <Geom_Plane.hxx>
#include <STEPControl_Controller.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>
#include <XSAlgo.hxx>
#include <XSAlgo_AlgoContainer.hxx>
#include <gp_Ax3.hxx>
#include <gtest/gtest.h>

namespace {

TopoDS_Shape processed(TopoDS_Shape const & shape, char const * sequence)
{
    Handle(Standard_Transient) info;
    bool const writing = std::string(sequence).starts_with("write");
    return XSAlgo::AlgoContainer()->ProcessShape(
        shape, 1e-4, 1.0, writing ? "write.step.resource.name" : "read.step.resource.name", sequence, info);
}

TopoDS_Shape left_handed_face()
{
    gp_Ax3 axes;
    axes.YReverse();
    Handle(Geom_Plane) const plane = new Geom_Plane(axes);
    return BRepBuilderAPI_MakeFace(plane, 0, 10, 0, 10, 1e-7).Face();
}

bool is_direct(TopoDS_Shape const & face)
{
    auto const plane = Handle(Geom_Plane)::DownCast(BRep_Tool::Surface(TopoDS::Face(face)));
    return plane->Position().Direct();
}

// Of the only conical face.
double half_angle(TopoDS_Shape const & shape)
{
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        auto const surface = BRep_Tool::Surface(TopoDS::Face(face.Current()));
        if (auto const cone = Handle(Geom_ConicalSurface)::DownCast(surface); !cone.IsNull()) {
            return cone->SemiAngle();
        }
    }
    return 0;
}

} // namespace

class ShapeProcessing : public testing::Test {
protected:
    ShapeProcessing() { STEPControl_Controller::Init(); }
};

TEST_F(ShapeProcessing, LeavesAloneWhatNeedsNoChangeToBeWritten)
{
    sdkShapeProcessing const processing(sdkHealing::standard);
    auto const cube = kit_cube(10);
    EXPECT_TRUE(processed(cube, "write.step.sequence").IsEqual(cube));
}

TEST_F(ShapeProcessing, TurnsLeftHandedSurfacesRoundBeforeTheyAreWritten)
{
    sdkShapeProcessing const processing(sdkHealing::standard);
    auto const face = left_handed_face();
    ASSERT_FALSE(is_direct(face));
    EXPECT_TRUE(is_direct(processed(face, "write.step.sequence")));
}

TEST_F(ShapeProcessing, TurnsConesThatNarrowAlongTheirAxisRoundBeforeTheyAreWritten)
{
    sdkShapeProcessing const processing(sdkHealing::standard);
    auto const cone = BRepPrimAPI_MakeCone(10, 5, 20).Solid();
    ASSERT_LT(half_angle(cone), 0);
    auto const after = processed(cone, "write.step.sequence");
    EXPECT_GT(half_angle(after), 0);
    EXPECT_NEAR(sdk_measure(after).volume, sdk_measure(cone).volume, 1e-6);
    EXPECT_EQ(sdk_measure(after).solids, 1);
}

TEST_F(ShapeProcessing, HealsWhatIsReadOrNot)
{
    // A face whose wire runs the wrong way round.
    auto const broken = [] {
        Handle(Geom_Plane) const plane = new Geom_Plane(gp_Ax3());
        auto const good = BRepBuilderAPI_MakeFace(plane, 0, 10, 0, 10, 1e-7).Face();
        TopoDS_Shape face = good.EmptyCopied();
        BRep_Builder().Add(face, TopoDS_Iterator(good).Value().Reversed());
        return face;
    }();
    {
        sdkShapeProcessing const processing(sdkHealing::none);
        EXPECT_TRUE(processed(broken, "read.step.sequence").IsEqual(broken));
    }
    {
        // Nothing that concerns the parameters of its surface is wrong with it.
        sdkShapeProcessing const processing(sdkHealing::boundaries);
        EXPECT_TRUE(processed(broken, "read.step.sequence").IsEqual(broken));
    }
    {
        sdkShapeProcessing const processing(sdkHealing::standard);
        EXPECT_FALSE(processed(broken, "read.step.sequence").IsEqual(broken));
    }
}

TEST_F(ShapeProcessing, PutsBackWhatWasThereBefore)
{
    auto const before = XSAlgo::AlgoContainer();
    {
        sdkShapeProcessing const processing(sdkHealing::none);
        EXPECT_NE(XSAlgo::AlgoContainer(), before);
    }
    EXPECT_EQ(XSAlgo::AlgoContainer(), before);
}
