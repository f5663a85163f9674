#include "iges/igesPrimitives.h"

#include "igesFormatTest.h"
#include "sdk/geometry/sdkMeasures.h"

#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <IGESGeom_Line.hxx>
#include <IGESSolid_Block.hxx>
#include <IGESSolid_ConeFrustum.hxx>
#include <IGESSolid_Cylinder.hxx>
#include <IGESSolid_Ellipsoid.hxx>
#include <IGESSolid_RightAngularWedge.hxx>
#include <IGESSolid_SolidOfLinearExtrusion.hxx>
#include <IGESSolid_SolidOfRevolution.hxx>
#include <IGESSolid_Sphere.hxx>
#include <IGESSolid_Torus.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_XYZ.hxx>

#include <numbers>

namespace {

constexpr double pi = std::numbers::pi;

// Lengths in the entity are in cm.
TopoDS_Shape solid(Handle(IGESData_IGESEntity) const & entity, TopoDS_Shape const & curve = {})
{
    EXPECT_TRUE(iges_is_primitive(entity));
    return iges_primitive(entity, 10, [&](Handle(IGESData_IGESEntity) const &) { return curve; });
}

void expect_solid(TopoDS_Shape const & shape, double volume)
{
    ASSERT_FALSE(shape.IsNull());
    EXPECT_EQ(shape.ShapeType(), TopAbs_SOLID);
    EXPECT_TRUE(BRepCheck_Analyzer(shape).IsValid());
    EXPECT_NEAR(sdk_measure(shape).volume, volume, 1e-6 * volume);
}

TopoDS_Shape polygon(std::vector<gp_Pnt> const & corners, bool closed)
{
    BRepBuilderAPI_MakePolygon polygon;
    for (auto const & corner : corners) {
        polygon.Add(corner);
    }
    if (closed) {
        polygon.Close();
    }
    return polygon.Wire();
}

} // namespace

TEST(IgesPrimitives, ABlockLiesAtItsCornerAlongItsAxes)
{
    Handle(IGESSolid_Block) const block = new IGESSolid_Block;
    block->Init({1, 2, 3}, {10, 0, 0}, {0, 1, 0}, {0, 0, 1});
    auto const shape = solid(block);
    expect_solid(shape, 6000);
    auto const box = sdk_measure(shape).box;
    EXPECT_NEAR(box.CornerMin().X(), 80, 1e-4); // y points to -x
    EXPECT_NEAR(box.CornerMax().Y(), 10, 1e-4);
    EXPECT_NEAR(box.CornerMax().Z(), 30, 1e-4);
}

TEST(IgesPrimitives, AWedgeNarrowsAlongY)
{
    Handle(IGESSolid_RightAngularWedge) const wedge = new IGESSolid_RightAngularWedge;
    wedge->Init({4, 2, 3}, 1, {0, 0, 0}, {1, 0, 0}, {0, 0, 1});
    auto const shape = solid(wedge);
    expect_solid(shape, 1000 * 0.5 * (4 + 1) * 2 * 3);
    EXPECT_NEAR(sdk_measure(shape).box.CornerMax().X(), 40, 1e-4);
}

TEST(IgesPrimitives, RoundSolidsHaveTheirVolumes)
{
    Handle(IGESSolid_Cylinder) const cylinder = new IGESSolid_Cylinder;
    cylinder->Init(2, 1, {0, 0, 0}, {0, 0, 1});
    expect_solid(solid(cylinder), 2000 * pi);
    Handle(IGESSolid_ConeFrustum) const frustum = new IGESSolid_ConeFrustum;
    frustum->Init(3, 2, 1, {0, 0, 0}, {0, 0, 1});
    expect_solid(solid(frustum), 1000 * pi * (4 + 2 + 1));
    Handle(IGESSolid_ConeFrustum) const cone = new IGESSolid_ConeFrustum;
    cone->Init(3, 2, 0, {0, 0, 0}, {0, 0, 1});
    expect_solid(solid(cone), 1000 * pi * 4);
    Handle(IGESSolid_Sphere) const sphere = new IGESSolid_Sphere;
    sphere->Init(1, {5, 5, 5});
    expect_solid(solid(sphere), 4000 * pi / 3);
    EXPECT_NEAR(sdk_measure(solid(sphere)).box.CornerMin().X(), 40, 1e-4);
    Handle(IGESSolid_Torus) const torus = new IGESSolid_Torus;
    torus->Init(3, 1, {0, 0, 0}, {0, 0, 1});
    expect_solid(solid(torus), 6000 * pi * pi);
}

