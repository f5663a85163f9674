#include "sdk/measure/sdkBodyMeasure.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRep_Builder.hxx>
#include <Geom_Circle.hxx>
#include <Geom_SurfaceOfRevolution.hxx>
#include <Geom_TrimmedCurve.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <gp_Ax2.hxx>
#include <gp_Circ.hxx>
#include <gp_Elips.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

sdkBodyMeasure measure(TopoDS_Shape const & shape)
{
    return sdk_measure_body(shape, sdkMeasureLevel::full);
}

// A solid with one of its faces turned over.
TopoDS_Shape with_turned_face(TopoDS_Shape const & solid)
{
    BRep_Builder builder;
    TopoDS_Shell shell;
    builder.MakeShell(shell);
    bool first = true;
    for (TopExp_Explorer face(solid, TopAbs_FACE); face.More(); face.Next()) {
        builder.Add(shell, first ? face.Current().Reversed() : face.Current());
        first = false;
    }
    TopoDS_Solid turned;
    builder.MakeSolid(turned);
    builder.Add(turned, shell);
    return turned;
}

} // namespace

TEST(BodyMeasure, OfABoxIsExact)
{
    auto const box = measure(BRepPrimAPI_MakeBox(gp_Pnt(1, 2, 3), 10, 20, 30).Solid());
    EXPECT_NEAR(box.volume, 6000, 1e-9);
    EXPECT_NEAR(box.area, 2200, 1e-9);
    EXPECT_LT(box.centroid.Distance(gp_Pnt(6, 12, 18)), 1e-12);
    EXPECT_EQ(box.faces.size(), 6U);
    EXPECT_EQ(box.shells, 1);
    EXPECT_EQ(box.edges, 12);
    EXPECT_EQ(box.free_edges, 0);
    EXPECT_EQ(box.turned_edges, 0);
    EXPECT_LT(box.extent.CornerMin().Distance(gp_Pnt(1, 2, 3)), 1e-12);
    EXPECT_LT(box.extent.CornerMax().Distance(gp_Pnt(11, 22, 33)), 1e-12);
}

TEST(BodyMeasure, HoldsTheSecondMomentsOfTheArea)
{
    // Of the six faces of a cube of side 2 about its centre: 2 of 4 at distance 1, and 4 of 4/3 within.
    auto const cube = measure(BRepPrimAPI_MakeBox(gp_Pnt(5, 5, 5), 2, 2, 2).Solid());
    double const expected = 2 * 4 + 4 * (2 * 8.0 / 12);
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column) {
            EXPECT_NEAR(cube.moments.Value(row, column), row == column ? expected : 0, 1e-9);
        }
    }
}

TEST(BodyMeasure, OfRoundBodiesFollowsTheirFormulas)
{
    auto const cylinder = measure(BRepPrimAPI_MakeCylinder(10, 20).Solid());
    EXPECT_NEAR(cylinder.volume, 2000 * pi, 1e-6);
    EXPECT_NEAR(cylinder.area, 600 * pi, 1e-6);
    auto const ball = measure(BRepPrimAPI_MakeSphere(10).Solid());
    EXPECT_NEAR(ball.volume, 4000 * pi / 3, 1e-6);
    EXPECT_NEAR(ball.area, 400 * pi, 1e-6);
}

TEST(BodyMeasure, LosesNoDigitsFarFromTheOrigin)
{
    auto const box = measure(BRepPrimAPI_MakeBox(gp_Pnt(1e6, 1e6, 1e6), 1, 1, 1).Solid());
    EXPECT_NEAR(box.volume, 1, 1e-8);
}

TEST(BodyMeasure, NoticesAFaceThatIsTurnedOver)
{
    auto const turned = measure(with_turned_face(BRepPrimAPI_MakeBox(10, 20, 30).Solid()));
    EXPECT_EQ(turned.turned_edges, 4);
    EXPECT_EQ(turned.free_edges, 0);
}

