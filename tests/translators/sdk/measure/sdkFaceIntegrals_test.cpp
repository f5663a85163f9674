#include "sdk/measure/sdkBodyMeasure.h"
#include "sdk/measure/sdkFaceIntegrals.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom2dConvert.hxx>
#include <Geom2d_BSplineCurve.hxx>
#include <Geom2d_TrimmedCurve.hxx>
#include <GeomConvert.hxx>
#include <Geom_BSplineSurface.hxx>
#include <Geom_CylindricalSurface.hxx>
#include <Geom_RectangularTrimmedSurface.hxx>
#include <Geom_SphericalSurface.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <gp_Ax2.hxx>
#include <gp_Elips.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

sdkBodyMeasure measure(TopoDS_Shape const & shape)
{
    return sdk_measure_body(TopExp_Explorer(shape, TopAbs_SOLID).Current(), sdkMeasureLevel::full);
}

// A prism over an ellipse 40 x 20 that begins at this angle of its own.
TopoDS_Shape elliptic_prism(double start)
{
    gp_Elips const ellipse(gp_Ax2(), 20, 10);
    auto const edge = BRepBuilderAPI_MakeEdge(ellipse, start, start + 2 * pi).Edge();
    auto const face = BRepBuilderAPI_MakeFace(BRepBuilderAPI_MakeWire(edge).Wire()).Face();
    return BRepPrimAPI_MakePrism(face, gp_Vec(0, 0, 10)).Shape();
}

// The way of an edge through the parameters of its face, as a spline.
Handle(Geom2d_BSplineCurve) spline_way(TopoDS_Edge const & edge, TopoDS_Face const & face)
{
    double first = 0;
    double last = 0;
    auto const way = BRep_Tool::CurveOnSurface(edge, face, first, last);
    return Geom2dConvert::CurveToBSplineCurve(new Geom2d_TrimmedCurve(way, first, last));
}

} // namespace

TEST(FaceIntegrals, OfPrimitivesFollowTheirFormulas)
{
    auto const cone = measure(BRepPrimAPI_MakeCone(10, 4, 20).Solid());
    EXPECT_NEAR(cone.volume, pi * 20 * (100 + 40 + 16) / 3, 1e-8);
    auto const torus = measure(BRepPrimAPI_MakeTorus(20, 5).Solid());
    EXPECT_NEAR(torus.volume, 2 * pi * pi * 20 * 25, 1e-7);
    EXPECT_NEAR(torus.area, 4 * pi * pi * 20 * 5, 1e-7);
    EXPECT_LT(torus.centroid.Distance(gp::Origin()), 1e-9);
    auto const ball = measure(BRepPrimAPI_MakeSphere(gp_Ax2(gp_Pnt(1, 2, 3), gp_Dir(1, 1, 0)), 10).Solid());
    EXPECT_NEAR(ball.volume, 4000 * pi / 3, 1e-7);
    EXPECT_LT(ball.centroid.Distance(gp_Pnt(1, 2, 3)), 1e-9);
}

TEST(FaceIntegrals, OfAPrismOverAnEllipseDoNotDependOnWhereTheEllipseBegins)
{
    for (double const start : {0.0, pi / 4, pi, 5.0}) {
        auto const prism = measure(elliptic_prism(start));
        EXPECT_NEAR(prism.volume, 2000 * pi, 1e-7) << start;
        EXPECT_NEAR(prism.area, measure(elliptic_prism(0)).area, 1e-7) << start;
        EXPECT_LT(prism.centroid.Distance(gp_Pnt(0, 0, 5)), 1e-9) << start;
    }
}

TEST(FaceIntegrals, OfSplinesAreThoseOfTheSurfacesThatTheyStandFor)
{
    for (auto const & shape : {BRepPrimAPI_MakeSphere(10).Solid(), BRepPrimAPI_MakeTorus(20, 5).Solid()}) {
        auto const exact = measure(shape);
        auto const spline = measure(BRepBuilderAPI_NurbsConvert(shape, true).Shape());
        EXPECT_NEAR(spline.volume, exact.volume, 1e-7 * exact.volume);
        EXPECT_NEAR(spline.area, exact.area, 1e-7 * exact.area);
        EXPECT_LT(spline.centroid.Distance(exact.centroid), 1e-6);
    }
}

TEST(FaceIntegrals, LeaveOutHoles)
{
    auto const plate = BRepPrimAPI_MakeBox(gp_Pnt(-20, -20, 0), 40, 40, 10).Solid();
    auto const drill = BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(0, 0, -5), gp_Dir(0, 0, 1)), 5, 20).Solid();
    auto const drilled = measure(BRepAlgoAPI_Cut(plate, drill).Shape());
    EXPECT_NEAR(drilled.volume, 16000 - 250 * pi, 1e-7);
    EXPECT_NEAR(drilled.area, 2 * (1600 - 25 * pi) + 1600 + 100 * pi, 1e-7);
}

