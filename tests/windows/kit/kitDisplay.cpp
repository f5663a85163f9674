#include "windows/kit/kitDisplay.h"

#include "kit/kitTempFolder.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

[[noreturn]] void give_up(char const * what)
{
    std::fprintf(stderr, "no display for the window tests: %s\n", what);
    std::_Exit(1);
}

class Child {
public:
    Child(std::vector<char const *> arguments, int keep_open)
    {
        arguments.push_back(nullptr);
        m_pid = fork();
        if (m_pid != 0)
            return;
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (!std::freopen("/dev/null", "w", stderr) || !std::freopen("/dev/null", "w", stdout))
            _exit(127);
        if (keep_open >= 0)
            dup2(keep_open, 9);
        execvp(arguments[0], const_cast<char **>(arguments.data()));
        _exit(127);
    }
    ~Child()
    {
        kill(m_pid, SIGTERM);
        waitpid(m_pid, nullptr, 0);
    }
    Child(Child const &) = delete;
    Child & operator=(Child const &) = delete;

private:
    pid_t m_pid = -1;
};

/// The server writes the number of its display when it takes connections.
std::string display_number(int stream)
{
    std::string number;
    for (char c = 0; read(stream, &c, 1) == 1 && c != '\n';)
        number += c;
    return number;
}

} // namespace

void kit_have_display()
{
    static bool have = false;
    if (have)
        return;
    have = true;
    int ends[2];
    if (pipe(ends) != 0)
        give_up("no pipe");
    char const * const given = std::getenv("VMR_TEST_SCREEN");
    static Child const server({"Xvfb", "-displayfd", "9", "-screen", "0", given ? given : "1920x1200x24",
                               "-nolisten", "tcp", "-noreset"},
                              ends[1]);
    close(ends[1]);
    std::string const number = display_number(ends[0]);
    close(ends[0]);
    if (number.empty())
        give_up("Xvfb did not start");
    setenv("DISPLAY", (":" + number).c_str(), 1);
    unsetenv("WAYLAND_DISPLAY");
    setenv("GDK_BACKEND", "x11", 1);
    setenv("NO_AT_BRIDGE", "1", 1);
    setenv("GSETTINGS_BACKEND", "memory", 1);

    // A window that is there before its manager is would not get the focus.
    kitTempFolder const folder;
    std::string const ready = folder / "ready";
    if (mkfifo(ready.c_str(), 0600) != 0)
        give_up("no pipe");
    int const waiting = open(ready.c_str(), O_RDWR | O_CLOEXEC);
    std::string const tell = "sh -c 'echo > " + ready + "'";
    static Child const manager({"openbox", "--startup", tell.c_str()}, -1);
    pollfd readable{waiting, POLLIN, 0};
    if (poll(&readable, 1, 30'000) != 1)
        give_up("the window manager did not start");
    close(waiting);
}