TEST(IgesPrimitives, AnExtrusionTakesEitherDirection)
{
    auto const square = polygon({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}, true);
    for (double const z : {1.0, -1.0}) {
        Handle(IGESSolid_SolidOfLinearExtrusion) const extrusion = new IGESSolid_SolidOfLinearExtrusion;
        extrusion->Init(new IGESGeom_Line, 3, {0, 0, z});
        expect_solid(solid(extrusion, square), 3000);
    }
}

TEST(IgesPrimitives, AnExtrusionOfAnOpenCurveIsNone)
{
    Handle(IGESSolid_SolidOfLinearExtrusion) const extrusion = new IGESSolid_SolidOfLinearExtrusion;
    extrusion->Init(new IGESGeom_Line, 3, {0, 0, 1});
    EXPECT_TRUE(solid(extrusion, polygon({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}}, false)).IsNull());
    EXPECT_TRUE(solid(extrusion).IsNull());
}

TEST(IgesPrimitives, ARevolutionIsClosedByItselfOrByTheAxis)
{
    Handle(IGESSolid_SolidOfRevolution) const whole = new IGESSolid_SolidOfRevolution;
    whole->Init(new IGESGeom_Line, 1, {0, 0, 0}, {0, 0, 1});
    whole->SetClosedToAxis(Standard_True);
    expect_solid(solid(whole, polygon({{10, 0, 0}, {10, 0, 20}}, false)), 2000 * pi);

    Handle(IGESSolid_SolidOfRevolution) const quarter = new IGESSolid_SolidOfRevolution;
    quarter->Init(new IGESGeom_Line, 0.25, {0, 0, 0}, {0, 0, 1});
    quarter->SetClosedToAxis(Standard_False);
    auto const square = polygon({{10, 0, 0}, {20, 0, 0}, {20, 0, 10}, {10, 0, 10}}, true);
    auto const shape = solid(quarter, square);
    expect_solid(shape, 750 * pi);
    EXPECT_NEAR(sdk_measure(shape).box.CornerMin().Y(), 0, 1e-4); // turns from x to y
    EXPECT_TRUE(solid(quarter, polygon({{10, 0, 0}, {10, 0, 20}}, false)).IsNull());
}

TEST(IgesPrimitives, DimensionsOfNothingGiveNone)
{
    Handle(IGESSolid_Cylinder) const flat = new IGESSolid_Cylinder;
    flat->Init(0, 1, {0, 0, 0}, {0, 0, 1});
    EXPECT_TRUE(solid(flat).IsNull());
    Handle(IGESSolid_Torus) const spindle = new IGESSolid_Torus;
    spindle->Init(1, 2, {0, 0, 0}, {0, 0, 1});
    EXPECT_TRUE(solid(spindle).IsNull());
}

TEST(IgesPrimitives, AnEllipsoidIsNotAmongThem)
{
    EXPECT_FALSE(iges_is_primitive(new IGESSolid_Ellipsoid));
}

class IgesPrimitivesInFiles : public igesFormatTest {};

TEST_F(IgesPrimitivesInFiles, StandBesideOtherSolids)
{
    sdkDocument block;
    ASSERT_TRUE(read(FAULTS "/ig_csgblock.igs", block));
    EXPECT_EQ(sdk_measure(block).solids, 2);
    EXPECT_NEAR(sdk_measure(block).volume, 6000 + 125, 1e-6);
    sdkDocument sphere;
    ASSERT_TRUE(read(FAULTS "/ig_csgsphere.igs", sphere));
    EXPECT_EQ(sdk_measure(sphere).solids, 2);
    EXPECT_NEAR(sdk_measure(sphere).volume, 6000 + 4.0 / 3 * pi * 125, 1e-6);
}
