#include "cli_kit.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>

namespace {

/// Runs that are hit in the middle of a translation that takes a while.
struct Interrupted : cliTest {
    Interrupted()
    {
        // Many copies of the same facets: enough that the translation is still running when it is hit.
        std::string many;
        for (int i = 0; i < 1500; ++i)
            many += cli_cube_stl();
        folder.write("many.stl", many);
        folder.write("out/a.step", "the user's old output");
    }

    std::vector<std::string> const words = {"many.stl", "-t", "STEP", "-o", "out/a.step"};

    /// Waits until the translator host works for `program` and gives its process, or 0 when it never comes.
    pid_t host_of(pid_t program) const
    {
        auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        std::string const task = "/proc/" + std::to_string(program) + "/task";
        while (std::chrono::steady_clock::now() < deadline) {
            std::error_code gone;
            for (auto const & thread : std::filesystem::directory_iterator(task, gone)) {
                std::ifstream children(thread.path() / "children");
                if (pid_t child = 0; children >> child && staging_is_there())
                    return child;
            }
            std::this_thread::yield();
        }
        return 0;
    }
    bool staging_is_there() const
    {
        for (auto const & name : files_in("out"))
            if (name.starts_with(".vmr"))
                return true;
        return false;
    }
    /// Waits until the process has ended, whoever its parent is by then.
    static bool ends(pid_t process)
    {
        auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (kill(process, 0) == 0) {
            if (std::chrono::steady_clock::now() > deadline)
                return false;
            std::this_thread::yield();
        }
        return true;
    }
};

} // namespace

TEST_F(Interrupted, HostThatIsKilledGivesAnErrorThatNamesTheFile)
{
    bool hit = false;
    auto const result = run(words, false, [&](pid_t program) {
        pid_t const host = host_of(program);
        hit = host != 0 && kill(host, SIGKILL) == 0;
    });
    ASSERT_TRUE(hit);
    EXPECT_EQ(result.exit_status, 0);
    EXPECT_NE(result.output.find("many.stl"), std::string::npos);
    EXPECT_NE(result.output.find("was killed (SIGKILL)"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("\nNot verified: a.step was not written\n"), std::string::npos)
        << result.output;
    EXPECT_EQ(files_in("out"), std::set<std::string>{"a.step"});
    EXPECT_EQ(kit_read_file(folder / "out/a.step"), "the user's old output");
}

TEST_F(Interrupted, ProgramThatIsInterruptedLeavesTheOldOutputAndNoLitter)
{
    pid_t host = 0;
    auto const result = run(words, false, [&](pid_t program) {
        host = host_of(program);
        kill(program, SIGINT);
    });
    ASSERT_NE(host, 0);
    EXPECT_EQ(result.signal, SIGINT);
    EXPECT_TRUE(ends(host));
    EXPECT_EQ(files_in("out"), std::set<std::string>{"a.step"});
    EXPECT_EQ(kit_read_file(folder / "out/a.step"), "the user's old output");
}
