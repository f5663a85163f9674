#include "ani/aniUsageRecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <sys/resource.h>
#include <thread>
#include <vector>

#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

namespace {

class UsageRecord : public testing::Test {
protected:
    kitTempFolder folder;
    aniUsageRecord record{apString::from_utf8(folder / "settings/usage")};

    std::string all() const { return folder.read("settings/usage/usage.txt"); }
    bool has_file() const { return folder.exists("settings/usage/usage.txt"); }
};

std::size_t lines_in(std::string const & text)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

} // namespace

TEST_F(UsageRecord, LeavesNothingOnTheDiskBeforeTheUserHasDecided)
{
    EXPECT_EQ(record.choice(), aniUsageUndecided);
    EXPECT_FALSE(record.add("a line"));
    EXPECT_EQ(record.text(), "");
    EXPECT_TRUE(record.remove());
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(UsageRecord, KeepsNoLineAfterARefusal)
{
    ASSERT_TRUE(record.choose(false));
    EXPECT_EQ(record.choice(), aniUsageRefused);
    EXPECT_FALSE(record.add("a line"));
    EXPECT_FALSE(has_file());
}

TEST_F(UsageRecord, KeepsTheLinesOfAUserWhoAgreed)
{
    ASSERT_TRUE(record.choose(true));
    EXPECT_EQ(record.choice(), aniUsageAgreed);
    EXPECT_FALSE(has_file());
    EXPECT_TRUE(record.add("one"));
    EXPECT_TRUE(record.add("two"));
    EXPECT_EQ(all(), "one\ntwo\n");
    EXPECT_EQ(record.text(), all());
    EXPECT_EQ(record.file(), folder / "settings/usage/usage.txt");
}

TEST_F(UsageRecord, IsForItsOwnerAlone)
{
    ASSERT_TRUE(record.choose(true));
    ASSERT_TRUE(record.add("one"));
    EXPECT_EQ(folder.mode("settings/usage"), 0700U);
    EXPECT_EQ(folder.mode("settings/usage/usage.txt"), 0600U);
    EXPECT_EQ(folder.mode("settings/usage/choice"), 0600U);
}

TEST_F(UsageRecord, StopsWhenTheUserChangesTheirMindAlsoInAnotherProgram)
{
    ASSERT_TRUE(record.choose(true));
    ASSERT_TRUE(record.add("one"));
    aniUsageRecord const elsewhere(apString::from_utf8(folder / "settings/usage"));
    ASSERT_TRUE(elsewhere.choose(false));
    EXPECT_EQ(record.choice(), aniUsageRefused);
    EXPECT_FALSE(record.add("two"));
    EXPECT_EQ(all(), "one\n");
    ASSERT_TRUE(elsewhere.choose(true));
    EXPECT_TRUE(record.add("three"));
    EXPECT_EQ(all(), "one\nthree\n");
}

TEST_F(UsageRecord, IsDeletedWithAllItsLines)
{
    ASSERT_TRUE(record.choose(true));
    ASSERT_TRUE(record.add("one"));
    EXPECT_TRUE(record.remove());
    EXPECT_FALSE(has_file());
    EXPECT_EQ(record.choice(), aniUsageAgreed);
    EXPECT_TRUE(record.remove()) << "of nothing";
    EXPECT_TRUE(record.add("two"));
    EXPECT_EQ(all(), "two\n");
}

TEST_F(UsageRecord, CanBeDeletedAfterARefusal)
{
    ASSERT_TRUE(record.choose(true));
    ASSERT_TRUE(record.add("one"));
    ASSERT_TRUE(record.choose(false));
    EXPECT_EQ(record.text(), "one\n");
    EXPECT_TRUE(record.remove());
    EXPECT_FALSE(has_file());
}

TEST_F(UsageRecord, TakesAChoiceThatItDoesNotKnowForNone)
{
    for (auto const * const content : {"", "yesterday\n", "\n", "maybe"}) {
        folder.write("settings/usage/choice", content);
        EXPECT_EQ(record.choice(), aniUsageUndecided) << content;
        EXPECT_FALSE(record.add("a line"));
    }
    folder.write("settings/usage/choice", "no\n\n");
    EXPECT_EQ(record.choice(), aniUsageRefused);
}

TEST_F(UsageRecord, LosesItsOldestLinesWhenItIsFull)
{
    ASSERT_TRUE(record.choose(true));
    std::string const rest(1000, 'x');
    int const count = 2 * static_cast<int>(aniUsageRecord::most_bytes / rest.size());
    for (int i = 0; i < count; ++i)
        ASSERT_TRUE(record.add(std::to_string(i) + " " + rest));
    std::string const text = all();
    EXPECT_LE(text.size(), aniUsageRecord::most_bytes);
    EXPECT_GE(text.size(), aniUsageRecord::most_bytes / 3);
    // Whole lines up to the newest one, without a gap.
    int expected = count - static_cast<int>(lines_in(text));
    for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1)
        EXPECT_EQ(text.substr(at, text.find(' ', at) - at), std::to_string(expected++));
    EXPECT_EQ(expected, count);
    EXPECT_EQ(folder.mode("settings/usage/usage.txt"), 0600U);
}

