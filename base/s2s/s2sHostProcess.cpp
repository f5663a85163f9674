#include "s2s/s2sHostProcess.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class SpawnActions {
public:
    SpawnActions() { posix_spawn_file_actions_init(&m_actions); }
    ~SpawnActions() { posix_spawn_file_actions_destroy(&m_actions); }
    SpawnActions(SpawnActions const &) = delete;
    SpawnActions & operator=(SpawnActions const &) = delete;
    posix_spawn_file_actions_t * get() { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions;
};

class SpawnAttributes {
public:
    SpawnAttributes() { posix_spawnattr_init(&m_attributes); }
    ~SpawnAttributes() { posix_spawnattr_destroy(&m_attributes); }
    SpawnAttributes(SpawnAttributes const &) = delete;
    SpawnAttributes & operator=(SpawnAttributes const &) = delete;
    posix_spawnattr_t * get() { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes;
};

// posix_spawn does not copy the memory of this program, which may be large, and is safe with other threads
// running.
int spawn(std::string const & program, std::vector<std::string> const & folders, int socket, pid_t & pid)
{
    SpawnActions actions;
    posix_spawn_file_actions_adddup2(actions.get(), socket, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(actions.get(), socket, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(actions.get(), STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(actions.get(), STDERR_FILENO + 1);

    SpawnAttributes attributes;
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(attributes.get(), &none);
    posix_spawnattr_setsigdefault(attributes.get(), &all);
    posix_spawnattr_setflags(
        attributes.get(),
        static_cast<short>(POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF));

    std::vector<char *> arguments{const_cast<char *>(program.c_str())};
    std::string option = "--remove-when-alone";
    for (auto const & folder : folders) {
        arguments.push_back(option.data());
        arguments.push_back(const_cast<char *>(folder.c_str()));
    }
    arguments.push_back(nullptr);
    return posix_spawn(&pid, program.c_str(), actions.get(), attributes.get(), arguments.data(), environ);
}

} // namespace

std::string s2sHostExit::text() const
{
    switch (kind) {
    case Kind::status:
        return "exit status " + std::to_string(number);
    case Kind::signal: {
        auto const name = sigabbrev_np(number);
        return name ? std::string("SIG") + name : "signal " + std::to_string(number);
    }
    case Kind::unknown:
        break;
    }
    return "unknown reason";
}

s2sHostProcess::~s2sHostProcess()
{
    if (m_pid > 0) {
        kill();
        reap(0);
    }
    close_descriptor();
}

int s2sHostProcess::start(std::string const & program, std::vector<std::string> const & folders)
{
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return errno;
    int error = spawn(program, folders, ends[1], m_pid);
    close(ends[1]);
    if (error == 0 && fcntl(ends[0], F_SETFL, O_NONBLOCK) != 0)
        error = errno;
    m_descriptor = ends[0];
    if (error != 0)
        close_descriptor();
    return error;
}

void s2sHostProcess::kill()
{
    if (m_pid <= 0)
        return;
    // The host leads its own session, so its number is also that of its process group.
    ::kill(-m_pid, SIGKILL);
    ::kill(m_pid, SIGKILL);
}

s2sHostExit s2sHostProcess::wait(std::chrono::milliseconds patience)
{
    auto const deadline = std::chrono::steady_clock::now() + patience;
    auto pause = std::chrono::microseconds(100);
    while (m_pid > 0 && !reap(WNOHANG)) {
        if (std::chrono::steady_clock::now() >= deadline) {
            kill();
            reap(0);
            break;
        }
        std::this_thread::sleep_for(pause);
        pause = std::min(pause * 2, std::chrono::microseconds(2000));
    }
    return m_exit;
}

bool s2sHostProcess::ended()
{
    if (m_pid > 0 && !reap(WNOHANG))
        return false;
    // A host that sees our end of the socket close removes its folders, so it stays open until now.
    close_descriptor();
    return true;
}

bool s2sHostProcess::reap(int options)
{
    siginfo_t info{};
    int result;
    do {
        result = waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED | WNOWAIT | options);
    } while (result != 0 && errno == EINTR);
    if (result == 0 && info.si_pid == 0)
        return false;
    if (result == 0 && info.si_code == CLD_EXITED)
        m_exit = {s2sHostExit::Kind::status, info.si_status};
    else if (result == 0)
        m_exit = {s2sHostExit::Kind::signal, info.si_status};

    // Until it is reaped its number cannot belong to anybody else, so this is the time to end what it has
    // started.
    kill();
    while (waitpid(m_pid, nullptr, 0) < 0 && errno == EINTR)
        continue;
    m_pid = -1;
    return true;
}

void s2sHostProcess::close_descriptor()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    m_descriptor = -1;
}
