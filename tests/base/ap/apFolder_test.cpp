#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "ap/apFolder.h"
#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

namespace fs = std::filesystem;

namespace {

class Folder : public ::testing::Test {
protected:
    kitTempFolder temp;
    apFolder top = apFolder::open(temp.path());
};

TEST_F(Folder, KnowsItsEntries)
{
    temp.write("b/file", "");
    temp.write("a", "");
    auto names = top.names();
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"a", "b"}));
    EXPECT_TRUE(S_ISDIR(top.status("b")->st_mode));
    EXPECT_FALSE(top.status("c"));
    EXPECT_EQ(top.names().size(), 2u) << "read from the beginning each time";
}

TEST_F(Folder, IsNoneWhereThereIsNoFolder)
{
    temp.write("file", "");
    EXPECT_FALSE(apFolder::open(temp / "none").is_open());
    EXPECT_EQ(errno, ENOENT);
    EXPECT_FALSE(apFolder::open(temp / "file").is_open());
    EXPECT_FALSE(apFolder().is_open());
    EXPECT_TRUE(apFolder().names().empty());
    EXPECT_FALSE(apFolder().identity());
}

TEST_F(Folder, StaysTheSameWhateverTakesItsPath)
{
    fs::create_directory(temp / "work");
    fs::create_directory(temp / "private");
    auto const work = top.open_folder("work");
    fs::rename(temp / "work", temp / "moved");
    fs::create_directory_symlink("private", temp / "work");
    EXPECT_TRUE(work.open_file("part.cad", O_WRONLY | O_CREAT | O_EXCL, 0600).write("new"));
    EXPECT_EQ(temp.read("moved/part.cad"), "new");
    EXPECT_TRUE(fs::is_empty(temp / "private"));
    EXPECT_TRUE(top.has_under("moved", work));
    EXPECT_FALSE(top.has_under("work", work));
}

TEST_F(Folder, LeavesNoFolderThatItCouldNotOpen)
{
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit const none{0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    auto const made = top.make_folder("new", 0700);
    int const error = errno;
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_FALSE(made.is_open());
    EXPECT_EQ(error, EMFILE);
    EXPECT_TRUE(top.names().empty());
}

TEST_F(Folder, FollowsNoLinks)
{
    temp.write("private/key", "secret");
    fs::create_directory_symlink("private", temp / "folder");
    fs::create_symlink("private/key", temp / "file");
    EXPECT_FALSE(top.open_folder("folder").is_open());
    EXPECT_FALSE(top.open_file("file", O_RDONLY).open());
    EXPECT_FALSE(top.open_file("file", O_WRONLY | O_CREAT | O_TRUNC, 0600).open());
    EXPECT_TRUE(S_ISLNK(top.status("file")->st_mode));
    EXPECT_EQ(temp.read("private/key"), "secret");
}

TEST_F(Folder, MakesFoldersAndNoneTwice)
{
    auto const made = top.make_folder("made", 0700);
    ASSERT_TRUE(made.is_open());
    EXPECT_EQ(temp.mode("made"), 0700U);
    EXPECT_FALSE(top.make_folder("made", 0700).is_open());
    EXPECT_EQ(errno, EEXIST);
}

TEST_F(Folder, RemovesWhatItHoldsAndNothingBehindALink)
{
    temp.write("work/deep/deeper/file", "");
    temp.write("work/kept", "");
    temp.write("private/file", "mine");
    fs::create_directory_symlink("../private", temp / "work/link");
    fs::create_symlink("../../private/file", temp / "work/deep/link");
    top.open_folder("work").remove_contents("kept");
    EXPECT_EQ(top.open_folder("work").names(), std::vector<std::string>{"kept"});
    EXPECT_EQ(temp.read("private/file"), "mine");
}

TEST_F(Folder, RemovesFoldersThatWereClosedToTheirOwner)
{
    temp.write("work/closed/file", "");
    for (auto const & name : {"", "work", "work/closed/file", "work/closed"})
        give_to_ordinary_user((temp.path() / name).string());
    fs::permissions(temp / "work/closed", fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_TRUE(as_ordinary_user([&] {
        top.open_folder("work").remove_contents();
        return top.open_folder("work").names().empty();
    }));
}

TEST_F(Folder, LeavesFoldersOfOtherUsers)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make folders of other users";
    temp.write("work/results/part.cad", "theirs");
    give_to_ordinary_user(temp / "work/results");
    top.open_folder("work").remove_contents();
    EXPECT_EQ(temp.read("work/results/part.cad"), "theirs");
}

TEST_F(Folder, TakesOneThatCanBeWrittenAndNotRead)
{
    fs::create_directory(temp / "in tray");
    give_to_ordinary_user(temp / "in tray");
    give_to_ordinary_user(temp.path().string());
    fs::permissions(temp / "in tray", fs::perms::owner_write | fs::perms::owner_exec);
    EXPECT_TRUE(as_ordinary_user([&] {
        auto const tray = apFolder::open(temp / "in tray");
        return tray.is_open() && tray.names().empty() && tray.make_folder("made", 0700).is_open();
    }));
}

} // namespace
