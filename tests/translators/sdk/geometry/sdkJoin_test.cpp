#include "sdk/geometry/sdkJoin.h"

#include "translators/kit/kitParts.h"

#include <TopoDS_Iterator.hxx>
#include <gtest/gtest.h>

TEST(Join, LeavesASingleShapeAsItIs)
{
    auto const cube = kit_cube(10);
    EXPECT_TRUE(sdk_join({cube}).IsEqual(cube));
}

TEST(Join, MakesACompoundOfSeveralShapesInTheirOrder)
{
    std::vector<TopoDS_Shape> const cubes{kit_cube(10), kit_cube(20), kit_cube(30)};
    auto const joined = sdk_join(cubes);
    EXPECT_EQ(joined.ShapeType(), TopAbs_COMPOUND);
    std::size_t count = 0;
    for (TopoDS_Iterator member(joined); member.More(); member.Next(), ++count) {
        ASSERT_LT(count, cubes.size());
        EXPECT_TRUE(member.Value().IsEqual(cubes[count])) << count;
    }
    EXPECT_EQ(count, cubes.size());
}

TEST(Join, MakesAnEmptyCompoundOfNothing)
{
    auto const joined = sdk_join({});
    ASSERT_FALSE(joined.IsNull());
    EXPECT_EQ(joined.ShapeType(), TopAbs_COMPOUND);
    EXPECT_EQ(joined.NbChildren(), 0);
}
