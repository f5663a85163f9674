#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include "engineKit.h"
#include "s2s/s2sStagingFolder.h"

namespace fs = std::filesystem;

namespace {

using ::testing::IsEmpty;

/// Makes a staging folder in a process that is killed before it can remove it. Gives its path.
fs::path left_by_dead_process(fs::path const & output)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("pipe");
    auto const child = fork();
    if (child == 0) {
        s2sStagingFolder staging;
        staging.create(output);
        write_text(staging.path() / "half.cad", "half");
        auto const path = staging.path().native();
        auto const written = write(ends[1], path.data(), path.size());
        _exit(written > 0 ? 0 : 1);
    }
    waitpid(child, nullptr, 0);
    char path[4096] = "";
    auto const length = read(ends[0], path, sizeof path - 1);
    close(ends[0]);
    close(ends[1]);
    return fs::path(std::string(path, length > 0 ? static_cast<std::size_t>(length) : 0));
}

/// The name of a staging folder with the number of another process in it.
std::string name_for(fs::path const & staging, pid_t process)
{
    auto name = staging.filename().native();
    auto const own = "-" + std::to_string(getpid()) + "-";
    return name.replace(name.find(own), own.size(), "-" + std::to_string(process) + "-");
}

/// The number of a process that was there and is there no more.
pid_t dead_process()
{
    auto const child = fork();
    if (child == 0)
        _exit(0);
    waitpid(child, nullptr, 0);
    return child;
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
    auto const left = left_by_dead_process(folder / "part.cad");
    ASSERT_TRUE(fs::exists(left / "half.cad"));

    s2s_remove_left_behind(folder.path());
    EXPECT_FALSE(fs::exists(left));
    EXPECT_TRUE(fs::exists(first.path()));
}

TEST(StagingFolder, RemovesAnEmptyOneThatADeadProcessCouldNotMark)
{
    kitTempFolder const folder;
    auto const left = left_by_dead_process(folder / "part.cad");
    fs::remove(left / "half.cad");
    fs::remove(left / apMarkedFolder::mark_name);
    s2s_remove_left_behind(folder.path());
    EXPECT_FALSE(fs::exists(left));
}

TEST(StagingFolder, LeavesOneThatIsInUse)
{
    kitTempFolder const folder;
    auto const left = left_by_dead_process(folder / "part.cad");
    auto const other = apMarkedFolder::open(left);
    ASSERT_TRUE(other.lock());
    s2s_remove_left_behind(folder.path());
    EXPECT_TRUE(fs::exists(left / "half.cad"));
}

TEST(StagingFolder, LeavesAFolderOfTheUsersThatSomebodyHasGivenSuchAName)
{
    kitTempFolder const folder;
    auto const left = left_by_dead_process(folder / "part.cad");
    auto const away = folder.path() / "away";
    fs::rename(left, away);

    write_text(left / "result.cad", "mine");
    fs::permissions(left, fs::perms::owner_all);
    s2s_remove_left_behind(folder.path());
    EXPECT_EQ(read_text(left / "result.cad"), "mine");

    fs::copy_file(away / apMarkedFolder::mark_name, left / apMarkedFolder::mark_name);
    s2s_remove_left_behind(folder.path());
    EXPECT_EQ(read_text(left / "result.cad"), "mine");

    fs::rename(left, folder.path() / "results");
    fs::create_directory_symlink(folder / "results", left);
    s2s_remove_left_behind(folder.path());
    EXPECT_EQ(read_text(folder / "results/result.cad"), "mine");
    EXPECT_TRUE(fs::is_symlink(left));
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
        apMarkedFolder::make(apFolder::open(folder.path()), name);
    auto const file = name_for(first.path(), dead);
    write_text(folder / file, "a file of that name");

    s2s_remove_left_behind(folder.path());
    for (auto const & name : others)
        EXPECT_TRUE(fs::exists(folder / name)) << name;
    EXPECT_TRUE(fs::exists(folder / file));
}

TEST(StagingFolder, RemovesItselfAndNotWhatTookItsPlace)
{
    kitTempFolder const folder;
    {
        s2sStagingFolder staging;
        EXPECT_FALSE(staging.create(folder / "part.cad"));
        fs::rename(staging.path(), folder.path() / "away");
        write_text(folder / "results/result.cad", "mine");
        fs::create_directory_symlink(folder / "results", staging.path());
    }
    EXPECT_EQ(read_text(folder / "results/result.cad"), "mine");
    EXPECT_TRUE(fs::is_empty(folder / "away"));
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
