#include "measureBodies.h"

#include "sdk/geometry/sdkTessellation.h"
#include "sdk/measure/sdkFacetAllowance.h"
#include "sdk/measure/sdkMeshMeasure.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <TopoDS.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

double area_of_triangles(TopoDS_Shape const & shape, double deflection)
{
    sdk_tessellate(shape, {.linear = deflection, .angular = 0.5});
    double area = 0;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        area += sdk_measure_mesh(TopoDS::Face(face.Current()), gp::Origin()).integrals.area;
    }
    return area;
}

} // namespace

TEST(FacetAllowance, GivesPlanesNothing)
{
    EXPECT_EQ(sdk_facet_allowance(inventory_of({{"cube", kit_cube(10)}}), 0.1), 0);
}

TEST(FacetAllowance, FollowsTheCurvature)
{
    auto const of = [](TopoDS_Shape const & shape, double deflection) {
        return sdk_facet_allowance(inventory_of({{"part", shape}}), deflection);
    };
    auto const ball = BRepPrimAPI_MakeSphere(10).Shape();
    double const area = 400 * std::numbers::pi;
    EXPECT_LT(of(ball, 0.001), 1.0e-3 * area);
    EXPECT_GT(of(ball, 0.001), 1.0e-4 * area);
    EXPECT_NEAR(of(ball, 5), 0.1 * area, 1.0e-6 * area); // the most that there is
    // However the surface is described.
    auto const spline = BRepBuilderAPI_NurbsConvert(ball, Standard_True).Shape();
    EXPECT_NEAR(of(spline, 0.01), of(ball, 0.01), 0.2 * of(ball, 0.01));
}

TEST(FacetAllowance, IsEnoughForTrianglesThatFollowSurfaces)
{
    for (auto const & shape :
         {BRepPrimAPI_MakeCylinder(10, 3).Shape(), BRepPrimAPI_MakeCone(10, 0, 20).Shape(),
          BRepPrimAPI_MakeSphere(10).Shape(), BRepPrimAPI_MakeTorus(20, 5).Shape(),
          BRepBuilderAPI_NurbsConvert(BRepPrimAPI_MakeTorus(20, 5).Shape(), Standard_True).Shape()}) {
        for (double const deflection : {0.5, 0.1}) {
            auto const inventory = inventory_of({{"part", shape}});
            double const lost = std::abs(inventory.area() - area_of_triangles(shape, deflection));
            EXPECT_LT(lost, sdk_facet_allowance(inventory, deflection)) << deflection;
        }
    }
}
