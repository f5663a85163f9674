#include "sdk/sdkDocument.h"

#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeVertex.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <gtest/gtest.h>

TEST(Document, IsInMillimetres)
{
    sdkDocument const document;
    double unit = 0;
    ASSERT_TRUE(XCAFDoc_DocumentTool::GetLengthUnit(document.handle(), unit));
    EXPECT_DOUBLE_EQ(unit, 0.001);
    EXPECT_TRUE(document.empty());
}

TEST(Document, KeepsNamesInAnyScript)
{
    sdkDocument document;
    for (char const * const name : {"Gehäuse", "箱", "😀", "plain"}) {
        auto const label = document.add_shape(kit_cube(1), name);
        EXPECT_EQ(sdkDocument::name(label), name);
    }
    EXPECT_EQ(sdkDocument::name(document.add_shape(kit_cube(1), "")), "");
    EXPECT_EQ(sdkDocument::name({}), "");
}

TEST(Document, DoesNotTakeANullShape)
{
    sdkDocument document;
    EXPECT_TRUE(document.add_shape({}, "name").IsNull());
    EXPECT_TRUE(document.empty());
}

TEST(Document, KnowsItsPartsEachOnce)
{
    sdkDocument document;
    kit_add_assembly(document);
    EXPECT_EQ(document.free_shapes().Length(), 1);
    EXPECT_EQ(document.parts().Length(), 2);
    EXPECT_EQ(sdkDocument::parts_of(document.free_shapes()).Length(), 2);
    EXPECT_EQ(document.count_entities().faces, 12);
    EXPECT_EQ(document.count_entities().solids, 2);
}

TEST(Document, TellsWhichFreeShapesWereAdded)
{
    sdkDocument document;
    document.add_shape(kit_cube(1), "old");
    auto const before = document.free_shapes();
    auto const added = document.add_shape(kit_cube(2), "new");
    auto const since = document.free_shapes_since(before);
    ASSERT_EQ(since.Length(), 1);
    EXPECT_EQ(since.First(), added);
    EXPECT_EQ(sdkDocument::parts_of(since).Length(), 1);
}

TEST(EntityCount, CountsFacesFreeCurvesAndFreePoints)
{
    auto const count =
        sdk_count_entities(kit_compound({kit_cube(1), kit_wire(), BRepBuilderAPI_MakeVertex({1, 2, 3})}));
    EXPECT_EQ(count.faces, 6);
    EXPECT_EQ(count.curves, 2);
    EXPECT_EQ(count.points, 1);
    EXPECT_EQ(count.solids, 1);
    EXPECT_EQ(count.facets_only, 0);
    EXPECT_EQ(count.entities(), 9);
    EXPECT_EQ(sdk_count_entities({}).entities(), 0);
}

TEST(EntityCount, KnowsFacesThatHaveOnlyTriangles)
{
    auto const count = sdk_count_entities(kit_facet_cube());
    EXPECT_EQ(count.faces, 1);
    EXPECT_EQ(count.facets_only, 1);
}
