#include "sdk/measure/sdkArcIntegrals.h"
#include "sdk/measure/sdkFaceIntegrals.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <GeomConvert.hxx>
#include <Geom_BSplineSurface.hxx>
#include <Geom_ConicalSurface.hxx>
#include <Geom_CylindricalSurface.hxx>
#include <Geom_RectangularTrimmedSurface.hxx>
#include <Geom_SphericalSurface.hxx>
#include <Geom_ToroidalSurface.hxx>
#include <TopoDS.hxx>
#include <gp_Ax2.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

std::vector<Handle(Geom_Surface)> patches()
{
    gp_Ax3 const axes(gp_Pnt(1, 2, 3), gp_Dir(1, 2, 2), gp_Dir(2, 1, -2));
    gp_Ax3 left = axes;
    left.YReverse();
    Handle(Geom_Surface)
        const all[] = {new Geom_CylindricalSurface(axes, 5),   new Geom_ConicalSurface(axes, 0.4, 5),
                       new Geom_ConicalSurface(axes, -0.4, 5), new Geom_SphericalSurface(axes, 5),
                       new Geom_ToroidalSurface(axes, 7, 2),   new Geom_CylindricalSurface(left, 5)};
    std::vector<Handle(Geom_Surface)> cut;
    for (auto const & surface : all) {
        cut.push_back(new Geom_RectangularTrimmedSurface(surface, 0.3, 4.5, -0.4, 1.2));
    }
    return cut;
}

TopoDS_Face placed(Handle(Geom_Surface) const & surface, gp_Trsf const & place)
{
    auto const face = BRepBuilderAPI_MakeFace(surface, 1e-7).Face();
    return TopoDS::Face(face.Moved(TopLoc_Location(place), Standard_False));
}

double difference(gp_Mat const & a, gp_Mat const & b)
{
    double most = 0;
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column) {
            most = std::max(most, std::abs(a.Value(row, column) - b.Value(row, column)));
        }
    }
    return most;
}

// A spline of the same shape is measured point by point.
void expect_like_its_spline(Handle(Geom_Surface) const & patch, gp_Trsf const & place)
{
    gp_Pnt const reference(4, -3, 1);
    auto const found = sdk_face_integrals(placed(patch, place), reference);
    auto const spline =
        sdk_face_integrals(placed(GeomConvert::SurfaceToBSplineSurface(patch), place), reference);
    double const near = 1e-9 * spline.area;
    EXPECT_NEAR(found.area, spline.area, near);
    EXPECT_LT((found.area_moment - spline.area_moment).Modulus(), 100 * near);
    EXPECT_LT(difference(found.second_moment, spline.second_moment), 1000 * near);
    EXPECT_LT((found.vector_area - spline.vector_area).Modulus(), near);
    EXPECT_NEAR(found.volume, spline.volume, 100 * near);
    EXPECT_LT((found.volume_moment - spline.volume_moment).Modulus(), 1000 * near);
}

} // namespace

TEST(RoundSums, AreThoseOfASplineOfTheSameShape)
{
    for (auto const & patch : patches()) {
        SCOPED_TRACE(patch->DynamicType()->Name());
        expect_like_its_spline(patch, {});
    }
}

TEST(RoundSums, AreThoseOfASplineWhereThePlaceMirrorsAndScales)
{
    gp_Trsf place;
    place.SetMirror(gp_Ax2(gp_Pnt(1, 2, 3), gp_Dir(1, 1, 0)));
    place.SetScaleFactor(1.5);
    for (auto const & patch : patches()) {
        expect_like_its_spline(patch, place);
    }
}

TEST(ArcIntegrals, FollowTheirFormulas)
{
    double const from = 0.3;
    double const to = 5.1;
    auto const arc = sdk_arc_integrals(from, to);
    EXPECT_NEAR(arc.one, to - from, 1e-14);
    EXPECT_NEAR(arc.c, std::sin(to) - std::sin(from), 1e-14);
    EXPECT_NEAR(arc.s, std::cos(from) - std::cos(to), 1e-14);
    EXPECT_NEAR(arc.cc, (to - from) / 2 + (std::sin(2 * to) - std::sin(2 * from)) / 4, 1e-14);
    EXPECT_NEAR(arc.cs, (std::pow(std::sin(to), 2) - std::pow(std::sin(from), 2)) / 2, 1e-14);
    EXPECT_NEAR(arc.ss, (to - from) / 2 - (std::sin(2 * to) - std::sin(2 * from)) / 4, 1e-14);
}

TEST(ArcIntegrals, OfShortArcsLoseNoDigits)
{
    double const length = 1e-9;
    auto const arc = sdk_arc_integrals(1, 1 + length);
    double const taken = (1 + length) - 1;
    EXPECT_NEAR(arc.c / taken, std::cos(1 + length / 2), 1e-14);
    EXPECT_NEAR(arc.cs / taken, std::sin(1 + length / 2) * std::cos(1 + length / 2), 1e-14);
}
