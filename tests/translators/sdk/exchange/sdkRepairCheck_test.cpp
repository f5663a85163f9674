#include "sdk/exchange/sdkRepairCheck.h"

#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_Copy.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Circle.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <gtest/gtest.h>

namespace {

TopoDS_Shape cylinder(double height = 10)
{
    return BRepPrimAPI_MakeCylinder(5, height).Shape();
}

// One of its circles is so much larger than the cylinder.
TopoDS_Shape cylinder_with_larger_circle(double by)
{
    auto const shape = cylinder();
    for (TopExp_Explorer explorer(shape, TopAbs_EDGE); explorer.More(); explorer.Next()) {
        double first = 0;
        double last = 0;
        auto const & edge = TopoDS::Edge(explorer.Current());
        auto const circle = Handle(Geom_Circle)::DownCast(BRep_Tool::Curve(edge, first, last));
        if (!circle.IsNull()) {
            circle->SetRadius(circle->Radius() + by);
            BRep_Builder().UpdateEdge(edge, circle, 2 * by + 1e-7);
            break;
        }
    }
    return shape;
}

} // namespace

TEST(RepairCheck, TakesWhatIsTheSame)
{
    EXPECT_TRUE(sdk_no_worse(cylinder(), BRepBuilderAPI_Copy(cylinder()).Shape()));
}

TEST(RepairCheck, RefusesEdgesThatLieFartherOff)
{
    EXPECT_FALSE(sdk_no_worse(cylinder(), cylinder_with_larger_circle(0.01)));
    EXPECT_TRUE(sdk_no_worse(cylinder_with_larger_circle(0.01), cylinder()));
    EXPECT_FALSE(sdk_no_worse(cylinder_with_larger_circle(0.01), cylinder_with_larger_circle(0.02)));
    EXPECT_TRUE(sdk_no_worse(cylinder(), cylinder_with_larger_circle(1e-6)));
}

TEST(RepairCheck, RefusesAnotherVolume)
{
    EXPECT_FALSE(sdk_no_worse(cylinder(), cylinder(10.1)));
    EXPECT_FALSE(sdk_no_worse(cylinder(), cylinder().Reversed()));
}

TEST(RepairCheck, RefusesTheLossOfASolidOrAFace)
{
    auto const shell = TopExp_Explorer(cylinder(), TopAbs_SHELL).Current();
    EXPECT_FALSE(sdk_no_worse(cylinder(), shell));
    EXPECT_FALSE(sdk_no_worse(kit_compound({cylinder(), kit_cube(1)}), cylinder()));
}

TEST(RepairCheck, RefusesToMakeAValidShapeInvalid)
{
    auto const broken = kit_cube(10);
    auto const & vertex = TopoDS::Vertex(TopExp_Explorer(broken, TopAbs_VERTEX).Current());
    BRep_Builder().UpdateVertex(vertex, gp_Pnt(0, 0, 0.01), 1e-7);
    EXPECT_FALSE(sdk_no_worse(kit_cube(10), broken));
    EXPECT_TRUE(sdk_no_worse(broken, BRepBuilderAPI_Copy(broken).Shape()));
}
