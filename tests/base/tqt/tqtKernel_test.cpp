#include "tqt/tqtKernel.h"

#include <cmath>

#include <gtest/gtest.h>

namespace {

/// A box with one corner at `origin`, its triangles anticlockwise from outside.
sdaTriangleMesh box(sdaPoint const & origin, double x, double y, double z)
{
    sdaTriangleMesh mesh;
    for (int i = 0; i < 8; ++i)
        mesh.points.push_back(
            {origin.x + (i & 1 ? x : 0), origin.y + (i & 2 ? y : 0), origin.z + (i & 4 ? z : 0)});
    mesh.triangles = {{0, 2, 3}, {0, 3, 1}, {4, 5, 7}, {4, 7, 6}, {0, 1, 5}, {0, 5, 4},
                      {2, 6, 7}, {2, 7, 3}, {0, 4, 6}, {0, 6, 2}, {1, 3, 7}, {1, 7, 5}};
    return mesh;
}

sdaMeshMeasures measures_of(sdaTriangleMesh const & mesh)
{
    sdaMeshMeasures measures;
    EXPECT_EQ(tqtKernel().measure(mesh, measures), 1);
    return measures;
}

void expect_near(sdaPoint const & point, sdaPoint const & expected, double tolerance = 1e-12)
{
    EXPECT_NEAR(point.x, expected.x, tolerance);
    EXPECT_NEAR(point.y, expected.y, tolerance);
    EXPECT_NEAR(point.z, expected.z, tolerance);
}

} // namespace

TEST(Kernel, MeasuresABox)
{
    auto const measures = measures_of(box({1, 2, 3}, 2, 3, 4));
    EXPECT_TRUE(measures.closed);
    EXPECT_NEAR(measures.volume, 24, 1e-12);
    EXPECT_NEAR(measures.area, 52, 1e-12);
    expect_near(measures.centroid, {2, 3.5, 5});
    EXPECT_EQ(measures.low, (sdaPoint{1, 2, 3}));
    EXPECT_EQ(measures.high, (sdaPoint{3, 5, 7}));
}

TEST(Kernel, MeasuresATetrahedron)
{
    sdaTriangleMesh mesh;
    mesh.points = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    mesh.triangles = {{0, 2, 1}, {0, 1, 3}, {0, 3, 2}, {1, 2, 3}};
    auto const measures = measures_of(mesh);
    EXPECT_NEAR(measures.volume, 1.0 / 6, 1e-15);
    EXPECT_NEAR(measures.area, 1.5 + std::sqrt(3.0) / 2, 1e-15);
    expect_near(measures.centroid, {0.25, 0.25, 0.25});
}

TEST(Kernel, MeasuresABodyFarFromTheOriginAsWell)
{
    auto const measures = measures_of(box({1e7, 1e7, 1e7}, 1, 1, 1));
    EXPECT_NEAR(measures.volume, 1, 1e-9);
    expect_near(measures.centroid, {1e7 + 0.5, 1e7 + 0.5, 1e7 + 0.5}, 1e-6);
}

TEST(Kernel, GivesANegativeVolumeToABodyThatIsInsideOut)
{
    auto mesh = box({0, 0, 0}, 1, 1, 1);
    for (auto & triangle : mesh.triangles)
        std::swap(triangle[1], triangle[2]);
    auto const measures = measures_of(mesh);
    EXPECT_TRUE(measures.closed);
    EXPECT_NEAR(measures.volume, -1, 1e-12);
    expect_near(measures.centroid, {0.5, 0.5, 0.5});
}

TEST(Kernel, GivesNoVolumeToAnOpenMesh)
{
    auto mesh = box({0, 0, 0}, 2, 2, 2);
    mesh.triangles.resize(2); // the face below
    auto const measures = measures_of(mesh);
    EXPECT_FALSE(measures.closed);
    EXPECT_EQ(measures.volume, 0);
    EXPECT_NEAR(measures.area, 4, 1e-12);
    expect_near(measures.centroid, {1, 1, 0});
    EXPECT_EQ(measures.high, (sdaPoint{2, 2, 0}));
}

TEST(Kernel, DoesNotTakeAMeshForClosedThatIsTurnedOrDoubledInPlaces)
{
    auto turned = box({0, 0, 0}, 1, 1, 1);
    std::swap(turned.triangles[0][1], turned.triangles[0][2]);
    EXPECT_FALSE(measures_of(turned).closed);
    auto doubled = box({0, 0, 0}, 1, 1, 1);
    doubled.triangles.push_back(doubled.triangles[0]);
    EXPECT_FALSE(measures_of(doubled).closed);
}

TEST(Kernel, MeasuresATriangleThatHasShrunkToAPoint)
{
    sdaTriangleMesh mesh;
    mesh.points = {{1, 2, 3}};
    mesh.triangles = {{0, 0, 0}};
    auto const measures = measures_of(mesh);
    EXPECT_FALSE(measures.closed);
    EXPECT_EQ(measures.area, 0);
    EXPECT_EQ(measures.centroid, (sdaPoint{1, 2, 3}));
}

TEST(Kernel, RefusesMeshesThatItCannotMeasure)
{
    sdaMeshMeasures measures;
    measures.area = 7;
    EXPECT_EQ(tqtKernel().measure({}, measures), 0);
    EXPECT_EQ(tqtKernel().measure({{{0, 0, 0}}, {}}, measures), 0);
    EXPECT_EQ(tqtKernel().measure({{{0, 0, 0}}, {{0, 0, 1}}}, measures), 0);
    EXPECT_EQ(tqtKernel().measure({{{0, 0, 0}}, {{0, -1, 0}}}, measures), 0);
    EXPECT_EQ(measures.area, 7);
}
