#include "sdk/sdkFiles.h"

#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>

TEST(Files, NameAndStem)
{
    EXPECT_EQ(sdk_file_name("/a/b.c/part.v2.step"), "part.v2.step");
    EXPECT_EQ(sdk_file_stem("/a/b.c/part.v2.step"), "part.v2");
    EXPECT_EQ(sdk_file_stem("деталь.igs"), "деталь");
    EXPECT_EQ(sdk_file_stem("plain"), "plain");
}

TEST(Files, SystemTextIsThatOfTheSystem)
{
    EXPECT_EQ(sdk_system_text(ENOSPC), "No space left on device");
}

TEST(Files, OnlyAFileWithContentCountsAsWritten)
{
    kitTempFolder const folder;
    EXPECT_TRUE(sdk_check_written(folder.write("good", "x"), "shown"));
    auto const empty = sdk_check_written(folder.write("empty", ""), "shown");
    EXPECT_EQ(empty.status(), sdkStatus::write_error);
    EXPECT_EQ(empty.text().formatted(), "shown could not be written: there is no content for it");
    EXPECT_EQ(sdk_check_written(folder / "absent", "shown").status(), sdkStatus::write_error);
}