TEST(BodyMeasure, CountsTheEdgesAroundAHole)
{
    BRep_Builder builder;
    TopoDS_Shell shell;
    builder.MakeShell(shell);
    auto const box = BRepPrimAPI_MakeBox(10, 20, 30).Solid();
    TopExp_Explorer face(box, TopAbs_FACE);
    for (face.Next(); face.More(); face.Next()) {
        builder.Add(shell, face.Current());
    }
    EXPECT_EQ(measure(shell).free_edges, 4);
}

TEST(BodyMeasure, OfTrianglesIsThatOfTheirPlanes)
{
    auto const cube = measure(TopExp_Explorer(kit_facet_cube(), TopAbs_FACE).Current());
    EXPECT_NEAR(cube.volume, 1000, 1e-9);
    EXPECT_NEAR(cube.area, 600, 1e-9);
    EXPECT_EQ(cube.triangles, 12);
}

TEST(BodyMeasure, CanBePlacedInsteadOfMeasuredAgain)
{
    auto const solid = BRepPrimAPI_MakeCone(gp_Ax2(gp_Pnt(1, 2, 3), gp_Dir(1, 1, 1)), 10, 4, 20).Solid();
    gp_Trsf place;
    place.SetRotation(gp_Ax1(gp_Pnt(3, 1, 2), gp_Dir(0.3, -1, 2)), 0.7);
    gp_Trsf scale;
    scale.SetScale(gp_Pnt(1, 1, 1), 2.5);
    place.Multiply(scale);
    auto const computed = measure(solid).placed(place);
    auto const measured = measure(BRepBuilderAPI_Transform(solid, place, true).Shape());
    EXPECT_NEAR(computed.volume, measured.volume, 1e-9 * measured.volume);
    EXPECT_NEAR(computed.area, measured.area, 1e-9 * measured.area);
    EXPECT_LT(computed.centroid.Distance(measured.centroid), 1e-9);
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column) {
            EXPECT_NEAR(computed.moments.Value(row, column), measured.moments.Value(row, column),
                        1e-7 * measured.moments.Value(1, 1));
        }
    }
}

TEST(BodyMeasure, LooksToTheSideWhereAMirrorShowsIt)
{
    gp_Trsf place;
    place.SetMirror(gp_Ax2(gp_Pnt(3, 1, 2), gp_Dir(0.3, -1, 2)));
    gp_Trsf scale;
    scale.SetScale(gp_Pnt(1, 1, 1), 2.5);
    place.Multiply(scale);
    auto const cone = BRepPrimAPI_MakeCone(gp_Ax2(gp_Pnt(1, 2, 3), gp_Dir(1, 1, 1)), 10, 4, 20).Solid();
    TopExp_Explorer mirrored(BRepBuilderAPI_Transform(cone, place, true).Shape(), TopAbs_FACE);
    for (TopExp_Explorer face(cone, TopAbs_FACE); face.More(); face.Next(), mirrored.Next()) {
        auto const computed = measure(face.Current()).placed(place);
        auto const measured = measure(mirrored.Current());
        EXPECT_LT((computed.vector_area - measured.vector_area).Modulus(), 1e-9 * measured.area);
        EXPECT_NEAR(computed.outflow, measured.outflow, 1e-9 * measured.area);
        EXPECT_FALSE(computed.turned(measured));
        EXPECT_TRUE(computed.turned(measured.reversed()));
    }
}

