#include "ap/apFileIdentity.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "kit/kitTempFolder.h"

TEST(FileIdentity, IsTheSameThroughLinksOfBothKinds)
{
    kitTempFolder const temp;
    auto const file = temp.write("file", "x");
    std::filesystem::create_symlink(file, temp / "soft");
    std::filesystem::create_hard_link(file, temp / "hard");
    EXPECT_TRUE(ap_same_file(file, temp / "soft"));
    EXPECT_TRUE(ap_same_file(file, temp / "hard"));
    EXPECT_TRUE(ap_same_file(
        file, (temp / "./../") + std::filesystem::path(temp.path().string()).filename().native() + "/file"));
}

TEST(FileIdentity, DiffersBetweenFilesOfEqualContent)
{
    kitTempFolder const temp;
    EXPECT_FALSE(ap_same_file(temp.write("a", "x"), temp.write("b", "x")));
}

TEST(FileIdentity, IsAbsentWhereNothingIs)
{
    kitTempFolder const temp;
    EXPECT_FALSE(ap_file_identity(temp / "missing"));
    EXPECT_FALSE(ap_same_file(temp / "missing", temp / "missing"));
    std::filesystem::create_symlink("nowhere", temp / "dangling");
    EXPECT_FALSE(ap_file_identity(temp / "dangling"));
    EXPECT_FALSE(ap_file_identity(std::string(4000, 'x')));
    EXPECT_FALSE(ap_file_identity(""));
}
