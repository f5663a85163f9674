#include "s2s/s2sAnalytics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "kit/kitTempFolder.h"

namespace {

using ::testing::ElementsAre;
using ::testing::MatchesRegex;

/// A reporter of a user who has agreed.
class Analytics : public testing::Test {
protected:
    Analytics()
    {
        EXPECT_NE(analytics.initialise(L"Product", place(), L"7.2"), 0);
        EXPECT_TRUE(analytics.usage_record().choose(true));
    }

    apString place() const { return apString::from_utf8(folder / "usage"); }
    std::vector<std::string> records() const
    {
        std::vector<std::string> all;
        std::istringstream lines(folder.read("usage/usage.txt"));
        for (std::string line; std::getline(lines, line);)
            all.push_back(line);
        return all;
    }

    kitTempFolder folder;
    s2sAnalytics analytics;
};

} // namespace

TEST(AnalyticsAtFirst, DoesNothingBeforeItIsInitialised)
{
    s2sAnalytics analytics;
    EXPECT_FALSE(analytics.is_initialised());
    analytics.read_file(L"/a.cad", L"A");
    analytics.write_file(L"/b.cad", L"B");
    EXPECT_EQ(analytics.num_read(L"A"), 0);
    EXPECT_EQ(analytics.num_written(L"B"), 0);
}

TEST(AnalyticsAtFirst, IsNotInitialisedWithoutAPlace)
{
    s2sAnalytics analytics;
    EXPECT_EQ(analytics.initialise(L"Product", L"", L"7.2"), 0);
    EXPECT_FALSE(analytics.is_initialised());
}

TEST(AnalyticsAtFirst, RecordsNothingOfAUserWhoHasNotBeenAsked)
{
    kitTempFolder const folder;
    s2sAnalytics analytics;
    ASSERT_NE(analytics.initialise(L"Product", apString::from_utf8(folder / "usage"), L"7.2"), 0);
    EXPECT_TRUE(analytics.is_initialised());
    analytics.read_file(L"/a.cad", L"A");
    EXPECT_EQ(analytics.num_read(L"A"), 0);
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(Analytics, KeepsOneLineForEachFile)
{
    auto const part = apString::from_utf8(folder.write("part.cad", "12345"));
    analytics.read_file(part, L"A");
    analytics.read_file(part, L"A");
    analytics.write_file(L"/nowhere/b.cad", L"B");
    EXPECT_EQ(analytics.num_read(L"A"), 2);
    EXPECT_EQ(analytics.num_read(L"B"), 0);
    EXPECT_EQ(analytics.num_written(L"B"), 1);

    std::string const time = "[0-9]+-[0-9]+-[0-9]+T[0-9]+:[0-9]+:[0-9]+Z";
    auto const read = MatchesRegex(time + "\tread\tA\t5 bytes\tProduct\t7.2");
    EXPECT_THAT(records(), ElementsAre(read, read, MatchesRegex(time + "\twrite\tB\t-\tProduct\t7.2")));
}

TEST_F(Analytics, RecordsNoNamesOfFiles)
{
    analytics.read_file(apString::from_utf8(folder.write("secret.cad", "")), L"A");
    ASSERT_EQ(records().size(), 1u);
    EXPECT_EQ(records()[0].find("secret"), std::string::npos);
    EXPECT_EQ(records()[0].find(folder.path().filename().string()), std::string::npos);
}

TEST_F(Analytics, KeepsARecordOnItsLineWhateverAFormatIsCalled)
{
    analytics.write_file(L"/b", L"odd\tname\nof a format");
    ASSERT_EQ(records().size(), 1u);
    EXPECT_NE(records()[0].find("\todd name of a format\t"), std::string::npos);
}

TEST_F(Analytics, StopsAsSoonAsTheUserRefuses)
{
    analytics.write_file(L"/b", L"B");
    ASSERT_TRUE(analytics.usage_record().choose(false));
    analytics.write_file(L"/b", L"B");
    EXPECT_EQ(analytics.num_written(L"B"), 1);
    EXPECT_EQ(records().size(), 1u);
}

TEST_F(Analytics, AppendsToEarlierRecords)
{
    analytics.write_file(L"/b", L"B");
    s2sAnalytics later;
    later.initialise(L"Product", place(), L"7.3");
    later.write_file(L"/b", L"B");
    EXPECT_EQ(records().size(), 2u);
    EXPECT_EQ(later.num_written(L"B"), 1) << "counts are of this run";
}

TEST_F(Analytics, GoesOnCountingNothingWhereItCannotWrite)
{
    std::filesystem::remove_all(folder / "usage/usage.txt");
    std::filesystem::create_directory(folder / "usage/usage.txt");
    analytics.write_file(L"/b", L"B");
    EXPECT_EQ(analytics.num_written(L"B"), 0);
    EXPECT_TRUE(analytics.is_initialised());
}
