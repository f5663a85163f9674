#include "host/hostFindings.h"
#include "translators/kit/kitTrip.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <unistd.h>

namespace {

sdkFinding finding(sdkWeight weight, std::string const & kind, int number)
{
    return {weight, kind, {}, {}, std::nullopt, std::nullopt, sdkText("test::%s %d", kind, number)};
}

} // namespace

// The lines go into a pipe.
class HostFindings : public testing::Test {
protected:
    HostFindings()
    {
        if (::pipe(m_ends) != 0) {
            throw std::runtime_error("no pipe");
        }
        m_events.emplace(m_ends[1]);
        m_findings.emplace(*m_events, reporter);
    }
    ~HostFindings() override { ::close(m_ends[0]); }

    // All events, after the last one.
    std::vector<nlohmann::json> events()
    {
        m_events->end(sdkStatus::completed, 0, 0);
        ::close(m_ends[1]);
        std::string text;
        char buffer[4096];
        for (ssize_t count = 0; (count = ::read(m_ends[0], buffer, sizeof buffer)) > 0;) {
            text.append(buffer, static_cast<std::size_t>(count));
        }
        std::vector<nlohmann::json> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);) {
            lines.push_back(nlohmann::json::parse(line));
        }
        return lines;
    }

    hostFindings & findings() { return *m_findings; }

    kitReporter reporter;

private:
    int m_ends[2] = {-1, -1};
    std::optional<hostEvents> m_events;
    std::optional<hostFindings> m_findings;
};

TEST_F(HostFindings, ShowTenOfAKindAndCountTheRest)
{
    std::vector<sdkFinding> found;
    for (int number = 1; number <= 13; ++number) {
        found.push_back(finding(sdkWeight::loss, "missing-face", number));
    }
    found.push_back(finding(sdkWeight::difference, "name", 1));
    findings().tell(found);
    ASSERT_EQ(reporter.errors.size(), 12U);
    EXPECT_EQ(reporter.errors[9], "missing-face 10");
    EXPECT_EQ(reporter.errors[10], "name 1");
    EXPECT_EQ(reporter.errors[11], "3 more of the kind \"missing-face\"");
    EXPECT_TRUE(reporter.outputs.empty());
    EXPECT_EQ(events().size(), 15U); // all of them, and the end
}

TEST_F(HostFindings, ShowTenWithoutSpeakingOfARest)
{
    std::vector<sdkFinding> const found(10, finding(sdkWeight::difference, "name", 1));
    findings().tell(found);
    EXPECT_EQ(reporter.errors.size(), 10U);
}

TEST_F(HostFindings, AreErrorsUnlessTheyAreNotes)
{
    std::vector<sdkFinding> found(11, finding(sdkWeight::note, "regrouped", 1));
    findings().tell(found);
    EXPECT_EQ(reporter.outputs.size(), 11U);
    EXPECT_TRUE(reporter.errors.empty());
}

TEST_F(HostFindings, AreCountedByWeightOverAllFiles)
{
    findings().tell({finding(sdkWeight::note, "a", 1), finding(sdkWeight::loss, "b", 1)});
    findings().tell({finding(sdkWeight::loss, "b", 1), finding(sdkWeight::difference, "b", 1)});
    EXPECT_EQ(findings().count(sdkWeight::note), 1);
    EXPECT_EQ(findings().count(sdkWeight::difference), 1);
    EXPECT_EQ(findings().count(sdkWeight::loss), 2);
}

TEST_F(HostFindings, CountTheRestOfEachWeightOfAKindByItself)
{
    std::vector<sdkFinding> found(11, finding(sdkWeight::loss, "area", 1));
    found.push_back(finding(sdkWeight::note, "area", 1));
    findings().tell(found);
    EXPECT_EQ(reporter.errors.size(), 11U);
    EXPECT_EQ(reporter.errors.back(), "1 more of the kind \"area\"");
    EXPECT_EQ(reporter.outputs.size(), 1U);
}
