#include "iges/igesUnits.h"

#include <gtest/gtest.h>

#include <set>

TEST(IgesUnits, HasAFlagForEachUnit)
{
    std::set<int> flags;
    for (auto const & unit : sdk_length_units) {
        auto const flag = iges_unit_flag(unit);
        EXPECT_GT(flag, 0) << unit.name;
        EXPECT_NE(flag, 3) << "3 stands for a unit that is named in words";
        flags.insert(flag);
    }
    EXPECT_EQ(flags.size(), sdk_length_units.size());
    EXPECT_EQ(iges_unit_flag(*sdk_length_unit("in")), 1);
    EXPECT_EQ(iges_unit_flag(*sdk_length_unit("mm")), 2);
}
