#include "sdb/sdbSchemaDir.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

#include "ap/apStringUTF8Encoding.h"
#include "sdb/sdb_fix_resource_path.h"
#include "vmr/vmrabsAppInfo.h"

namespace fs = std::filesystem;

namespace {

class SchemaDir : public testing::Test {
protected:
    SchemaDir()
    {
        fs::create_directory(temp / "user");
        fs::create_directory(temp / "installed");
        fs::create_directory(temp / "more");
    }
    apPathName path(std::string const & name) const { return apPathName::from_utf8(temp / name); }

    kitTempFolder temp;
    sdbSchemaDir dir{path("user"), sdbSearchPath({path("installed"), path("more")})};
};

} // namespace

TEST_F(SchemaDir, PrefersTheUsersFileToTheInstallations)
{
    temp.write("installed/step.rsc", "");
    EXPECT_EQ(dir.find_file("step.rsc").str(), temp / "installed/step.rsc");
    temp.write("user/step.rsc", "");
    EXPECT_EQ(dir.find_file("step.rsc").str(), temp / "user/step.rsc");
}

TEST_F(SchemaDir, SearchesTheInstallationInItsOrder)
{
    temp.write("more/iges.rsc", "");
    EXPECT_EQ(dir.find_file("iges.rsc").str(), temp / "more/iges.rsc");
    temp.write("installed/iges.rsc", "");
    EXPECT_EQ(dir.find_file("iges.rsc").str(), temp / "installed/iges.rsc");
}

TEST_F(SchemaDir, GivesAnInvalidStringForWhatIsAbsent)
{
    EXPECT_TRUE(dir.find_file("absent").invalid());
    EXPECT_TRUE(dir.find_dir("absent").invalid());
    EXPECT_TRUE(dir.find_file("").invalid());
    EXPECT_TRUE(dir.find_dir("").invalid());
    EXPECT_TRUE(dir.find_file(utString::make_invalid()).invalid());
    EXPECT_TRUE(sdbSchemaDir().find_file("passwd").invalid());
}

TEST_F(SchemaDir, TellsFilesFromDirectories)
{
    fs::create_directory(temp / "user/lib");
    temp.write("installed/lib", "");
    EXPECT_EQ(dir.find_dir("lib").str(), temp / "user/lib");
    EXPECT_EQ(dir.find_file("lib").str(), temp / "installed/lib");
}

TEST_F(SchemaDir, GivesTheInstallationAsTextForTheSearchOfFiles)
{
    temp.write("user/step.rsc", "");
    temp.write("more/step.rsc", "");
    EXPECT_EQ(vmrabsAppInfo::find_file_in_path(dir.installation_path(), "step.rsc").str(),
              temp / "more/step.rsc");
}

TEST_F(SchemaDir, MakesTheUsersDirectoryWithAllAboveIt)
{
    sdbSchemaDir const deep(path("a/b/c"), {});
    EXPECT_NE(deep.create_user_dir(), 0);
    EXPECT_TRUE(fs::is_directory(temp / "a/b/c"));
    EXPECT_NE(deep.create_user_dir(), 0);
    EXPECT_EQ(temp.mode("a/b/c") & 0700u, 0700u);
}

TEST_F(SchemaDir, SaysThatTheUsersDirectoryCannotBeMade)
{
    temp.write("file", "");
    EXPECT_EQ(sdbSchemaDir(path("file/below"), {}).create_user_dir(), 0);
    EXPECT_EQ(sdbSchemaDir(path("file"), {}).create_user_dir(), 0);
    EXPECT_EQ(sdbSchemaDir().create_user_dir(), 0);
}

TEST_F(SchemaDir, SaysThatTheUsersDirectoryCannotBeWritten)
{
    fs::permissions(temp.path().string(), fs::perms::all);
    fs::permissions(temp / "user", fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
    EXPECT_TRUE(as_ordinary_user([&] { return geteuid() != ordinary_user || dir.create_user_dir() == 0; }));
}

TEST_F(SchemaDir, FindsNamesThatAreNotText)
{
    temp.write("user/caf\xe9.rsc", "");
    EXPECT_EQ(dir.find_file("caf\xe9.rsc").str(), temp / "user/caf\xe9.rsc");
}

TEST(SearchPath, IsEmptyAtFirst)
{
    sdbSearchPath const none;
    bool found = true;
    EXPECT_TRUE(none.directory_path(found).empty());
    EXPECT_FALSE(found);
    EXPECT_TRUE(none.ut_path_string(nullptr).empty());
    EXPECT_TRUE(none.find_file(L"x").empty());
}

TEST(SearchPath, GivesItsDirectoriesInOrder)
{
    apStringUTF8Encoding const encoding;
    sdbSearchPath const path({L"/a", L"/b"});
    bool found = false;
    EXPECT_EQ(path.directory_path(found), apPathName(L"/a"));
    EXPECT_TRUE(found);
    EXPECT_EQ(path.ut_path_string(&encoding), utString("/a:/b"));
    auto copy = path;
    EXPECT_EQ(copy.directories(), path.directories());
}

TEST(SearchPath, FindsTheFirstFileOfAName)
{
    kitTempFolder const temp;
    fs::create_directory(temp / "a");
    fs::create_directory(temp / "b");
    temp.write("b/vmrdoc.htb", "");
    sdbSearchPath const path({apPathName::from_utf8(temp / "a"), apPathName::from_utf8(temp / "b")});
    EXPECT_EQ(path.find_file(L"vmrdoc.htb").utf8(), temp / "b/vmrdoc.htb");
    EXPECT_TRUE(path.find_file(L"absent").invalid());
    EXPECT_TRUE(path.find_file(L"").invalid());
}

TEST(FixResourcePath, MakesAPathAbsolute)
{
    utString path("xrc/vmrgrlib.xrc");
    sdb_fix_resource_path(path);
    EXPECT_EQ(path.str(), (fs::current_path() / "xrc/vmrgrlib.xrc").string());
}

TEST(FixResourcePath, TakesOutEmptyComponentsAndLeavesTheRest)
{
    utString path("//usr/./share//vmr/../a b#c%41/x.xrc");
    sdb_fix_resource_path(path);
    EXPECT_EQ(path.str(), "/usr/share/vmr/../a b#c%41/x.xrc");
    utString root("/");
    sdb_fix_resource_path(root);
    EXPECT_EQ(root.str(), "/");
}

TEST(FixResourcePath, LeavesWhatIsNoPath)
{
    utString empty;
    sdb_fix_resource_path(empty);
    EXPECT_EQ(empty, utString());
    auto invalid = utString::make_invalid();
    sdb_fix_resource_path(invalid);
    EXPECT_TRUE(invalid.invalid());
}
