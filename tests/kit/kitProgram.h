#pragma once

#include "kit/kitTempFolder.h"

#include <fcntl.h>
#include <functional>
#include <map>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

/// How a program ended and what it said.
struct kitProgramResult {
    int exit_status = -1; ///< -1 when a signal ended it
    int signal = 0;
    std::string output;
    std::string errors;
};

/// One run of a program with an environment of its own.
struct kitProgram {
    std::vector<std::string> arguments; ///< the program's path first
    std::string folder;                 ///< where it runs
    std::map<std::string, std::string> environment;
    bool as_nobody = false; ///< gives up the rights of root before it starts

    /// Called with the process while it runs; the run ends when the program does.
    std::function<void(pid_t)> meanwhile;

    kitProgramResult run() const
    {
        kitTempFolder const texts;
        std::string const output = texts / "output", errors = texts / "errors";
        pid_t const child = fork();
        if (child == 0)
            become(output, errors);
        if (meanwhile)
            meanwhile(child);
        int status = 0;
        waitpid(child, &status, 0);
        kitProgramResult result;
        result.exit_status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        result.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
        result.output = kit_read_file(output);
        result.errors = kit_read_file(errors);
        return result;
    }

private:
    [[noreturn]] void become(std::string const & output, std::string const & errors) const
    {
        dup2(open(output.c_str(), O_WRONLY | O_CREAT, 0600), 1);
        dup2(open(errors.c_str(), O_WRONLY | O_CREAT, 0600), 2);
        dup2(open("/dev/null", O_RDONLY), 0);
        if (chdir(folder.c_str()) != 0)
            _exit(126);
        constexpr uid_t nobody = 65534;
        if (as_nobody && getuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0))
            _exit(125);
        std::vector<std::string> settings;
        for (auto const & [name, value] : environment)
            settings.push_back(name + "=" + value);
        std::vector<char *> words, variables;
        for (auto const & argument : arguments)
            words.push_back(const_cast<char *>(argument.c_str()));
        for (auto & setting : settings)
            variables.push_back(setting.data());
        words.push_back(nullptr);
        variables.push_back(nullptr);
        execve(words[0], words.data(), variables.data());
        _exit(127);
    }
};
