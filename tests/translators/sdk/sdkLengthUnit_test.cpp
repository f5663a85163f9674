#include "sdk/sdkLengthUnit.h"

#include "sdk/sdkManifest.h"

#include <gtest/gtest.h>

#include <algorithm>

TEST(LengthUnit, IsFoundByItsName)
{
    ASSERT_NE(sdk_length_unit("in"), nullptr);
    EXPECT_EQ(sdk_length_unit("in")->millimetres, 25.4);
    EXPECT_EQ(sdk_length_unit("m")->millimetres, 1000);
    EXPECT_EQ(sdk_length_unit("inch"), nullptr);
    EXPECT_EQ(sdk_length_unit(""), nullptr);
}

TEST(LengthUnit, IsFoundByItsLength)
{
    EXPECT_EQ(sdk_length_unit(25.4000001)->name, "in");
    EXPECT_EQ(sdk_length_unit(304.8)->name, "ft");
    EXPECT_EQ(sdk_length_unit(2.0), nullptr);
    EXPECT_EQ(sdk_length_unit(0.0), nullptr);
}

TEST(LengthUnit, ListIsThatOfTheManifests)
{
    sdkManifest manifest;
    ASSERT_EQ(manifest.load(TRANSLATOR_SOURCES "/step/step.json"), "");
    auto const & resources = manifest.format("STEP")->resources;
    auto const units = std::find_if(resources.begin(), resources.end(),
                                    [](auto const & one) { return one.name == "vmrOptOutputUnits"; });
    ASSERT_NE(units, resources.end());
    ASSERT_EQ(units->values.size(), sdk_length_units.size());
    for (std::size_t at = 0; at < sdk_length_units.size(); ++at) {
        EXPECT_EQ(units->values[at], sdk_length_units[at].name);
    }
}
