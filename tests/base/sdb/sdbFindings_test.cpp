#include "sdb/sdbFindings.h"

#include <gtest/gtest.h>

namespace {

sdbFinding finding(sdbWeight weight, utString const & place)
{
    sdbFinding result;
    result.weight = weight;
    result.place = place;
    return result;
}

} // namespace

TEST(Findings, KeepTheirOrder)
{
    sdbFindings findings;
    EXPECT_TRUE(findings.empty());
    findings.add(finding(sdbWeightLoss, "#1"));
    findings.add(finding(sdbWeightNote, "#2"));
    findings.add(finding(sdbWeightLoss, "#3"));
    ASSERT_EQ(findings.kept().size(), 3u);
    EXPECT_EQ(findings.kept()[0].place, utString("#1"));
    EXPECT_EQ(findings.kept()[1].place, utString("#2"));
    EXPECT_EQ(findings.kept()[2].place, utString("#3"));
    EXPECT_EQ(findings.left_out(), 0u);
}

TEST(Findings, CountWhatIsMoreThanAReaderCanTakeIn)
{
    sdbFindings findings;
    for (std::size_t i = 0; i < sdbFindings::most_of_a_weight + 7; ++i)
        findings.add(finding(sdbWeightNote, std::to_string(i)));
    EXPECT_EQ(findings.kept().size(), sdbFindings::most_of_a_weight);
    EXPECT_EQ(findings.kept().back().place, utString(std::to_string(sdbFindings::most_of_a_weight - 1)));
    EXPECT_EQ(findings.left_out(), 7u);
}

TEST(Findings, KeepALossThatComesBehindAnyNumberOfNotes)
{
    sdbFindings findings;
    for (std::size_t i = 0; i < sdbFindings::most_of_a_weight + 7; ++i)
        findings.add(finding(sdbWeightNote, {}));
    findings.add(finding(sdbWeightDifference, "here"));
    findings.add(finding(sdbWeightLoss, "there"));
    ASSERT_EQ(findings.kept().size(), sdbFindings::most_of_a_weight + 2);
    EXPECT_EQ(findings.kept().back().place, utString("there"));
    EXPECT_EQ(findings.left_out(), 7u);
}
