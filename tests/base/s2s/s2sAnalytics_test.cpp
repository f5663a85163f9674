#include <sstream>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "kit/kitTempFolder.h"
#include "s2s/s2sAnalytics.h"

namespace {

using nlohmann::json;

std::vector<json> records(std::string const & file)
{
    std::vector<json> all;
    std::istringstream lines(kit_read_file(file));
    for (std::string line; std::getline(lines, line);)
        all.push_back(json::parse(line));
    return all;
}

TEST(Analytics, DoesNothingBeforeItIsInitialised)
{
    s2sAnalytics analytics;
    EXPECT_FALSE(analytics.is_initialised());
    analytics.read_file(L"/a.cad", L"A");
    analytics.write_file(L"/b.cad", L"B");
    EXPECT_EQ(analytics.num_read(L"A"), 0);
    EXPECT_EQ(analytics.num_written(L"B"), 0);
}

TEST(Analytics, KeepsOneRecordForEachFile)
{
    kitTempFolder const folder;
    auto const part = folder.write("part.cad", "12345");
    s2sAnalytics analytics;
    EXPECT_NE(analytics.initialise(L"Product", apString::from_utf8(folder / "usage"), L"site 7"), 0);
    EXPECT_TRUE(analytics.is_initialised());
    analytics.read_file(apString::from_utf8(part), L"A");
    analytics.read_file(apString::from_utf8(part), L"A");
    analytics.write_file(L"/nowhere/b.cad", L"B");
    EXPECT_EQ(analytics.num_read(L"A"), 2);
    EXPECT_EQ(analytics.num_read(L"B"), 0);
    EXPECT_EQ(analytics.num_written(L"B"), 1);

    auto const all = records(folder / "usage");
    ASSERT_EQ(all.size(), 3u);
    EXPECT_EQ(all[0]["operation"], "read");
    EXPECT_EQ(all[0]["format"], "A");
    EXPECT_EQ(all[0]["product"], "Product");
    EXPECT_EQ(all[0]["installation"], "site 7");
    EXPECT_EQ(all[0]["bytes"], 5);
    EXPECT_EQ(all[2]["operation"], "write");
    EXPECT_FALSE(all[2].contains("bytes"));
}

TEST(Analytics, RecordsNoNamesOfFiles)
{
    kitTempFolder const folder;
    s2sAnalytics analytics;
    analytics.initialise(L"P", apString::from_utf8(folder / "usage"), L"");
    analytics.read_file(apString::from_utf8(folder.write("secret.cad", "")), L"A");
    auto const text = kit_read_file(folder / "usage");
    EXPECT_NE(text.find("\"A\""), std::string::npos);
    EXPECT_EQ(text.find("secret"), std::string::npos);
}

TEST(Analytics, AppendsToEarlierRecords)
{
    kitTempFolder const folder;
    for (int i = 0; i < 2; ++i) {
        s2sAnalytics analytics;
        analytics.initialise(L"P", apString::from_utf8(folder / "usage"), L"");
        analytics.write_file(L"/b", L"B");
    }
    EXPECT_EQ(records(folder / "usage").size(), 2u);
}

TEST(Analytics, IsNotInitialisedWithAFileThatCannotBeWritten)
{
    s2sAnalytics analytics;
    EXPECT_EQ(analytics.initialise(L"P", L"/nowhere/usage", L""), 0);
    EXPECT_FALSE(analytics.is_initialised());
}

} // namespace