TEST(BodyMeasure, OfCurvesIsExact)
{
    auto const half = std::numbers::pi / 2;
    // The ellipse with half axes 20 and 10, as its complete elliptic integral gives it.
    double const circumference = 4 * 20 * std::comp_ellint_2(std::sqrt(0.75));
    gp_Elips const ellipse(gp_Ax2(gp_Pnt(1, 2, 3), gp::DZ()), 20, 10);
    for (double const start : {0.0, 0.3, half, 2.0}) {
        auto const edge = BRepBuilderAPI_MakeEdge(ellipse, start, start + 4 * half).Edge();
        auto const curve = measure(edge);
        EXPECT_NEAR(curve.length, circumference, 1e-9 * circumference);
        EXPECT_LT(curve.centroid.Distance(gp_Pnt(1, 2, 3)), 1e-9);
        auto const spline = measure(BRepBuilderAPI_NurbsConvert(edge, Standard_True).Shape());
        EXPECT_NEAR(spline.length, circumference, 1e-8 * circumference);
    }
    gp_Circ const circle(gp_Ax2(gp::Origin(), gp::DZ()), 5);
    auto const round = measure(BRepBuilderAPI_MakeEdge(circle).Edge());
    EXPECT_NEAR(round.length, 10 * pi, 1e-9);
    EXPECT_NEAR(round.moments.Value(1, 1), 10 * pi * 12.5, 1e-6);
    EXPECT_NEAR(round.moments.Value(3, 3), 0, 1e-9);
    EXPECT_NEAR(measure(BRepBuilderAPI_MakeEdge(gp_Pnt(0, 0, 0), gp_Pnt(3, 4, 0)).Edge()).length, 5, 1e-12);
}

TEST(BodyMeasure, OfSweptSurfacesIsExact)
{
    double const circumference = 4 * 20 * std::comp_ellint_2(std::sqrt(0.75));
    gp_Elips const ellipse(gp_Ax2(), 20, 10);
    for (double const start : {0.0, 0.3, pi / 4, pi}) {
        auto const edge = BRepBuilderAPI_MakeEdge(ellipse, start, start + 2 * pi).Edge();
        auto const base = BRepBuilderAPI_MakeFace(BRepBuilderAPI_MakeWire(edge).Wire()).Face();
        auto const prism = measure(BRepPrimAPI_MakePrism(base, gp_Vec(0, 0, 10)).Shape());
        EXPECT_NEAR(prism.volume, 2000 * pi, 1e-8 * prism.volume) << start;
        EXPECT_NEAR(prism.area, 400 * pi + 10 * circumference, 1e-8 * prism.area) << start;
        EXPECT_LT(prism.centroid.Distance(gp_Pnt(0, 0, 5)), 1e-7) << start;
    }
    // A ball as the surface of revolution of half a circle, not as a sphere.
    Handle(Geom_Curve) const arc = new Geom_TrimmedCurve(
        new Geom_Circle(gp_Ax2(gp_Pnt(1, 2, 3), gp::DY(), gp::DX()), 10), -pi / 2, pi / 2);
    Handle(Geom_Surface) const revolved =
        new Geom_SurfaceOfRevolution(arc, gp_Ax1(gp_Pnt(1, 2, 3), gp::DZ()));
    auto const ball = measure(BRepBuilderAPI_MakeFace(revolved, 1e-7).Face());
    EXPECT_NEAR(ball.area, 400 * pi, 1e-8 * ball.area);
    EXPECT_LT(ball.centroid.Distance(gp_Pnt(1, 2, 3)), 1e-7);
}

TEST(BodyMeasure, OfACurveCanBePlacedInsteadOfMeasuredAgain)
{
    gp_Elips const ellipse(gp_Ax2(gp_Pnt(1, 2, 3), gp_Dir(1, 2, -1)), 20, 10);
    auto const edge = BRepBuilderAPI_MakeEdge(ellipse, 0.2, 2.0).Edge();
    gp_Trsf place;
    place.SetRotation(gp_Ax1(gp_Pnt(3, 1, 2), gp_Dir(0.3, -1, 2)), 0.7);
    gp_Trsf scale;
    scale.SetScale(gp_Pnt(1, 1, 1), 2.5);
    place.Multiply(scale);
    auto const computed = measure(edge).placed(place);
    auto const measured = measure(BRepBuilderAPI_Transform(edge, place, true).Shape());
    EXPECT_NEAR(computed.length, measured.length, 1e-9 * measured.length);
    EXPECT_LT(computed.centroid.Distance(measured.centroid), 1e-9);
    for (int row = 1; row <= 3; ++row) {
        EXPECT_NEAR(computed.moments.Value(row, row), measured.moments.Value(row, row), 1e-6);
    }
}
