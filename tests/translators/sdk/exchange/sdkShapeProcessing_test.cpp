#include "sdk/exchange/sdkShapeProcessing.h"

#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Plane.hxx>
#include <STEPControl_Controller.hxx>
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
