#include "sdk/geometry/sdkMassProperties.h"

#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <Geom_BezierSurface.hxx>
#include <Precision.hxx>
#include <TColStd_Array2OfReal.hxx>
#include <TColgp_Array2OfPnt.hxx>
#include <TopExp_Explorer.hxx>
#include <gp_Pln.hxx>
#include <gp_Trsf.hxx>

#include <gtest/gtest.h>

#include <cmath>

namespace {

void expect_point(std::optional<gp_Pnt> const & point, gp_Pnt const & expected)
{
    ASSERT_TRUE(point);
    EXPECT_LT(point->Distance(expected), 1e-6) << point->X() << ' ' << point->Y() << ' ' << point->Z();
}

TopoDS_Shape moved(TopoDS_Shape const & shape, double x)
{
    gp_Trsf translation;
    translation.SetTranslation(gp_Vec(x, 0, 0));
    return shape.Moved(translation);
}

} // namespace

TEST(MassProperties, OfASolid)
{
    auto const properties = sdk_mass_properties(kit_cube(10));
    EXPECT_NEAR(properties.volume, 1000, 1e-9);
    EXPECT_NEAR(properties.area, 600, 1e-9);
    EXPECT_NEAR(properties.solid_area, 600, 1e-9);
    EXPECT_EQ(properties.solids, 1);
    EXPECT_EQ(properties.faces, 6);
    expect_point(properties.centroid(), gp_Pnt(5, 5, 5));
}

TEST(MassProperties, OpenFacesAddNoVolumeAndDoNotMoveTheCentroid)
{
    // Integrated together, a face that lies far off would count as a cone from the origin.
    TopExp_Explorer const face(moved(kit_cube(10), 1000), TopAbs_FACE);
    auto const properties = sdk_mass_properties(kit_compound({kit_cube(10), face.Current()}));
    EXPECT_NEAR(properties.volume, 1000, 1e-9);
    EXPECT_NEAR(properties.area, 700, 1e-9);
    EXPECT_NEAR(properties.solid_area, 600, 1e-9);
    expect_point(properties.centroid(), gp_Pnt(5, 5, 5));
}

TEST(MassProperties, FacesAloneHaveTheCentroidOfTheirArea)
{
    auto const properties = sdk_mass_properties(kit_compound(kit_loose_faces(kit_cube(10))));
    EXPECT_EQ(properties.volume, 0);
    EXPECT_NEAR(properties.area, 600, 1e-9);
    EXPECT_EQ(properties.solid_area, 0);
    expect_point(properties.centroid(), gp_Pnt(5, 5, 5));
}

TEST(MassProperties, OfNothingAreNone)
{
    EXPECT_FALSE(sdk_mass_properties({}).centroid());
    EXPECT_FALSE(sdk_mass_properties(kit_wire()).centroid());
}

TEST(MassProperties, OfAnAssemblyAreThoseOfWhatItPlaces)
{
    sdkDocument document;
    kit_add_assembly(document);
    sdkMassPropertiesOfLabels labels;
    auto const properties = labels.of(document.free_shapes().First());
    EXPECT_NEAR(properties.volume, 2000, 1e-9);
    EXPECT_NEAR(properties.area, 600 + 2 * 400, 1e-9);
    EXPECT_EQ(properties.solids, 3);
    // The cube at 0 and the two boxes of half its height at 20 and 40.
    expect_point(properties.centroid(), gp_Pnt((1000 * 5 + 500 * 25 + 500 * 45) / 2000.0, 5, 3.75));
    EXPECT_NEAR(properties.box.CornerMax().X(), 50, 1e-3);
}

TEST(MassProperties, AScaledAndMirroredPlacementScalesThem)
{
    gp_Trsf placement;
    placement.SetMirror(gp_Pnt(0, 0, 0));
    placement.SetScaleFactor(-2);
    sdkMassProperties placed;
    placed.add(sdk_mass_properties(kit_cube(10)), placement);
    EXPECT_NEAR(placed.volume, 8000, 1e-9);
    EXPECT_NEAR(placed.area, 2400, 1e-9);
    expect_point(placed.centroid(), gp_Pnt(-10, -10, -10));
}

TEST(MassProperties, OfAnUnboundedFaceAreNoNumbers)
{
    EXPECT_TRUE(sdk_mass_properties(kit_cube(10)).finite());
    EXPECT_FALSE(sdk_mass_properties(BRepBuilderAPI_MakeFace(gp_Pln()).Face()).finite());
}

// A rational surface that one pole draws to itself; its area is 560.165, by a sum over small squares.
TEST(MassProperties, TheIntegrationWithAnAccuracyIsFurtherOffThanTheOneUsed)
{
    TColgp_Array2OfPnt poles(1, 3, 1, 3);
    TColStd_Array2OfReal weights(1, 3, 1, 3);
    weights.Init(1);
    weights(2, 2) = 5;
    for (int u = 1; u <= 3; ++u) {
        for (int v = 1; v <= 3; ++v) {
            poles(u, v) = gp_Pnt(10 * u, 10 * v, u == 2 && v == 2 ? 15 : 0);
        }
    }
    auto const face =
        BRepBuilderAPI_MakeFace(new Geom_BezierSurface(poles, weights), Precision::Confusion()).Face();
    EXPECT_NEAR(sdk_mass_properties(face).area, 560.165, 0.05);
    GProp_GProps adaptive;
    double const error = BRepGProp::SurfaceProperties(face, adaptive, 1e-6);
    EXPECT_LT(error, 1e-6);
    EXPECT_GT(std::abs(adaptive.Mass() - 560.165), 1);
}
