#include "sdk/measure/sdkOuterExtent.h"

#include "measureBodies.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <gp_Pln.hxx>

#include <gtest/gtest.h>

#include <cmath>

TEST(OuterExtent, HoldsSurfacesThatBulgeBetweenTheirEdges)
{
    auto const sphere = sdk_outer_extent(BRepPrimAPI_MakeSphere(5).Shape());
    EXPECT_NEAR(sphere.CornerMax().X(), 5, 1e-3);
    EXPECT_NEAR(sphere.CornerMin().Y(), -5, 1e-3);
    gp_Trsf turn;
    turn.SetRotation(gp::OX(), M_PI / 2);
    auto const torus = sdk_outer_extent(BRepPrimAPI_MakeTorus(20, 5).Shape().Moved(TopLoc_Location(turn)));
    EXPECT_FALSE(torus.IsOut(gp_Pnt(25, 5, 25)));
    EXPECT_LT(torus.CornerMax().Y(), 8) << "it is no box of a box";
}

TEST(OuterExtent, IsThatOfTheTrianglesWhereThereAreNoSurfaces)
{
    auto const cube = kit_facet_cube().Moved(shifted(7));
    EXPECT_NEAR(sdk_outer_extent(cube).CornerMax().X(), 17, 1e-9);
    EXPECT_NEAR(sdk_outer_extent(cube).CornerMin().X(), 7, 1e-9);
    EXPECT_EQ(sdk_face_points(cube).size(), 8U);
    EXPECT_TRUE(sdk_triangles_only(cube));
    EXPECT_FALSE(sdk_triangles_only(kit_cube(10)));
    EXPECT_FALSE(sdk_triangles_only(kit_compound({cube, kit_cube(10)})));
    EXPECT_FALSE(sdk_triangles_only(kit_wire()));
}

TEST(OuterExtent, IsOpenWhereASurfaceHasNoEnd)
{
    EXPECT_TRUE(sdk_outer_extent(BRepBuilderAPI_MakeFace(gp_Pln()).Face()).IsOpen());
}
