#include "sdk/geometry/sdkTessellation.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>

namespace {

constexpr double wide = std::numbers::pi / 2;

Handle(Poly_Triangulation) first_mesh(TopoDS_Shape const & shape)
{
    TopLoc_Location location;
    return BRep_Tool::Triangulation(TopoDS::Face(TopExp_Explorer(shape, TopAbs_FACE).Current()), location);
}

// How far the middles of the triangles lie below the sphere of that radius around the origin, at most.
double depth_below_sphere(TopoDS_Shape const & sphere, double radius)
{
    auto const mesh = first_mesh(sphere);
    double depth = 0;
    for (int number = 1; number <= mesh->NbTriangles(); ++number) {
        int a = 0;
        int b = 0;
        int c = 0;
        mesh->Triangle(number).Get(a, b, c);
        auto const middle = (mesh->Node(a).XYZ() + mesh->Node(b).XYZ() + mesh->Node(c).XYZ()) / 3;
        depth = std::max(depth, radius - middle.Modulus());
    }
    return depth;
}

} // namespace

TEST(Tessellation, FollowsASphereWithinTheLinearDeflection)
{
    for (double const linear : {1.0, 0.1, 0.01}) {
        auto const sphere = BRepPrimAPI_MakeSphere(10).Shape();
        auto const counts = sdk_tessellate(sphere, {.linear = linear, .angular = wide});
        EXPECT_EQ(counts.faces, 1);
        EXPECT_EQ(counts.failed, 0);
        EXPECT_EQ(counts.triangles, sdk_measure(sphere).triangles);
        EXPECT_LE(depth_below_sphere(sphere, 10), linear);
    }
}

TEST(Tessellation, HasMoreTrianglesForASmallerAngle)
{
    auto const coarse = BRepPrimAPI_MakeSphere(10).Shape();
    auto const fine = BRepPrimAPI_MakeSphere(10).Shape();
    EXPECT_GT(sdk_tessellate(fine, {.linear = 1, .angular = 0.1}).triangles,
              4 * sdk_tessellate(coarse, {.linear = 1, .angular = 0.5}).triangles);
}

TEST(Tessellation, ReplacesTrianglesThatAreTooCoarseAndKeepsFinerOnes)
{
    auto const sphere = BRepPrimAPI_MakeSphere(10).Shape();
    auto const coarse = sdk_tessellate(sphere, {.linear = 1, .angular = wide}).triangles;
    auto const fine = sdk_tessellate(sphere, {.linear = 0.01, .angular = wide}).triangles;
    EXPECT_GT(fine, coarse);
    auto const mesh = first_mesh(sphere);
    EXPECT_EQ(sdk_tessellate(sphere, {.linear = 0.5, .angular = wide}).triangles, fine);
    EXPECT_EQ(first_mesh(sphere), mesh);
}

TEST(Tessellation, KeepsTheTrianglesOfFacesWithoutASurface)
{
    auto const facets = kit_facet_cube();
    BRep_Builder builder;
    TopoDS_Compound both;
    builder.MakeCompound(both);
    builder.Add(both, facets);
    builder.Add(both, kit_cube(5));
    auto const mesh = first_mesh(facets);
    auto const counts = sdk_tessellate(both, {});
    EXPECT_EQ(counts.faces, 7);
    EXPECT_EQ(counts.triangles, 24);
    EXPECT_EQ(first_mesh(facets), mesh);
}

TEST(Tessellation, CountsFacesThatHaveNeitherSurfaceNorTriangles)
{
    TopoDS_Face empty;
    BRep_Builder().MakeFace(empty);
    auto const counts = sdk_tessellate(empty, {});
    EXPECT_EQ(counts.faces, 0);
    EXPECT_EQ(counts.failed, 1);
}

TEST(Tessellation, CountsEachPartOfAnAssemblyOnce)
{
    sdkDocument document;
    kit_add_assembly(document);
    auto const counts = sdk_tessellate(document, {});
    EXPECT_EQ(counts.faces, 12);
    EXPECT_EQ(counts.triangles, 24);
    EXPECT_FALSE(counts.cancelled);
}
