#include "host/hostVerdict.h"
#include "translators/kit/kitTrip.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

class HostVerdict : public testing::Test {
protected:
    ~HostVerdict() override { ::close(m_nowhere); }

    void found(sdkWeight weight)
    {
        findings.tell({{weight, "kind", {}, {}, std::nullopt, std::nullopt, sdkText("test::text")}});
    }

    static hostTestimony read_back()
    {
        hostTestimony testimony;
        testimony.read_back = true;
        return testimony;
    }

private:
    int m_nowhere = ::open("/dev/null", O_WRONLY);
    hostEvents m_events{m_nowhere};
    kitReporter m_reporter;

protected:
    hostFindings findings{m_events, m_reporter};
};

TEST_F(HostVerdict, IsVerifiedWithNotesOnly)
{
    EXPECT_EQ(host_verdict(read_back(), findings, 0), hostVerdict::verified);
    found(sdkWeight::note);
    EXPECT_EQ(host_verdict(read_back(), findings, 0), hostVerdict::verified);
}

TEST_F(HostVerdict, DiffersWithADifference)
{
    found(sdkWeight::difference);
    EXPECT_EQ(host_verdict(read_back(), findings, 0), hostVerdict::differs);
}

TEST_F(HostVerdict, PutsLossesBeforeDifferences)
{
    found(sdkWeight::difference);
    found(sdkWeight::loss);
    EXPECT_EQ(host_verdict(read_back(), findings, 0), hostVerdict::losses);
}

TEST_F(HostVerdict, CountsEntitiesThatFailedAsLosses)
{
    EXPECT_EQ(host_verdict(read_back(), findings, 1), hostVerdict::losses);
}

TEST_F(HostVerdict, IsNotVerifiedWhateverElseWasFoundWhenNothingWasReadBack)
{
    found(sdkWeight::loss);
    EXPECT_EQ(host_verdict({}, findings, 3), hostVerdict::not_verified);
}

TEST_F(HostVerdict, HasTheWordsOfTheProtocol)
{
    EXPECT_STREQ(host_verdict_name(hostVerdict::verified), "verified");
    EXPECT_STREQ(host_verdict_name(hostVerdict::differs), "differs");
    EXPECT_STREQ(host_verdict_name(hostVerdict::losses), "losses");
    EXPECT_STREQ(host_verdict_name(hostVerdict::not_verified), "not_verified");
}

TEST_F(HostVerdict, TellsHowManyLossesAndDifferencesThereAre)
{
    found(sdkWeight::difference);
    found(sdkWeight::difference);
    found(sdkWeight::loss);
    auto const text = [&](hostVerdict verdict, std::int64_t failed, bool counts_only) {
        auto const told = host_verdict_text(verdict, findings, failed, counts_only, "a.step");
        EXPECT_TRUE(told.fits());
        return told.formatted();
    };
    EXPECT_EQ(text(hostVerdict::differs, 0, false),
              "Differs: a.step was read back; differences from the source: 2");
    EXPECT_EQ(text(hostVerdict::losses, 0, false), "Losses: things of the source that are not in a.step: 1");
    EXPECT_EQ(text(hostVerdict::losses, 5, false), "Losses: things of the source that are not in a.step: 5");
    EXPECT_NE(text(hostVerdict::verified, 0, true), text(hostVerdict::verified, 0, false));
    EXPECT_EQ(text(hostVerdict::not_verified, 0, false),
              "Not verified: a.step could not be held against its source");
}

TEST_F(HostVerdict, WithoutAnOutputIsLossesOnlyWhenFindingsNameWhatTheReaderGaveUp)
{
    EXPECT_EQ(host_verdict_without_output(sdkStatus::completed, findings, 3), hostVerdict::not_verified);
    found(sdkWeight::difference);
    EXPECT_EQ(host_verdict_without_output(sdkStatus::completed, findings, 3), hostVerdict::not_verified);
    found(sdkWeight::loss);
    EXPECT_EQ(host_verdict_without_output(sdkStatus::completed, findings, 0), hostVerdict::not_verified);
    EXPECT_EQ(host_verdict_without_output(sdkStatus::completed, findings, 3), hostVerdict::losses);
    EXPECT_EQ(host_verdict_without_output(sdkStatus::read_error, findings, 3), hostVerdict::losses);
    EXPECT_EQ(host_verdict_without_output(sdkStatus::write_error, findings, 3), hostVerdict::not_verified);
    EXPECT_EQ(host_verdict_without_output(sdkStatus::too_big, findings, 3), hostVerdict::not_verified);
}

TEST_F(HostVerdict, SaysThatNothingWasWritten)
{
    found(sdkWeight::loss);
    auto const text = [&](hostVerdict verdict) {
        auto const told = host_verdict_text_without_output(verdict, findings, 2, "a.step");
        EXPECT_TRUE(told.fits());
        return told.formatted();
    };
    EXPECT_EQ(text(hostVerdict::not_verified), "Not verified: a.step was not written");
    EXPECT_EQ(text(hostVerdict::losses),
              "Losses: a.step was not written; things of the source that gave no shape: 2");
}
