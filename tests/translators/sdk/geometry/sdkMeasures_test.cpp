#include "sdk/geometry/sdkMeasures.h"

#include "translators/kit/kitParts.h"

#include <gtest/gtest.h>

TEST(Measures, TellSizeAndCountsOfASolid)
{
    auto const measures = sdk_measure(kit_hollow_cube());
    EXPECT_NEAR(measures.volume, 7000, 1e-9);
    EXPECT_NEAR(measures.area, 2400 + 600, 1e-9);
    EXPECT_EQ(measures.solids, 1);
    EXPECT_EQ(measures.shells, 2);
    EXPECT_EQ(measures.faces, 12);
    EXPECT_EQ(measures.edges, 24);
    EXPECT_EQ(measures.free_edges, 0);
    EXPECT_EQ(measures.vertices, 16);
    EXPECT_EQ(measures.triangles, 0);
    EXPECT_NEAR(measures.box.CornerMax().Distance(gp_Pnt(20, 20, 20)), 0, 1e-5);
}

TEST(Measures, MeasureAMeshByItsTriangles)
{
    auto const measures = sdk_measure(kit_facet_cube());
    EXPECT_NEAR(measures.volume, 1000, 1e-9);
    EXPECT_NEAR(measures.area, 600, 1e-9);
    EXPECT_EQ(measures.triangles, 12);
    EXPECT_NEAR(measures.box.CornerMax().Distance(gp_Pnt(10, 10, 10)), 0, 1e-5);
}

TEST(Measures, CountEdgesThatBoundNoFace)
{
    auto const measures = sdk_measure(kit_wire());
    EXPECT_EQ(measures.edges, 2);
    EXPECT_EQ(measures.free_edges, 2);
    EXPECT_EQ(measures.faces, 0);
}

TEST(Measures, CountPartsAsOftenAsTheyArePlaced)
{
    sdkDocument document;
    kit_add_assembly(document);
    document.add_shape(kit_cube(1), "Beside");
    auto const measures = sdk_measure(document);
    EXPECT_EQ(measures.solids, 4);
    EXPECT_NEAR(measures.volume, 2001, 1e-9);
}

TEST(Measures, AreZeroForNothing)
{
    EXPECT_EQ(sdk_measure(TopoDS_Shape()).faces, 0);
    sdkDocument const document;
    EXPECT_TRUE(sdk_measure(document).box.IsVoid());
    EXPECT_TRUE(sdk_whole_shape(document).IsNull());
}