TEST_F(UsageRecord, KeepsEveryLineWholeWhenSeveralWriteAtOnce)
{
    ASSERT_TRUE(record.choose(true));
    std::string const line(300, 'z');
    std::vector<std::thread> writers;
    for (int writer = 0; writer < 4; ++writer)
        writers.emplace_back([&] {
            aniUsageRecord const own(apString::from_utf8(folder / "settings/usage"));
            for (int i = 0; i < 400; ++i)
                EXPECT_TRUE(own.add(line));
        });
    for (auto & writer : writers)
        writer.join();
    // 1600 lines are more than it holds, so that old ones were dropped among the writers.
    std::string const text = all();
    EXPECT_LE(text.size(), aniUsageRecord::most_bytes);
    EXPECT_EQ(text.size(), lines_in(text) * (line.size() + 1));
}

TEST_F(UsageRecord, SaysWhyAChoiceCannotBeKept)
{
    folder.write("settings", "a file where the folder should be");
    auto const result = record.choose(true);
    EXPECT_FALSE(result);
    EXPECT_EQ(result.error(), std::errc::not_a_directory);
    EXPECT_EQ(record.choice(), aniUsageUndecided);
    EXPECT_FALSE(record.add("a line"));
}

TEST_F(UsageRecord, CannotBeMadeInAFolderThatIsReadOnly)
{
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0555));
    EXPECT_TRUE(as_ordinary_user([&] {
        return record.choose(true).error() == std::errc::permission_denied &&
               record.choice() == aniUsageUndecided && !record.add("a line");
    }));
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(UsageRecord, CannotBeMadeInAHomeThatDoesNotExist)
{
    auto const home = folder / "gone";
    give_to_ordinary_user(folder.path().string());
    EXPECT_TRUE(as_ordinary_user([&] {
        setenv("HOME", home.c_str(), 1);
        aniUsageRecord const homeless(apString::from_utf8(home + "/.config/usage"));
        return !homeless.choose(true) && homeless.choice() == aniUsageUndecided && !homeless.add("a line") &&
               homeless.text().empty() && static_cast<bool>(homeless.remove());
    }));
    EXPECT_FALSE(std::filesystem::exists(home));
}

TEST_F(UsageRecord, KeepsTheOldChoiceWhereANewOneCannotBeWritten)
{
    ASSERT_TRUE(record.choose(false));
    give_to_ordinary_user(folder / "settings/usage/choice");
    give_to_ordinary_user(folder / "settings/usage");
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(folder / "settings/usage/choice", std::filesystem::perms(0400));
    EXPECT_TRUE(as_ordinary_user([&] {
        return record.choose(true).error() == std::errc::permission_denied &&
               record.choice() == aniUsageRefused;
    }));
}

TEST_F(UsageRecord, KeepsNoPartOfALineForWhichThereIsNoRoom)
{
    ASSERT_TRUE(record.choose(true));
    ASSERT_TRUE(record.add("one"));
    // In a process of its own, which may not make a file longer than this.
    pid_t const child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit const limit{10, 10};
        _exit(setrlimit(RLIMIT_FSIZE, &limit) == 0 && !record.add(std::string(20, 'x')) ? 0 : 1);
    }
    int status = 1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(all(), "one\n");
}

TEST_F(UsageRecord, IsEmptyWhereItsNameStandsForAFolder)
{
    ASSERT_TRUE(record.choose(true));
    folder.write("settings/usage/usage.txt/in", "");
    EXPECT_EQ(record.text(), "");
    EXPECT_FALSE(record.add("a line"));
    EXPECT_EQ(record.remove().error(), std::errc::is_a_directory);
}

TEST_F(UsageRecord, WithoutAPlaceKeepsNothing)
{
    aniUsageRecord const nowhere;
    EXPECT_FALSE(nowhere.has_place());
    EXPECT_FALSE(nowhere.choose(true));
    EXPECT_EQ(nowhere.choice(), aniUsageUndecided);
    EXPECT_FALSE(nowhere.add("a line"));
    EXPECT_EQ(nowhere.text(), "");
    EXPECT_TRUE(nowhere.remove());
}
