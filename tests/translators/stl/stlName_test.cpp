#include "stl/stlName.h"

#include <gtest/gtest.h>

TEST(StlName, IsTrimmed)
{
    EXPECT_EQ(stl_name_of("  left wing \r"), "left wing");
    EXPECT_EQ(stl_name_of(" \t"), "");
}

TEST(StlName, KeepsUtf8AndConvertsOlderText)
{
    EXPECT_EQ(stl_name_of("Geh\xC3\xA4use"), "Gehäuse");
    EXPECT_EQ(stl_name_of("Geh\xE4use"), "Gehäuse");
}

TEST(StlName, StaysInOneLineWhenWritten)
{
    EXPECT_EQ(stl_name_for("two\nlines\r"), "two lines ");
}
