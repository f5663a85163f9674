#include "host/hostEvents.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <sstream>
#include <unistd.h>
#include <vector>

using nlohmann::json;

class HostEvents : public testing::Test {
protected:
    HostEvents()
    {
        EXPECT_EQ(::pipe(m_ends), 0);
        events.emplace(m_ends[1]);
    }
    ~HostEvents() override
    {
        ::close(m_ends[0]);
        ::close(m_ends[1]);
    }

    // What was sent after the last line was sent.
    std::vector<json> sent()
    {
        events->end(sdkStatus::completed, 3, 1);
        std::string text(64 * 1024, '\0');
        auto const length = ::read(m_ends[0], text.data(), text.size());
        std::istringstream stream(text.substr(0, static_cast<std::size_t>(length)));
        std::vector<json> lines;
        for (std::string line; std::getline(stream, line);) {
            lines.push_back(json::parse(line));
        }
        return lines;
    }

    // How many lines lie in the pipe.
    int waiting_lines() const
    {
        std::string text(64 * 1024, '\0');
        auto const length = ::read(m_ends[0], text.data(), text.size());
        return static_cast<int>(std::count(text.begin(), text.begin() + std::max<ssize_t>(length, 0), '\n'));
    }

    std::optional<hostEvents> events;

private:
    int m_ends[2] = {-1, -1};
};

TEST_F(HostEvents, SaysWhichFileIsWorkedOn)
{
    events->file("/a/ä.step", "reading");
    EXPECT_EQ(sent().front(), json({{"event", "file"}, {"path", "/a/ä.step"}, {"direction", "reading"}}));
}

TEST_F(HostEvents, LeavesOutProgressThatDoesNotRise)
{
    for (int const percent : {0, 5, 5, 3, 9}) {
        events->progress(percent);
    }
    auto const lines = sent();
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0]["percent"], 0);
    EXPECT_EQ(lines[1]["percent"], 5);
    EXPECT_EQ(lines[2]["percent"], 9);
}

TEST_F(HostEvents, SendsArgumentsWithTheirTypes)
{
    events->message(sdkStream::error, sdkText("c::%s %d %g", "text", 3, 0.5));
    auto const line = sent().front();
    EXPECT_EQ(line["event"], "message");
    EXPECT_EQ(line["stream"], "error");
    EXPECT_EQ(line["domain"], "vmrhost");
    EXPECT_EQ(line["key"].get<std::string>().substr(0, 11), "c::%s %d %g");
    EXPECT_EQ(line["args"], json({"text", 3, 0.5}));
}

TEST_F(HostEvents, StaysValidWhenANameIsNoText)
{
    events->message(sdkStream::output, sdkText("c::%s", "bad \xFF name"));
    EXPECT_EQ(sent().front()["args"][0], "bad \uFFFD name");
}

TEST_F(HostEvents, SendsALineAtOnce)
{
    events->message(sdkStream::output, sdkText("c::first"));
    events->message(sdkStream::output, sdkText("c::second"));
    EXPECT_EQ(waiting_lines(), 2);
}

TEST_F(HostEvents, LosesNothingOfAFloodAndKeepsItsOrder)
{
    constexpr int many = 500;
    for (int i = 0; i < many; ++i) {
        events->message(sdkStream::output, sdkText("c::%d", i));
    }
    auto const lines = sent();
    ASSERT_EQ(lines.size(), many + 1U);
    for (int i = 0; i < many; ++i) {
        EXPECT_EQ(lines[static_cast<std::size_t>(i)]["args"][0], i);
    }
}

TEST_F(HostEvents, SendsWhatWaitsAsLastWords)
{
    constexpr int many = 500;
    for (int i = 0; i < many; ++i) {
        events->message(sdkStream::output, sdkText("c::%d", i));
    }
    events->send_last_words();
    EXPECT_EQ(waiting_lines(), many);
}

TEST_F(HostEvents, KnowsWhichFileIsWorkedOn)
{
    EXPECT_EQ(events->current_file(), "");
    events->file("/a.step", "reading");
    events->file("/b.igs", "writing");
    EXPECT_EQ(events->current_file(), "/b.igs");
}

TEST_F(HostEvents, EndsOnceAndSaysNothingAfterwards)
{
    events->end(sdkStatus::write_error, 7, 2);
    events->progress(50);
    auto const lines = sent();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0], json({{"event", "end"}, {"status", "write_error"}, {"processed", 7}, {"failed", 2}}));
}

TEST_F(HostEvents, NamesEachStatus)
{
    for (auto const & [status, name] :
         std::vector<std::pair<sdkStatus, std::string>>{{sdkStatus::completed, "completed"},
                                                        {sdkStatus::read_error, "read_error"},
                                                        {sdkStatus::write_error, "write_error"},
                                                        {sdkStatus::too_big, "too_big"},
                                                        {sdkStatus::cancelled, "cancelled"}}) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        hostEvents one(ends[1]);
        one.end(status, 0, 0);
        char buffer[256];
        auto const length = ::read(ends[0], buffer, sizeof buffer);
        EXPECT_EQ(json::parse(std::string(buffer, static_cast<std::size_t>(length)))["status"], name);
        ::close(ends[0]);
        ::close(ends[1]);
    }
}
