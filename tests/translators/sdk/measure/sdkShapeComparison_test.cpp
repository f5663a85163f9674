#include "measureBodies.h"

#include "sdk/measure/sdkShapeComparison.h"
#include "translators/kit/kitParts.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <GeomAPI_PointsToBSplineSurface.hxx>
#include <Geom_BSplineSurface.hxx>
#include <ShapeUpgrade_ShapeDivideClosed.hxx>
#include <TColgp_Array2OfPnt.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

// A sheet of 100 x 100 in waves, with poles everywhere.
Handle(Geom_BSplineSurface) waves()
{
    constexpr int points = 30;
    TColgp_Array2OfPnt grid(1, points, 1, points);
    for (int i = 1; i <= points; ++i) {
        for (int j = 1; j <= points; ++j) {
            double const x = 100. * (i - 1) / (points - 1);
            double const y = 100. * (j - 1) / (points - 1);
            grid(i, j) = gp_Pnt(x, y, 3 * std::sin(x / 15) * std::cos(y / 20));
        }
    }
    return GeomAPI_PointsToBSplineSurface(grid, 3, 3, GeomAbs_C2, 1.0e-3).Surface();
}

TopoDS_Shape sheet(Handle(Geom_BSplineSurface) const & surface)
{
    return BRepBuilderAPI_MakeFace(surface, 1.0e-7).Face();
}

// Of one pole, about as high at its top as it is moved.
TopoDS_Shape with_bump(double height)
{
    auto const surface = waves();
    int const u = surface->NbUPoles() / 2;
    int const v = surface->NbVPoles() / 2;
    surface->SetPole(u, v, surface->Pole(u, v).Translated(gp_Vec(0, 0, height)));
    return sheet(surface);
}

TopoDS_Shape turned(TopoDS_Shape const & shape, gp_Ax1 const & axis, double degrees)
{
    gp_Trsf turn;
    turn.SetRotation(axis, degrees * std::numbers::pi / 180);
    return BRepBuilderAPI_Transform(shape, turn, Standard_True).Shape();
}

// By sdk_compare(), which takes them for the same body first.
std::vector<sdkFinding> differences(TopoDS_Shape const & source, TopoDS_Shape const & output)
{
    auto const from = inventory_of({{"part", source}});
    auto const to = inventory_of({{"part", output}});
    EXPECT_TRUE(sdk_same_body(from.bodies.at(0), to.bodies.at(0), {}));
    auto const findings = sdk_compare(from, to, everything());
    EXPECT_TRUE(all_fit(findings));
    return findings;
}

Kinds found(TopoDS_Shape const & source, TopoDS_Shape const & output)
{
    return kinds(differences(source, output));
}

} // namespace

TEST(ShapeComparison, FindsABumpThatNoIntegralShows)
{
    auto const source = sheet(waves());
    EXPECT_EQ(found(source, sheet(waves())), Kinds());
    auto const findings = differences(source, with_bump(0.002));
    ASSERT_EQ(kinds(findings), (Kinds{"surface"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::difference);
    EXPECT_EQ(findings[0].part, "part");
    EXPECT_GT(*findings[0].output, 2.0e-4);
    EXPECT_LT(*findings[0].output, 2.0e-3);
}

TEST(ShapeComparison, TakesASurfaceThatIsDescribedAnewForTheSame)
{
    auto finer = waves();
    finer->IncreaseDegree(4, 5);
    EXPECT_EQ(found(sheet(waves()), sheet(finer)), Kinds());
    auto swapped = waves();
    swapped->ExchangeUV();
    EXPECT_EQ(found(sheet(waves()), sheet(swapped).Reversed()), Kinds());
    auto backwards = waves();
    backwards->UReverse();
    EXPECT_EQ(found(sheet(waves()), sheet(backwards).Reversed()), Kinds());
    // And with a bump all the same.
    finer->SetPole(20, 20, finer->Pole(20, 20).Translated(gp_Vec(0, 0, 0.003)));
    EXPECT_EQ(found(sheet(waves()), sheet(finer)), (Kinds{"surface"}));
}

TEST(ShapeComparison, TakesElementarySurfacesAndTheirSplinesForTheSame)
{
    for (auto const & shape : {BRepPrimAPI_MakeCylinder(5, 20).Shape(), BRepPrimAPI_MakeSphere(7).Shape(),
                               BRepPrimAPI_MakeTorus(20, 4).Shape()}) {
        auto const splines = BRepBuilderAPI_NurbsConvert(shape, Standard_True).Shape();
        EXPECT_EQ(found(shape, splines), Kinds());
        EXPECT_EQ(found(splines, shape), Kinds());
    }
}

TEST(ShapeComparison, TakesDividedFacesForTheSame)
{
    auto const plate = BRepAlgoAPI_Cut(BRepPrimAPI_MakeBox(30., 30., 5.).Shape(),
                                       BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(15, 12, 0), gp::DZ()), 4, 5))
                           .Shape();
    for (auto const & shape : {plate, BRepPrimAPI_MakeTorus(20, 4).Shape()}) {
        ShapeUpgrade_ShapeDivideClosed divide(shape);
        ASSERT_TRUE(divide.Perform());
        EXPECT_EQ(found(shape, divide.Result()), Kinds());
        EXPECT_EQ(found(divide.Result(), shape).size(), 1U); // fewer faces
    }
}

TEST(ShapeComparison, FindsABodyThatWasTurnedSoThatItsMomentsRemain)
{
    auto const prism = BRepPrimAPI_MakeBox(10., 10., 30.).Shape();
    gp_Ax1 const axis(gp_Pnt(5, 5, 0), gp::DZ());
    EXPECT_EQ(found(prism, turned(prism, axis, 30)), (Kinds{"surface"}));
    EXPECT_EQ(found(prism, turned(prism, axis, 90)), Kinds()); // the same corners again
}

TEST(ShapeComparison, FindsAHoleThatMovedALittle)
{
    auto const plate = [](double x) {
        auto const hole = BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(x, 100, 0), gp::DZ()), 1, 2).Shape();
        return BRepAlgoAPI_Cut(BRepPrimAPI_MakeBox(200., 200., 2.).Shape(), hole).Shape();
    };
    EXPECT_EQ(found(plate(100), plate(100)), Kinds());
    EXPECT_EQ(found(plate(100), plate(100.002)), (Kinds{"face"}));
}

TEST(ShapeComparison, LooksAtEachPlaceOfADefinition)
{
    sdkDocument source;
    sdkDocument output;
    for (auto * document : {&source, &output}) {
        auto const part = document->add_shape(BRepPrimAPI_MakeBox(10., 10., 30.).Shape(), "part");
        auto const assembly = document->shapes()->NewShape();
        document->shapes()->AddComponent(assembly, part, TopLoc_Location());
        gp_Trsf place;
        place.SetTranslation(gp_Vec(50, 0, 0));
        if (document == &output) {
            gp_Trsf turn;
            turn.SetRotation(gp_Ax1(gp_Pnt(5, 5, 0), gp::DZ()), 0.01);
            place = place * turn;
        }
        document->shapes()->AddComponent(assembly, part, TopLoc_Location(place));
        document->shapes()->UpdateAssemblies();
    }
    auto const findings =
        sdk_compare(sdk_take_inventory(source, {}), sdk_take_inventory(output, {}), everything());
    EXPECT_EQ(findings.size(), 1U);
}
