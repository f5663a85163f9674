#pragma once

#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

constexpr uid_t ordinary_user = 65534;

/// Gives a file or directory to the ordinary user; of no effect where the tests do not run as root.
inline void give_to_ordinary_user(std::string const & path)
{
    if (geteuid() == 0 && chown(path.c_str(), ordinary_user, ordinary_user) != 0)
        throw std::runtime_error("chown");
}

/// Runs the body in a process of its own that has no special rights, and gives what the body gave.
template <class Body>
bool as_ordinary_user(Body body)
{
    pid_t const child = fork();
    if (child == 0) {
        bool const ordinary = geteuid() != 0 || (setgid(ordinary_user) == 0 && setuid(ordinary_user) == 0);
        _exit(ordinary && body() ? 0 : 1);
    }
    int status = 1;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
