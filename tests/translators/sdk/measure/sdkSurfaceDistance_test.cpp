#include "sdk/measure/sdkSurfaceDistance.h"

#include "measureBodies.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <TopoDS.hxx>
#include <gp_Cone.hxx>
#include <gp_Cylinder.hxx>
#include <gp_Pln.hxx>
#include <gp_Sphere.hxx>
#include <gp_Torus.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

gp_Ax3 const axes(gp_Pnt(1, 2, 3), gp::DZ());

sdkSurfaceDistance distance(BRepBuilderAPI_MakeFace face)
{
    return sdkSurfaceDistance(face.Face());
}

} // namespace

TEST(SurfaceDistance, OfAPlane)
{
    auto const plane = distance(BRepBuilderAPI_MakeFace(gp_Pln(axes), -5, 5, -5, 5));
    EXPECT_TRUE(plane.exact());
    EXPECT_NEAR(plane.of(gp_Pnt(9, 9, 3)), 0, 1e-12);
    EXPECT_NEAR(plane.of(gp_Pnt(9, 9, 1)), 2, 1e-12);
}

TEST(SurfaceDistance, OfACylinder)
{
    auto const cylinder = distance(BRepBuilderAPI_MakeFace(gp_Cylinder(axes, 5), 0, 2 * pi, 0, 10));
    EXPECT_TRUE(cylinder.exact());
    EXPECT_NEAR(cylinder.of(gp_Pnt(6, 2, 50)), 0, 1e-12);
    EXPECT_NEAR(cylinder.of(gp_Pnt(1, 2, 0)), 5, 1e-12);
    EXPECT_NEAR(cylinder.of(gp_Pnt(1, 9, 0)), 2, 1e-12);
}

TEST(SurfaceDistance, OfAConeOnBothSidesOfItsApex)
{
    auto const cone = distance(BRepBuilderAPI_MakeFace(gp_Cone(axes, pi / 4, 5), 0, 2 * pi, 0, 10));
    EXPECT_TRUE(cone.exact());
    EXPECT_NEAR(cone.of(gp_Pnt(6, 2, 3)), 0, 1e-12);
    EXPECT_NEAR(cone.of(gp_Pnt(9, 2, 6)), 0, 1e-12);
    EXPECT_NEAR(cone.of(gp_Pnt(1, 2, -2)), 0, 1e-12); // the apex
    EXPECT_NEAR(cone.of(gp_Pnt(3, 2, -4)), 0, 1e-12); // beyond it
    EXPECT_NEAR(cone.of(gp_Pnt(1, 2, 3)), 5 / std::sqrt(2), 1e-12);
}

TEST(SurfaceDistance, OfAConeThatNarrows)
{
    auto const cone = distance(BRepBuilderAPI_MakeFace(gp_Cone(axes, -pi / 4, 5), 0, 2 * pi, 0, 3));
    EXPECT_NEAR(cone.of(gp_Pnt(6, 2, 3)), 0, 1e-12);
    EXPECT_NEAR(cone.of(gp_Pnt(4, 2, 5)), 0, 1e-12);
}

TEST(SurfaceDistance, OfASphere)
{
    auto const sphere = distance(BRepBuilderAPI_MakeFace(gp_Sphere(axes, 5)));
    EXPECT_TRUE(sphere.exact());
    EXPECT_NEAR(sphere.of(gp_Pnt(1, 2, 8)), 0, 1e-12);
    EXPECT_NEAR(sphere.of(gp_Pnt(1, 2, 3)), 5, 1e-12);
    EXPECT_NEAR(sphere.of(gp_Pnt(1, 2, 10)), 2, 1e-12);
}

TEST(SurfaceDistance, OfATorus)
{
    auto const torus = distance(BRepBuilderAPI_MakeFace(gp_Torus(axes, 10, 2)));
    EXPECT_TRUE(torus.exact());
    EXPECT_NEAR(torus.of(gp_Pnt(13, 2, 3)), 0, 1e-12);
    EXPECT_NEAR(torus.of(gp_Pnt(11, 2, 5)), 0, 1e-12);
    EXPECT_NEAR(torus.of(gp_Pnt(11, 2, 3)), 2, 1e-12);
    EXPECT_NEAR(torus.of(gp_Pnt(1, 2, 3)), 8, 1e-12);
}

TEST(SurfaceDistance, FollowsThePlaceOfTheFace)
{
    auto const face = BRepBuilderAPI_MakeFace(gp_Sphere(axes, 5)).Face();
    sdkSurfaceDistance const moved(TopoDS::Face(face.Moved(shifted(100))));
    EXPECT_NEAR(moved.of(gp_Pnt(101, 2, 8)), 0, 1e-12);
}

TEST(SurfaceDistance, OfAFreeFormNeedsAPlaceToBeginAt)
{
    auto const round = BRepBuilderAPI_MakeFace(gp_Cylinder(axes, 5), 0, pi, 0, 10).Face();
    auto const spline = TopoDS::Face(BRepBuilderAPI_NurbsConvert(round, Standard_True).Shape());
    for (auto const & [face, shift] :
         {std::pair(spline, 0.0), {TopoDS::Face(spline.Moved(shifted(50))), 50.0}}) {
        sdkSurfaceDistance surface(face);
        EXPECT_FALSE(surface.exact());
        EXPECT_THROW(static_cast<void>(surface.of(gp::Origin())), std::logic_error);
        BRepAdaptor_Surface const adaptor(face);
        double const u = (adaptor.FirstUParameter() + adaptor.LastUParameter()) / 2;
        gp_Pnt2d const near(u + 0.05, 5);
        EXPECT_NEAR(surface.of(gp_Pnt(1 + shift, 7, 8), near), 0, 1e-6);
        EXPECT_NEAR(surface.of(gp_Pnt(1 + shift, 8, 8), near), 1, 1e-6);
    }
}
