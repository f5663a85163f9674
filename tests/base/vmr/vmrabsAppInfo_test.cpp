#include "vmr/vmrabsAppInfo.h"

#include <filesystem>

#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

namespace {

vmrabsAppInfo make_info()
{
    return vmrabsAppInfo("program", "os", "user", "Organisation Unknown", "");
}

} // namespace

TEST(AppInfo, KeepsWhatItWasMadeWith)
{
    auto const info = make_info();
    EXPECT_EQ(info.program(), utString("program"));
    EXPECT_EQ(info.os(), utString("os"));
    EXPECT_EQ(info.user(), utString("user"));
    EXPECT_EQ(info.organisation(), utString("Organisation Unknown"));
    EXPECT_TRUE(info.remark().empty());
    EXPECT_FALSE(info.ut_encoding());
    EXPECT_FALSE(info.mb_encoding());
    EXPECT_FALSE(info.services());
}

TEST(AppInfo, GivesInformationByKey)
{
    auto info = make_info();
    EXPECT_TRUE(info.info("company").invalid());
    info.set_info("company", "one");
    info.set_info("company", "two");
    EXPECT_EQ(info.info("company"), utString("two"));
    info.set_build_number("Build 7");
    EXPECT_EQ(info.build_number(), utString("Build 7"));
}

TEST(AppInfo, GivesTheSearchPathOfASubject)
{
    auto info = make_info();
    EXPECT_TRUE(info.schema_path("resources").invalid());
    info.set_schema_path("resources", "/a:/b");
    EXPECT_EQ(info.schema_path("resources"), utString("/a:/b"));
}

TEST(AppInfo, FindsAFileInTheFirstDirectoryThatHasIt)
{
    kitTempFolder const first, second;
    auto const path = utString(first.path().string() + "::" + second.path().string() + "/");
    second.write("x.txt", "");
    EXPECT_EQ(vmrabsAppInfo::find_file_in_path(path, "x.txt"), utString(second / "x.txt"));
    first.write("x.txt", "");
    EXPECT_EQ(vmrabsAppInfo::find_file_in_path(path, "x.txt"), utString(first / "x.txt"));
}

TEST(AppInfo, FindsNoDirectoriesAndNothingThatIsAbsent)
{
    kitTempFolder const directory;
    std::filesystem::create_directory(directory / "sub");
    EXPECT_TRUE(vmrabsAppInfo::find_file_in_path(directory.path().string(), "sub").invalid());
    EXPECT_TRUE(vmrabsAppInfo::find_file_in_path(directory.path().string(), "none").invalid());
    EXPECT_TRUE(vmrabsAppInfo::find_file_in_path(directory.path().string(), "").invalid());
    EXPECT_TRUE(vmrabsAppInfo::find_file_in_path("", "sub").invalid());
    EXPECT_TRUE(vmrabsAppInfo::find_file_in_path(utString::make_invalid(), "sub").invalid());
}
