#include "sdk/measure/sdkCurveIntegrals.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <gp_Circ.hxx>
#include <gp_Elips.hxx>
#include <gp_Lin.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using std::numbers::pi;

TEST(CurveIntegrals, OfLinesAndCirclesFollowTheirFormulas)
{
    auto const line = sdk_curve_integrals(BRepBuilderAPI_MakeEdge(gp_Pnt(1, 1, 1), gp_Pnt(4, 5, 1)).Edge());
    EXPECT_NEAR(line.length, 5, 1e-12);
    EXPECT_LT((line.moment / line.length - gp_XYZ(2.5, 3, 1)).Modulus(), 1e-12);
    auto const circle = sdk_curve_integrals(
        BRepBuilderAPI_MakeEdge(gp_Circ(gp_Ax2(gp_Pnt(1, 2, 3), gp_Dir(1, 1, 1)), 10)).Edge());
    EXPECT_NEAR(circle.length, 20 * pi, 1e-10);
    EXPECT_LT((circle.moment / circle.length - gp_XYZ(1, 2, 3)).Modulus(), 1e-10);
}

TEST(CurveIntegrals, OfAFlatEllipseAreExactWhereverItBegins)
{
    // Its centroid is its centre, and the place where it begins does not matter.
    gp_Elips const ellipse(gp_Ax2(gp_Pnt(1, 2, 3), gp_Dir(0, 0, 1)), 40, 4);
    auto const first = sdk_curve_integrals(BRepBuilderAPI_MakeEdge(ellipse).Edge());
    auto const second = sdk_curve_integrals(BRepBuilderAPI_MakeEdge(ellipse, 1.0, 1.0 + 2 * pi).Edge());
    EXPECT_NEAR(first.length, second.length, 1e-7 * first.length);
    EXPECT_LT((second.moment / second.length - gp_XYZ(1, 2, 3)).Modulus(), 1e-5);
}

TEST(CurveIntegrals, OfWhatHasNoEndAreNothing)
{
    EXPECT_EQ(sdk_curve_integrals(BRepBuilderAPI_MakeEdge(gp_Lin()).Edge()).length, 0);
}
