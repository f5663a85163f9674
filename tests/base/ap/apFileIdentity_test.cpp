#include "ap/apFileIdentity.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "TempDirectory.h"

TEST(FileIdentity, IsTheSameThroughLinksOfBothKinds)
{
    TempDirectory const temp;
    auto const file = temp.write("file", "x");
    std::filesystem::create_symlink(file, temp.path("soft"));
    std::filesystem::create_hard_link(file, temp.path("hard"));
    EXPECT_TRUE(ap_same_file(file, temp.path("soft")));
    EXPECT_TRUE(ap_same_file(file, temp.path("hard")));
    EXPECT_TRUE(ap_same_file(file, temp.path("./../") +
                                       std::filesystem::path(temp.path()).filename().native() + "/file"));
}

TEST(FileIdentity, DiffersBetweenFilesOfEqualContent)
{
    TempDirectory const temp;
    EXPECT_FALSE(ap_same_file(temp.write("a", "x"), temp.write("b", "x")));
}

TEST(FileIdentity, IsAbsentWhereNothingIs)
{
    TempDirectory const temp;
    EXPECT_FALSE(ap_file_identity(temp.path("missing")));
    EXPECT_FALSE(ap_same_file(temp.path("missing"), temp.path("missing")));
    std::filesystem::create_symlink("nowhere", temp.path("dangling"));
    EXPECT_FALSE(ap_file_identity(temp.path("dangling")));
    EXPECT_FALSE(ap_file_identity(std::string(4000, 'x')));
    EXPECT_FALSE(ap_file_identity(""));
}
