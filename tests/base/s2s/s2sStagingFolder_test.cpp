#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include "engineKit.h"
#include "s2s/s2sStagingFolder.h"

namespace fs = std::filesystem;

namespace {

using ::testing::IsEmpty;

/// The number of a process that was there and is there no more.
pid_t dead_process()
{
    auto const child = fork();
    if (child == 0)
        _exit(0);
    waitpid(child, nullptr, 0);
    return child;
}

/// The name of a staging folder with the number of another process in it.
std::string name_for(fs::path const & staging, pid_t process)
{
    auto name = staging.filename().native();
    auto const own = "-" + std::to_string(getpid()) + "-";
    return name.replace(name.find(own), own.size(), "-" + std::to_string(process) + "-");
}

TEST(StagingFolder, LiesBesideTheOutputPrivateToTheUser)
{
    kitTempFolder const folder;
    s2sStagingFolder staging;
    EXPECT_FALSE(staging.create(folder / "part.cad"));
    EXPECT_EQ(staging.path().parent_path(), folder.path());
    EXPECT_EQ(staging.path().filename().native().substr(0, 5), ".vmr-");
    EXPECT_EQ(fs::status(staging.path()).permissions(), fs::perms::owner_all);
}

TEST(StagingFolder, GoesWithAllThatItHolds)
{
    kitTempFolder const folder;
    {
        s2sStagingFolder staging;
        EXPECT_FALSE(staging.create(folder / "part.cad"));
        fs::create_directory(staging.path() / "deep");
        write_text(staging.path() / "deep/file", "");
    }
    EXPECT_THAT(names_in(folder.path()), IsEmpty());
}

TEST(StagingFolder, RemovesWhatADeadProcessLeft)
{
    kitTempFolder const folder;
    s2sStagingFolder first;
    EXPECT_FALSE(first.create(folder / "part.cad"));
    auto const left = folder.path() / name_for(first.path(), dead_process());
    fs::create_directory(left);
    write_text(left / "half.cad", "half");

    s2s_remove_left_behind(folder.path());
    EXPECT_FALSE(fs::exists(left));
    EXPECT_TRUE(fs::exists(first.path()));
}

TEST(StagingFolder, LeavesAloneWhatMayBeSomebodyElses)
{
    kitTempFolder const folder;
    s2sStagingFolder first;
    EXPECT_FALSE(first.create(folder / "part.cad"));
    auto const dead = dead_process();
    std::vector<std::string> const others = {
        name_for(first.path(), getppid()),                  // alive
        ".vmr-0-" + std::to_string(dead) + "-abcdef",       // of another machine
        ".vmr-" + std::to_string(dead),                     // no staging folder
        name_for(first.path(), dead).substr(0, 14) + "abc", // no number
    };
    for (auto const & name : others)
        fs::create_directory(folder / name);
    auto const file = name_for(first.path(), dead);
    write_text(folder / file, "a file of that name");

    s2s_remove_left_behind(folder.path());
    for (auto const & name : others)
        EXPECT_TRUE(fs::exists(folder / name)) << name;
    EXPECT_TRUE(fs::exists(folder / file));
}

TEST(StagingFolder, NamesTheFolderInWhichItCannotBeMade)
{
    s2sStagingFolder staging;
    auto const failure = staging.create("/nowhere/part.cad");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->arguments[0], utTextArgument("/nowhere"));
    EXPECT_TRUE(staging.path().empty());
}

} // namespace