TEST(FaceIntegrals, OfAFaceWithoutABoundaryAreThoseOfItsWholeSurface)
{
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, new Geom_SphericalSurface(gp_Ax3(), 10), 1e-7);
    auto const integrals = sdk_face_integrals(face, gp::Origin());
    EXPECT_NEAR(integrals.area, 400 * pi, 1e-8);
    EXPECT_NEAR(integrals.volume, 4000 * pi / 3, 1e-7);
    EXPECT_NEAR(sdk_face_integrals(TopoDS::Face(face.Reversed()), gp::Origin()).volume, -4000 * pi / 3, 1e-7);
}

TEST(FaceIntegrals, KnowToWhichSideTheFaceLooks)
{
    TopExp_Explorer faces(BRepPrimAPI_MakeBox(10, 20, 30).Solid(), TopAbs_FACE);
    auto const face = TopoDS::Face(faces.Current()); // of least x
    auto const area = sdk_face_integrals(face, gp_Pnt(1, 2, 3)).vector_area;
    EXPECT_LT((area - gp_XYZ(-600, 0, 0)).Modulus(), 1e-9);
    auto const turned = sdk_face_integrals(TopoDS::Face(face.Reversed()), gp_Pnt(1, 2, 3)).vector_area;
    EXPECT_LT((turned - gp_XYZ(600, 0, 0)).Modulus(), 1e-9);
}

TEST(FaceIntegrals, AddUpOverFaces)
{
    sdkFaceIntegrals sum;
    for (TopExp_Explorer face(BRepPrimAPI_MakeBox(10, 20, 30).Solid(), TopAbs_FACE); face.More();
         face.Next()) {
        sum += sdk_face_integrals(TopoDS::Face(face.Current()), gp_Pnt(3, 3, 3));
    }
    EXPECT_NEAR(sum.volume, 6000, 1e-9);
    EXPECT_NEAR(sum.area, 2200, 1e-9);
    // Of a volume about a point: its centroid from there.
    EXPECT_NEAR(sum.volume_moment.X() / sum.volume, 2, 1e-9);
    EXPECT_NEAR(sum.volume_moment.Y() / sum.volume, 7, 1e-9);
    EXPECT_NEAR(sum.volume_moment.Z() / sum.volume, 12, 1e-9);
}

TEST(FaceIntegrals, OfSplinesAreExactWhereABoundaryCrossesFromPatchToPatch)
{
    // Half a tube of two patches; its boundary on the surface is made of splines, too, and passes from one
    // patch into the other.
    Handle(Geom_Surface) const tube = GeomConvert::SurfaceToBSplineSurface(
        new Geom_RectangularTrimmedSurface(new Geom_CylindricalSurface(gp_Ax3(), 10), 0.0, pi, 0.0, 20.0));
    auto const face = BRepBuilderAPI_MakeFace(tube, 1e-7).Face();
    BRep_Builder builder;
    for (TopExp_Explorer one(face, TopAbs_EDGE); one.More(); one.Next()) {
        auto const & edge = TopoDS::Edge(one.Current());
        builder.UpdateEdge(edge, spline_way(edge, face), face, 1e-7);
    }
    auto const integrals = sdk_face_integrals(face, gp::Origin());
    EXPECT_NEAR(integrals.area, 200 * pi, 1e-9);
    EXPECT_NEAR(integrals.area_moment.X() / integrals.area, 0, 1e-9);
    EXPECT_NEAR(integrals.area_moment.Y() / integrals.area, 20 / pi, 1e-9);
    EXPECT_NEAR(integrals.area_moment.Z() / integrals.area, 10, 1e-9);
}

TEST(FaceIntegrals, OfSplinesAreNoNumberWhereAPartOfTheBoundaryIsNowhere)
{
    // Of many patches, so that the boundary that has a place says where on the surface the face lies.
    Handle(Geom_Surface) const ball = GeomConvert::SurfaceToBSplineSurface(
        new Geom_RectangularTrimmedSurface(new Geom_SphericalSurface(gp_Ax3(), 10), 0.0, 6.0, -1.5, 1.5));
    auto const face = BRepBuilderAPI_MakeFace(ball, 1e-7).Face();
    BRep_Builder builder;
    for (TopExp_Explorer one(face, TopAbs_EDGE); one.More(); one.Next()) {
        auto const & edge = TopoDS::Edge(one.Current());
        auto const good = spline_way(edge, face);
        auto const way = Handle(Geom2d_BSplineCurve)::DownCast(good->Copy());
        auto const pole = way->Pole(1);
        way->SetPole(1, gp_Pnt2d(pole.X(), std::nan("")));
        builder.UpdateEdge(edge, way, face, 1e-7);
        // The edge along the least u adds nothing.
        bool const counts = pole.X() > 1e-9 || way->Pole(2).X() > 1e-9;
        EXPECT_EQ(std::isnan(sdk_face_integrals(face, gp::Origin()).area), counts);
        builder.UpdateEdge(edge, good, face, 1e-7);
    }
}
