#include "sdk/measure/sdkSplineRows.h"

#include <GeomConvert.hxx>
#include <Geom_ToroidalSurface.hxx>
#include <TColStd_Array1OfInteger.hxx>
#include <TColgp_Array2OfPnt.hxx>
#include <gp_Ax2.hxx>
#include <gp_Ax3.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

// Of degree 3 and 2, with a double knot along u at 1.
Handle(Geom_BSplineSurface) hilly()
{
    TColgp_Array2OfPnt poles(1, 7, 1, 4);
    for (int u = 1; u <= 7; ++u) {
        for (int v = 1; v <= 4; ++v) {
            poles(u, v) = gp_Pnt(3.0 * u + 0.3 * v, 2.0 * v * v - u, std::sin(2.0 * u + v));
        }
    }
    TColStd_Array1OfReal u_knots(1, 4);
    TColStd_Array1OfInteger u_counts(1, 4);
    double const u_places[] = {0, 1, 2.5, 4};
    int const u_times[] = {4, 2, 1, 4};
    for (int at = 0; at < 4; ++at) {
        u_knots(at + 1) = u_places[at];
        u_counts(at + 1) = u_times[at];
    }
    TColStd_Array1OfReal v_knots(1, 3);
    TColStd_Array1OfInteger v_counts(1, 3);
    double const v_places[] = {-1, 0, 3};
    int const v_times[] = {3, 1, 3};
    for (int at = 0; at < 3; ++at) {
        v_knots(at + 1) = v_places[at];
        v_counts(at + 1) = v_times[at];
    }
    return new Geom_BSplineSurface(poles, u_knots, v_knots, u_counts, v_counts, 3, 2);
}

// Rational, and repeats itself along both parameters.
Handle(Geom_BSplineSurface) ring()
{
    return GeomConvert::SurfaceToBSplineSurface(new Geom_ToroidalSurface(gp_Ax3(), 20, 5));
}

// How far the row at v is at most from what the library says, over the span from u_first to u_last of which
// the places are taken.
double error(Handle(Geom_BSplineSurface) const & surface, gp_Trsf const & place, sdkParameterBox const & part,
             double v, double u_first, double u_last)
{
    sdkSplineRows rows(surface, place, part);
    std::vector<double> places;
    for (double const share : {0.05, 0.2, 0.5, 0.77, 0.98}) {
        places.push_back(u_first + share * (u_last - u_first));
    }
    sdkSplineBasis basis;
    rows.evaluate(places, basis);
    rows.move_to(v, u_last);
    std::vector<sdkSurfacePoint> points;
    rows.points(basis, points);
    EXPECT_EQ(points.size(), places.size());
    double most = 0;
    for (std::size_t at = 0; at < points.size(); ++at) {
        gp_Pnt point;
        gp_Vec along_u;
        gp_Vec along_v;
        surface->D1(places[at], v, point, along_u, along_v);
        most = std::max({most, (points[at].point - point.Transformed(place).XYZ()).Modulus(),
                         (points[at].along_u - along_u.Transformed(place).XYZ()).Modulus(),
                         (points[at].along_v - along_v.Transformed(place).XYZ()).Modulus()});
    }
    return most;
}

} // namespace

TEST(SplineRows, FollowTheSurfaceInEverySpan)
{
    auto const surface = hilly();
    sdkParameterBox const whole{0, 4, -1, 3};
    double const knots[] = {0, 1, 2.5, 4};
    for (int span = 0; span < 3; ++span) {
        for (double const v : {-1.0, -0.3, 0.0, 1.0, 3.0}) {
            EXPECT_LT(error(surface, {}, whole, v, knots[span], knots[span + 1]), 1e-12) << span << " " << v;
        }
    }
}

TEST(SplineRows, NeedThePolesOfTheirPartOnly)
{
    EXPECT_LT(error(hilly(), {}, {1.2, 2.0, 0.5, 1.0}, 0.7, 1.2, 2.0), 1e-12);
    EXPECT_LT(error(hilly(), {}, {2.6, 3.9, -0.9, -0.5}, -0.6, 2.6, 3.9), 1e-12);
}

TEST(SplineRows, FollowTheSurfaceALittleBeyondItsEnds)
{
    EXPECT_LT(error(hilly(), {}, {-0.01, 4.01, -1.01, 3.01}, 3.01, 3.9, 4.01), 1e-12);
    EXPECT_LT(error(hilly(), {}, {-0.01, 4.01, -1.01, 3.01}, -1.01, -0.01, 0.1), 1e-12);
}

TEST(SplineRows, FollowRationalSurfacesInEveryTurn)
{
    auto const surface = ring();
    ASSERT_TRUE(surface->IsUPeriodic() && surface->IsVPeriodic());
    for (double const v : {-1.0, 0.5, 2 * pi + 2}) {
        EXPECT_LT(error(surface, {}, {-0.5, 2 * pi + 0.5, -1, 9}, v, -0.5, -0.1), 1e-12) << v;
        EXPECT_LT(error(surface, {}, {-0.5, 2 * pi + 0.5, -1, 9}, v, 0.1, 0.9), 1e-12) << v;
        EXPECT_LT(error(surface, {}, {-0.5, 2 * pi + 0.5, -1, 9}, v, 2 * pi + 0.1, 2 * pi + 0.5), 1e-12) << v;
    }
}

TEST(SplineRows, AreThoseOfTheSurfaceWhereItIsMirroredAndScaled)
{
    gp_Trsf place;
    place.SetMirror(gp_Ax2(gp_Pnt(1, 2, 3), gp_Dir(1, 1, 0)));
    place.SetScaleFactor(2.5);
    EXPECT_LT(error(hilly(), place, {0, 4, -1, 3}, 0.4, 1, 2.5), 1e-12);
    EXPECT_LT(error(ring(), place, {0, 3, 0, 3}, 1.5, 0.1, 0.9), 1e-12);
}
