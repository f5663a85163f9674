#include "sdk/measure/sdkMeshDistance.h"

#include "measureBodies.h"
#include "sdk/sdkVisibility.h"
#include "translators/kit/kitParts.h"

#include <BRepPrimAPI_MakeCylinder.hxx>

#include <gtest/gtest.h>

#include <cmath>

namespace {

sdkDocument const & facets()
{
    static sdkDocument document;
    if (document.empty()) {
        document.add_shape(kit_facet_cube(), "Facets");
    }
    return document;
}

} // namespace

TEST(MeshDistance, IsToTheNearestTriangle)
{
    sdkMeshDistance const mesh(facets());
    EXPECT_FALSE(mesh.empty());
    EXPECT_NEAR(mesh.of(gp_Pnt(5, 5, 10)), 0, 1e-12);
    EXPECT_NEAR(mesh.of(gp_Pnt(5, 5, 13)), 3, 1e-12);
    EXPECT_NEAR(mesh.of(gp_Pnt(5, 5, 9)), 1, 1e-12);
    EXPECT_NEAR(mesh.of(gp_Pnt(13, 14, 5)), 5, 1e-12);
    EXPECT_NEAR(mesh.of(gp_Pnt(12, 12, 11)), 3, 1e-12);
}

TEST(MeshDistance, FollowsThePlaceOfTheMesh)
{
    sdkDocument document;
    document.add_shape(kit_facet_cube().Moved(shifted(100)), "Facets");
    EXPECT_NEAR(sdkMeshDistance(document).of(gp_Pnt(99, 5, 5)), 1, 1e-12);
}

TEST(MeshDistance, IsInfiniteWithoutTriangles)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Cube");
    EXPECT_TRUE(sdkMeshDistance(document).empty());
    EXPECT_TRUE(std::isinf(sdkMeshDistance(document).of(gp::Origin())));
}

TEST(SurfacePoints, LieOnTheSurfacesAtAllPlaces)
{
    sdkDocument document;
    auto const rod = document.add_shape(BRepPrimAPI_MakeCylinder(5, 20).Shape(), "Rod");
    auto const assembly = document.shapes()->NewShape();
    document.shapes()->AddComponent(assembly, rod, shifted(100));
    document.shapes()->AddComponent(assembly, rod, shifted(200));
    document.shapes()->UpdateAssemblies();
    auto const points = sdk_surface_points(document);
    int near = 0;
    int inside = 0;
    int on_caps = 0;
    for (auto const & [point, part] : points) {
        EXPECT_EQ(part, "Rod");
        double const axis = point.X() < 150 ? 100 : 200;
        double const radius = std::hypot(point.X() - axis, point.Y());
        bool const cap = std::abs(point.Z()) < 1e-6 || std::abs(point.Z() - 20) < 1e-6;
        EXPECT_TRUE(cap ? radius < 5 + 1e-6 : std::abs(radius - 5) < 1e-6) << radius;
        on_caps += cap && radius < 4.9 ? 1 : 0;
        near += point.X() < 150 ? 1 : 0;
        inside += point.Z() > 1 && point.Z() < 19 ? 1 : 0;
    }
    EXPECT_EQ(points.size(), 2U * static_cast<std::size_t>(near));
    EXPECT_GT(inside, 20);
    EXPECT_GE(on_caps, 8);
}

TEST(SurfacePoints, AreNoMoreThanAskedForOnAFace)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Cube");
    EXPECT_LE(sdk_surface_points(document, true, 4).size(), 6U * 9U);
    EXPECT_TRUE(sdk_surface_points(facets()).empty());
}

TEST(SurfacePoints, LeaveOutWhatIsHiddenWhenAsked)
{
    sdkDocument document;
    auto const left = kit_cube(10);
    auto const right = kit_cube(10).Moved(shifted(20));
    auto const part = document.add_shape(kit_compound({left, right}), "Two");
    auto const all = sdk_surface_points(document).size();
    sdk_hide(document, document.shapes()->AddSubShape(part, right));
    EXPECT_EQ(sdk_surface_points(document).size(), all);
    EXPECT_EQ(sdk_surface_points(document, false).size(), all / 2);
    auto const assembly = document.shapes()->NewShape();
    auto const place = document.shapes()->AddComponent(assembly, part, TopLoc_Location());
    document.shapes()->UpdateAssemblies();
    EXPECT_EQ(sdk_surface_points(document, false).size(), all / 2);
    sdk_hide(document, place);
    EXPECT_TRUE(sdk_surface_points(document, false).empty());
}
