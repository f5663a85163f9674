#include "sglTDOstreamDisplayer.h"

#include "kit/kitFormat.h"
#include "kit/kitRecord.h"
#include "translation/sglVerificationText.h"

#include <gmock/gmock.h>
#include <sstream>

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

sdbFinding finding(sdbWeight weight, utString const & text)
{
    sdbFinding result;
    result.weight = weight;
    result.text = text;
    return result;
}

/// What a report says of the comparison of an output with its source.
struct VerificationReport : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
    }
    static kitRecord record(sdbTranslationType type = sdbTranslationSingle)
    {
        return kitRecord(type).input("/parts/a.alpha", "ALPHA").output("/out/a.beta", "BETA");
    }
    std::string text(kitRecord const & record)
    {
        std::ostringstream stream;
        sglTDOstreamDisplayer(&record.data, app().application_information(), &stream).display();
        return stream.str();
    }
};

} // namespace

TEST_F(VerificationReport, StandsBehindTheMessagesWithOneLineForEachFinding)
{
    auto all = record();
    all.ended(sdbProgressCompleted, "Reading", "A tooth is missing")
        .verified(sdbVerdictLosses, {finding(sdbWeightLoss, "#12 is not translated"),
                                     finding(sdbWeightDifference, "Bolt: 3 mm"),
                                     finding(sdbWeightNote, "1 of 2 solids is not valid")});
    EXPECT_THAT(text(all), EndsWith("  Output Messages :\n"
                                    "    Reading\n"
                                    "  Error Messages :\n"
                                    "    A tooth is missing\n"
                                    "  Verification : Losses\n"
                                    "    Loss : #12 is not translated\n"
                                    "    Difference : Bolt: 3 mm\n"
                                    "    Note : 1 of 2 solids is not valid\n"));
}

TEST_F(VerificationReport, NamesEachVerdict)
{
    std::pair<sdbVerdict, char const *> const verdicts[] = {
        {sdbVerdictVerified, "  Verification : Verified\n"},
        {sdbVerdictDiffers, "  Verification : Differences\n"},
        {sdbVerdictLosses, "  Verification : Losses\n"},
        {sdbVerdictNotVerified, "  Verification : Not Verified\n"}};
    for (auto const & [verdict, line] : verdicts)
        EXPECT_THAT(text(record().ended(sdbProgressCompleted).verified(verdict)), EndsWith(line));
}

TEST_F(VerificationReport, IsAbsentWithoutVerdictAndFindings)
{
    auto const without = text(record().ended(sdbProgressCompleted));
    EXPECT_THAT(without, Not(HasSubstr("Verification")));
    EXPECT_EQ(text(record().ended(sdbProgressCompleted).verified(sdbVerdictNone)), without);
}

TEST_F(VerificationReport, ListsFindingsWithoutAVerdict)
{
    EXPECT_THAT(text(record()
                         .ended(sdbProgressFailed)
                         .verified(sdbVerdictNone, {finding(sdbWeightLoss, "#12 is not translated")})),
                EndsWith("  Findings :\n    Loss : #12 is not translated\n"));
}

TEST_F(VerificationReport, SaysHowManyFindingsItDoesNotList)
{
    std::vector<sdbFinding> const many(sdbFindings::most_of_a_weight + 5, finding(sdbWeightNote, "same"));
    auto const shown = text(record().ended(sdbProgressCompleted).verified(sdbVerdictVerified, many));
    EXPECT_THAT(shown, EndsWith("    Note : same\n    5 more findings are not listed\n"));
}

TEST_F(VerificationReport, StandsWithItsOwnEntryOfABatch)
{
    auto batch = record(sdbTranslationBatch);
    batch.input("/parts/b.alpha", "ALPHA").output("/out/b.beta", "BETA");
    batch.ended(sdbProgressCompleted)
        .verified(sdbVerdictDiffers, {finding(sdbWeightDifference, "a is less")});
    batch.ended(sdbProgressCompleted).verified(sdbVerdictVerified);
    auto const shown = text(batch);
    auto const second = shown.find("Input File 2 :");
    EXPECT_THAT(shown.substr(0, second),
                HasSubstr("\n  Verification : Differences\n    Difference : a is less\n"));
    EXPECT_THAT(shown.substr(second), EndsWith("\n  Verification : Verified\n"));
}

TEST_F(VerificationReport, ShowsThePercentSignsOfNames)
{
    EXPECT_EQ(sgl_finding_line(finding(sdbWeightLoss, "100%s of \"50% steel\"")),
              utString("Loss : 100%s of \"50% steel\""));
}
