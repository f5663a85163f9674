#include <csignal>
#include <thread>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sys/socket.h>
#include <unistd.h>

#include "engineKit.h"
#include "s2s/s2sHostLink.h"
#include "s2s/s2sHostProcess.h"

namespace {

using std::chrono::milliseconds;

void send_script(s2sHostProcess const & process, std::string const & script)
{
    nlohmann::json const job = {{"inputs", {{{"options", {{"script", script}}}}}}};
    s2sHostLink link(process.descriptor());
    link.send(job.dump());
    s2sHostLink * const links[] = {&link};
    s2s_wait_for(links, -1, milliseconds(0));
}

s2sHostExit run_host(std::string const & script)
{
    s2sHostProcess process;
    EXPECT_EQ(process.start(FAKE_HOST), 0);
    send_script(process, script);
    return process.wait(milliseconds(60000));
}

TEST(HostProcess, TellsTheExitStatus)
{
    auto const exit = run_host("exit 7");
    EXPECT_EQ(exit.kind, s2sHostExit::Kind::status);
    EXPECT_EQ(exit.number, 7);
    EXPECT_EQ(exit.text(), "exit status 7");
}

TEST(HostProcess, TellsTheSignalByName)
{
    EXPECT_EQ(run_host("signal " + std::to_string(SIGFPE)).text(), "SIGFPE");
    EXPECT_EQ(run_host("signal " + std::to_string(SIGBUS)).text(), "SIGBUS");
}

TEST(HostProcess, IsKilledWhenPatienceEnds)
{
    s2sHostProcess process;
    ASSERT_EQ(process.start(FAKE_HOST), 0);
    EXPECT_EQ(process.wait(milliseconds(0)).text(), "SIGKILL");
}

TEST(HostProcess, CanBeAskedForItsEndWithoutWaiting)
{
    s2sHostProcess process;
    ASSERT_EQ(process.start(FAKE_HOST), 0);
    EXPECT_FALSE(process.ended());
    EXPECT_GE(process.descriptor(), 0);
    send_script(process, "exit 7");
    while (!process.ended())
        std::this_thread::yield();
    EXPECT_EQ(process.descriptor(), -1);
    EXPECT_TRUE(process.ended());
    EXPECT_EQ(process.wait(milliseconds(0)).text(), "exit status 7");
}

TEST(HostProcess, GivesTheSystemsErrorForAMissingProgram)
{
    s2sHostProcess process;
    EXPECT_EQ(process.start("/nowhere/vmr-host"), ENOENT);
    EXPECT_EQ(process.descriptor(), -1);
}

TEST(HostProcess, HasNoDescriptorsButItsOwn)
{
    kitTempFolder const folder;
    int const leak = dup(0); // without close-on-exec, like those of many libraries
    run_host("list " + folder / "fds");
    close(leak);
    // The fourth one is that of the listing itself.
    EXPECT_EQ(read_text(folder / "fds").size(), std::string("0 1 2 3 ").size());
}

TEST(HostProcess, DoesNotInheritBlockedOrIgnoredSignals)
{
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &blocked, &before);
    auto const handler = std::signal(SIGUSR1, SIG_IGN);
    EXPECT_EQ(run_host("signal " + std::to_string(SIGTERM)).text(), "SIGTERM");
    EXPECT_EQ(run_host("signal " + std::to_string(SIGUSR1)).text(), "SIGUSR1");
    std::signal(SIGUSR1, handler);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST(HostProcess, RunsInASessionOfItsOwn)
{
    s2sHostProcess process;
    ASSERT_EQ(process.start(FAKE_HOST), 0);
    ucred peer{};
    socklen_t size = sizeof peer;
    ASSERT_EQ(getsockopt(process.descriptor(), SOL_SOCKET, SO_PEERCRED, &peer, &size), 0);
    EXPECT_EQ(peer.pid, getpid()); // made by us, before the host was there
    std::string sessions;
    for (auto const & entry : std::filesystem::directory_iterator("/proc/self/task"))
        sessions += read_text(entry.path() / "children");
    auto const host = std::stoi(sessions);
    EXPECT_EQ(getsid(host), host);
}

} // namespace
