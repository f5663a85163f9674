#include "HostRun.h"

#include <gtest/gtest.h>

#include <csignal>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

using nlohmann::json;

HostJob & HostJob::input(std::string const & file, std::string const & module, std::string const & format,
                         json const & options)
{
    m_value["inputs"].push_back(
        {{"file", file}, {"module", module}, {"format", format}, {"options", options}});
    return *this;
}

HostJob & HostJob::output(std::string const & file, std::string const & module, std::string const & format,
                          json const & options)
{
    m_value["output"] = {{"file", file}, {"module", module}, {"format", format}, {"options", options}};
    return *this;
}

HostRun::HostRun(std::vector<std::string> const & arguments)
{
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        throw std::runtime_error("no socket pair");
    }
    std::vector<char *> words{const_cast<char *>(HOST_PROGRAM)};
    for (auto const & argument : arguments) {
        words.push_back(const_cast<char *>(argument.c_str()));
    }
    words.push_back(nullptr);
    m_process = ::fork();
    if (m_process == 0) {
        ::dup2(ends[1], STDIN_FILENO);
        ::dup2(ends[1], STDOUT_FILENO);
        ::execv(HOST_PROGRAM, words.data());
        ::_exit(127);
    }
    ::close(ends[1]);
    m_socket = ends[0];
}

HostRun::~HostRun()
{
    close();
    if (m_process > 0) {
        ::kill(m_process, SIGKILL);
        wait();
    }
}

void HostRun::send(std::string const & text)
{
    ASSERT_EQ(::send(m_socket, text.data(), text.size(), MSG_NOSIGNAL), static_cast<ssize_t>(text.size()));
}

std::optional<json> HostRun::next()
{
    constexpr int patience = 30'000;
    for (;;) {
        if (auto const end = m_input.find('\n'); end != std::string::npos) {
            auto const line = m_input.substr(0, end);
            m_input.erase(0, end + 1);
            return json::parse(line);
        }
        pollfd descriptor{m_socket, POLLIN, 0};
        if (::poll(&descriptor, 1, patience) <= 0) {
            ADD_FAILURE() << "the host says nothing";
            return std::nullopt;
        }
        char buffer[4096];
        auto const length = ::read(m_socket, buffer, sizeof buffer);
        if (length <= 0) {
            return std::nullopt;
        }
        m_input.append(buffer, static_cast<std::size_t>(length));
    }
}

std::optional<json> HostRun::next(std::string const & field, std::string const & value)
{
    while (auto event = next()) {
        if (event->value(field, "") == value) {
            return event;
        }
    }
    return std::nullopt;
}

std::vector<json> HostRun::rest()
{
    std::vector<json> events;
    while (auto event = next()) {
        events.push_back(*event);
    }
    return events;
}

void HostRun::close()
{
    if (m_socket >= 0) {
        ::close(m_socket);
        m_socket = -1;
    }
}

void HostRun::signal(int number) const
{
    ASSERT_EQ(::kill(m_process, number), 0);
}

int HostRun::wait()
{
    if (m_process > 0) {
        ::waitpid(m_process, &m_status, 0);
        m_process = -1;
    }
    return m_status;
}

bool HostRun::exits_with(int status)
{
    auto const ended = wait();
    return WIFEXITED(ended) && WEXITSTATUS(ended) == status;
}
