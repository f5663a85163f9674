#include "sdk/measure/sdkBodyExtent.h"
#include "translators/kit/kitParts.h"

#include <BRepAlgoAPI_Common.hxx>
#include <BRepBndLib.hxx>
#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <TopoDS_Compound.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace {

TopoDS_Shape askew(TopoDS_Shape const & shape)
{
    gp_Trsf turn;
    turn.SetRotation(gp_Ax1(gp_Pnt(1, 2, 3), gp_Dir(1, 2, 3)), 0.7);
    return BRepBuilderAPI_Transform(shape, turn, Standard_True).Shape();
}

void expect_sides(TopoDS_Shape const & shape, std::array<double, 6> const & sides, double tolerance)
{
    auto const extent = sdk_tight_extent(shape);
    ASSERT_FALSE(extent.empty());
    for (std::size_t at = 0; at < 6; ++at) {
        EXPECT_NEAR(extent.side(at), sides[at], tolerance) << at;
    }
}

// The library's own search, which is slow and adds what it is not sure of.
std::array<double, 6> sides_of(TopoDS_Shape const & shape)
{
    Bnd_Box box;
    BRepBndLib::AddOptimal(shape, box, Standard_False, Standard_False);
    std::array<double, 6> sides{};
    box.Get(sides[0], sides[1], sides[2], sides[3], sides[4], sides[5]);
    return sides;
}

} // namespace

TEST(TightExtent, ReachesWhereSurfacesBulge)
{
    expect_sides(kit_cube(10), {0, 0, 0, 10, 10, 10}, 1.0e-12);
    expect_sides(BRepPrimAPI_MakeSphere(7).Shape(), {-7, -7, -7, 7, 7, 7}, 1.0e-12);
    expect_sides(BRepPrimAPI_MakeTorus(20, 4).Shape(), {-24, -24, -4, 24, 24, 4}, 1.0e-12);
    // A quarter of a ball: it ends where it is cut.
    auto const ball = BRepPrimAPI_MakeSphere(10).Shape();
    auto const block = BRepPrimAPI_MakeBox(gp_Pnt(3, 3, -20), gp_Pnt(20, 20, 20)).Shape();
    auto const reach = std::sqrt(91.0);
    auto const top = std::sqrt(82.0);
    expect_sides(BRepAlgoAPI_Common(ball, block).Shape(), {3, 3, -top, reach, reach, top}, 1.0e-6);
}

TEST(TightExtent, IsTheSmallestBoxOfWhatLiesAskew)
{
    for (auto const & shape : {BRepPrimAPI_MakeCylinder(5, 20).Shape(), BRepPrimAPI_MakeCone(5, 2, 9).Shape(),
                               BRepPrimAPI_MakeSphere(7).Shape(), BRepPrimAPI_MakeTorus(20, 4).Shape(),
                               BRepPrimAPI_MakeTorus(20, 4, 0, 2, 3).Shape()}) {
        auto const placed = askew(shape);
        auto const sides = sides_of(placed);
        expect_sides(placed, sides, 1.0e-4);
        expect_sides(BRepBuilderAPI_NurbsConvert(placed, Standard_True).Shape(), sides, 1.0e-4);
    }
}

TEST(TightExtent, TellsThePointThatReachesFarthest)
{
    auto const cube = sdk_tight_extent(kit_cube(10));
    auto const ball = sdk_tight_extent(BRepPrimAPI_MakeSphere(gp_Pnt(5, 5, 5), 5.5).Shape());
    auto const * point = ball.farthest_beyond(cube, 0.1);
    ASSERT_NE(point, nullptr);
    EXPECT_NEAR(point->Distance(gp_Pnt(5, 5, 5)), 5.5, 1.0e-9);
    EXPECT_EQ(ball.farthest_beyond(cube, 0.6), nullptr);
    EXPECT_EQ(cube.farthest_beyond(ball, 0.1), nullptr);
    EXPECT_NEAR(sdk_distance(*point, kit_cube(10)), 0.5, 1.0e-6);
    EXPECT_EQ(cube.text(), "(0, 0, 0)-(10, 10, 10)");
}

TEST(TightExtent, OfNothingIsEmpty)
{
    TopoDS_Compound nothing;
    BRep_Builder().MakeCompound(nothing);
    auto const extent = sdk_tight_extent(nothing);
    EXPECT_TRUE(extent.empty());
    EXPECT_EQ(extent.farthest_beyond(sdk_tight_extent(kit_cube(10)), 0), nullptr);
    EXPECT_EQ(sdk_tight_extent(kit_cube(10)).farthest_beyond(extent, 0), nullptr);
}
