#include "prowl/prowlDeeds.h"

#include <cerrno>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <map>
#include <sched.h>
#include <spawn.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// What the system says of a call that gives a negative number on failure.
int error_of(long result)
{
    return result < 0 ? errno : 0;
}

int open_with(std::string const & target, int flags)
{
    return error_of(::open(target.c_str(), flags, 0600));
}

int list(std::string const & target)
{
    return ::opendir(target.c_str()) ? 0 : errno;
}

int start_program()
{
    char name[] = "true";
    char * const words[] = {name, nullptr};
    ::pid_t process = -1;
    return ::posix_spawn(&process, "/bin/true", nullptr, nullptr, words, words + 1);
}

int become_program()
{
    char name[] = "true";
    char * const words[] = {name, nullptr};
    return error_of(::execv("/bin/true", words));
}

// A few times, where one that means it would not stop. They end at once.
int fork_again_and_again()
{
    int error = 0;
    for (int i = 0; i < 16; ++i) {
        auto const process = ::fork();
        if (process == 0) {
            ::_exit(0);
        }
        if (process > 0) {
            ::waitpid(process, nullptr, 0);
            return 0;
        }
        error = errno;
    }
    return error;
}

} // namespace

int prowl_do(std::string const & deed, std::string const & target)
{
    std::map<std::string, std::function<int()>> const deeds{
        {"nothing", [] { return 0; }},
        {"read", [&] { return open_with(target, O_RDONLY); }},
        {"list", [&] { return list(target); }},
        {"make", [&] { return open_with(target, O_WRONLY | O_CREAT); }},
        {"overwrite", [&] { return open_with(target, O_WRONLY | O_TRUNC); }},
        {"cut", [&] { return open_with(target, O_RDONLY | O_TRUNC); }},
        {"remove", [&] { return error_of(::unlink(target.c_str())); }},
        {"link", [&] { return error_of(::symlink("/", target.c_str())); }},
        {"chmod", [&] { return error_of(::chmod(target.c_str(), 0777)); }},
        {"socket", [] { return error_of(::socket(AF_INET, SOCK_STREAM, 0)); }},
        {"start", start_program},
        {"become", become_program},
        {"fork", fork_again_and_again},
        {"trace", [] { return error_of(::ptrace(PTRACE_SEIZE, ::getppid(), nullptr, nullptr)); }},
        {"signal", [] { return error_of(::kill(::getppid(), 0)); }},
        {"unshare", [] { return error_of(::unshare(CLONE_NEWUSER)); }}};
    return deeds.at(deed)();
}
