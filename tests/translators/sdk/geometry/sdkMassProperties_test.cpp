#include "sdk/geometry/sdkMassProperties.h"

#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <TopExp_Explorer.hxx>
#include <gp_Pln.hxx>
#include <gp_Trsf.hxx>

#include <gtest/gtest.h>

#include <numbers>

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

TEST(MassProperties, AnAccuracyIsReached)
{
    auto const properties = sdk_mass_properties(BRepPrimAPI_MakeSphere(10).Shape(), 1e-8);
    EXPECT_NEAR(properties.volume / (4000 * std::numbers::pi / 3), 1, 1e-8);
    EXPECT_NEAR(properties.area / (400 * std::numbers::pi), 1, 1e-8);
}
