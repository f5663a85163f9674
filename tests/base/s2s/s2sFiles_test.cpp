#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include "engineKit.h"
#include "kit/kitOrdinaryUser.h"
#include "s2s/s2sFiles.h"

namespace fs = std::filesystem;

namespace {

TEST(Files, AreTheSameUnderEveryNameOfOneFile)
{
    kitTempFolder const folder;
    write_text(folder / "a", "");
    write_text(folder / "b", "");
    fs::create_hard_link(folder / "a", folder / "hard");
    fs::create_symlink("a", folder / "soft");
    EXPECT_TRUE(s2s_same_file(folder / "a", folder / "hard"));
    EXPECT_TRUE(s2s_same_file(folder / "soft", folder / "hard"));
    EXPECT_TRUE(s2s_same_file(folder / "a", folder.path() / ".." / folder.path().filename() / "a"));
    EXPECT_FALSE(s2s_same_file(folder / "a", folder / "b"));
}

TEST(Files, AreTheSameWhenTheyWouldLieInTheSamePlace)
{
    kitTempFolder const folder;
    fs::create_directory(folder / "real");
    fs::create_symlink("real", folder / "linked");
    EXPECT_TRUE(s2s_same_file(folder / "real/new", folder / "linked/new"));
    EXPECT_FALSE(s2s_same_file(folder / "real/new", folder / "real/other"));
    EXPECT_FALSE(s2s_same_file(folder / "real", folder / "real/other"));
}

TEST(Files, AreFoundAmongOthers)
{
    kitTempFolder const folder;
    write_text(folder / "a", "");
    EXPECT_TRUE(s2s_is_one_of(folder / "a", {folder / "b", folder / "a"}));
    EXPECT_FALSE(s2s_is_one_of(folder / "a", {}));
}

TEST(Files, LieWhereTheirLinksLead)
{
    kitTempFolder const folder;
    fs::create_directory(folder / "d");
    fs::create_symlink("d/target", folder / "first");
    fs::create_symlink(folder / "first", folder / "second");
    EXPECT_EQ(s2s_real_place(folder / "second"), folder / "d/target");
    EXPECT_EQ(s2s_real_place(folder / "d/../plain"), folder / "plain");
}

TEST(Files, WithLinksInACircleComeToAnEnd)
{
    kitTempFolder const folder;
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    auto const place = s2s_real_place(folder / "a");
    EXPECT_TRUE(place == folder / "a" || place == folder / "b");
    EXPECT_TRUE(s2s_check_input(folder / "a"));
}

TEST(Files, MayBeWrittenWhenNewOrOrdinary)
{
    kitTempFolder const folder;
    write_text(folder / "old", "");
    EXPECT_FALSE(s2s_check_output(folder / "old"));
    EXPECT_FALSE(s2s_check_output(folder / "new"));
    EXPECT_TRUE(s2s_check_output(folder.path()));
    EXPECT_TRUE(s2s_check_output("/dev/null"));
    EXPECT_TRUE(s2s_check_output(folder / "bad\xFF"));
}

TEST(Files, OfAnotherKindAreNoInputs)
{
    kitTempFolder const folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    auto const failure = s2s_check_input(folder / "pipe");
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->key.str().find("no ordinary file"), std::string::npos);
    EXPECT_EQ(failure->arguments[0], ut_text_argument(folder / "pipe"));
}

TEST(Files, NeedANameToBeWritten)
{
    auto const failure = s2s_check_output("");
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->key.str().find("no name for the output"), std::string::npos);
}

TEST(Files, AreNotWrittenThroughLinksOfOtherUsers)
{
    kitTempFolder const folder;
    fs::create_symlink("private", folder / "own");
    fs::create_symlink("own", folder / "theirs");
    fs::create_symlink("theirs", folder / "chain");
    EXPECT_FALSE(s2s_check_output(folder / "own"));
    EXPECT_FALSE(s2s_check_output(folder / "chain"));
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make links of other users";
    ASSERT_EQ(lchown((folder / "theirs").c_str(), ordinary_user, ordinary_user), 0);
    for (auto const name : {"theirs", "chain"}) {
        auto const failure = s2s_check_output(folder / name);
        ASSERT_TRUE(failure) << name;
        EXPECT_NE(failure->key.str().find("another user"), std::string::npos);
    }
    EXPECT_FALSE(s2s_check_output(folder / "own"));
}

} // namespace
