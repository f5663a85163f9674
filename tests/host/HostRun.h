#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

// A job as the engine sends it, with paths of the build tree.
class HostJob {
public:
    HostJob & input(std::string const & file, std::string const & module, std::string const & format,
                    nlohmann::json const & options = nlohmann::json::object());
    HostJob & output(std::string const & file, std::string const & module, std::string const & format,
                     nlohmann::json const & options = nlohmann::json::object());
    nlohmann::json & value() { return m_value; }
    std::string line() const { return m_value.dump() + "\n"; }

private:
    nlohmann::json m_value = {{"job", 1}, {"inputs", nlohmann::json::array()}};
};

// One process of the real host at the other end of a socket pair. It is killed when it is still there at the
// end.
class HostRun {
public:
    explicit HostRun(std::vector<std::string> const & arguments = {});
    ~HostRun();
    HostRun(HostRun const &) = delete;
    HostRun & operator=(HostRun const &) = delete;

    void send(std::string const & text);
    // The next line, or nothing when the host has closed its end. Fails the test after half a minute without
    // either.
    std::optional<nlohmann::json> next();
    // Skips lines up to one whose field has the value.
    std::optional<nlohmann::json> next(std::string const & field, std::string const & value);
    // All lines up to the end of the connection.
    std::vector<nlohmann::json> rest();

    void close();
    void signal(int number) const;
    // The status that waitpid gives.
    int wait();
    // True when the process has ended by itself with that exit status.
    bool exits_with(int status);

private:
    pid_t m_process = -1;
    int m_socket = -1;
    int m_status = -1;
    std::string m_input;
};
