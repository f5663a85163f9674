#include "HostRun.h"

#include "host/hostWitness.h"
#include "kit/kitTempFolder.h"
#include "translators/kit/kitParts.h"

#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Shell.hxx>
#include <TopoDS_Solid.hxx>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using nlohmann::json;

namespace {

constexpr int patience = 30'000; // milliseconds

bool readable(int descriptor)
{
    ::pollfd wait{descriptor, POLLIN, 0};
    return ::poll(&wait, 1, patience) > 0;
}

} // namespace

// A host whose witness hangs over the output.
class HostWitnessAtWork : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(::mkfifo((out + ".pipe").c_str(), 0600), 0);
        m_pipe = ::open((out + ".pipe").c_str(), O_RDONLY | O_NONBLOCK);
        HostJob job;
        job.input("/in/a.odd", ODD_MODULE, "Box")
            .output(out, LIES_MODULE, "LIE", {{"lieReads", "hang"}, {"lieChecked", "true"}});
        job.value()["patience"] = 60;
        host.send(job.line());
        ASSERT_TRUE(readable(m_pipe));
        char text[32] = {};
        ASSERT_GT(::read(m_pipe, text, sizeof text - 1), 0);
        witness = std::atoi(text);
        ASSERT_GT(witness, 0);
        // Stays good when the process is gone, and when another one gets its number.
        m_ended = static_cast<int>(::syscall(SYS_pidfd_open, witness, 0));
        ASSERT_GE(m_ended, 0);
    }

    void TearDown() override
    {
        ::close(m_pipe);
        ::close(m_ended);
    }

    bool witness_ends() const { return readable(m_ended); }

    kitTempFolder const folder;
    std::string const out = folder / "out.lie";
    HostRun host;
    ::pid_t witness = -1;

private:
    int m_pipe = -1;
    int m_ended = -1;
};

TEST_F(HostWitnessAtWork, EndsWithACancelledTranslationInHalfASecond)
{
    auto const begun = std::chrono::steady_clock::now();
    host.send("{\"command\": \"cancel\"}\n");
    auto const events = host.rest();
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::milliseconds(500));
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back()["status"], "cancelled");
    EXPECT_TRUE(host.exits_with(0));
    EXPECT_TRUE(witness_ends());
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(HostWitnessAtWork, DoesNotOutliveAHostThatIsKilled)
{
    host.signal(SIGKILL);
    host.wait();
    EXPECT_TRUE(witness_ends());
}

TEST_F(HostWitnessAtWork, DoesNotOutliveTheEngine)
{
    host.close();
    EXPECT_TRUE(host.exits_with(0));
    EXPECT_TRUE(witness_ends());
}

TEST_F(HostWitnessAtWork, LeavesItsTranslationUnverifiedWhenItIsKilled)
{
    ASSERT_EQ(::kill(witness, SIGKILL), 0);
    auto const events = host.rest();
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back()["status"], "completed");
    EXPECT_TRUE(std::any_of(events.begin(), events.end(), [](json const & event) {
        return event["event"] == "verdict" && event["verdict"] == "not_verified";
    }));
    EXPECT_TRUE(std::filesystem::exists(out));
}

TEST(HostWitness, HasSeenTheDocumentAsItWasBeforeItWasChanged)
{
    kitTempFolder const folder;
    sdkDocument document;
    auto const label = document.add_shape(kit_cube(10), "Cube");
    hostProcessThread thread;
    hostWitness witness(document, {.module = ODD_MODULE, .format = "Box"}, {}, thread);
    document.shapes()->RemoveShape(label);
    std::atomic<bool> const cancelled = false;
    witness.ask({.written = folder.write("a.odd", "x"), .shown = "a.odd", .promise = {}});
    auto const testimony = witness.answer(std::chrono::seconds(30), cancelled, [](int) {});
    EXPECT_TRUE(testimony.read_back);
    ASSERT_FALSE(testimony.findings.empty());
    EXPECT_EQ(testimony.findings[0].kind, "missing-solid");
    EXPECT_EQ(testimony.findings[0].part, "Cube");
}

TEST(HostWitness, NamesFaultsOfTheSourceItself)
{
    sdkDocument document;
    auto const cube = kit_cube(10);
    TopoDS_Shell shell;
    TopoDS_Solid solid;
    BRep_Builder builder;
    builder.MakeShell(shell);
    builder.Add(shell, TopExp_Explorer(cube, TopAbs_FACE).Current());
    builder.MakeSolid(solid);
    builder.Add(solid, shell);
    document.add_shape(solid, "Lid");
    std::atomic<bool> const cancelled = false;
    for (auto const level : {sdkMeasureLevel::full, sdkMeasureLevel::counts}) {
        hostProcessThread thread;
        hostWitness witness(document, {.module = LIES_MODULE, .format = "LIE", .level = level}, {}, thread);
        witness.ask({.written = "/no/such/file.lie", .shown = "file.lie", .promise = {}});
        auto const testimony = witness.answer(std::chrono::milliseconds(patience), cancelled, [](int) {});
        EXPECT_FALSE(testimony.read_back);
        if (level == sdkMeasureLevel::counts) {
            EXPECT_TRUE(testimony.findings.empty());
            continue;
        }
        ASSERT_EQ(testimony.findings.size(), 1u);
        EXPECT_EQ(testimony.findings.front().kind, "source-invalid");
        EXPECT_EQ(testimony.findings.front().part, "Lid");
    }
}
