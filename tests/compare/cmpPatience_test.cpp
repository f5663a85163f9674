#include "compare/cmpPatience.h"

#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

using std::chrono::seconds;

TEST(ComparePatience, GrowsWithTheFiles)
{
    kitTempFolder const folder;
    cmpOptions options;
    options.a.path = folder.write("small", "x");
    options.b.path = folder.write("large", "x");
    EXPECT_GE(cmp_patience(options), seconds(600));
    EXPECT_LT(cmp_patience(options), seconds(601));
    std::filesystem::resize_file(options.b.path, 3 * 1024 * 1024);
    EXPECT_GE(cmp_patience(options), seconds(780));
    EXPECT_LT(cmp_patience(options), seconds(781));
    options.b.path = folder / "absent";
    EXPECT_LT(cmp_patience(options), seconds(601));
}

TEST(ComparePatience, IsWhatTheUserSays)
{
    cmpOptions options;
    options.timeout = 2.5;
    EXPECT_EQ(cmp_patience(options), std::chrono::milliseconds(2500));
    options.timeout = 0;
    EXPECT_FALSE(cmp_patience(options));
}
