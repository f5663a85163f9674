#include "host/hostChannel.h"

#include "host/hostMemory.h"

#include <nlohmann/json.hpp>

#include <cerrno>
#include <chrono>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

using nlohmann::json;
using std::chrono::steady_clock;

namespace {

constexpr int tick_milliseconds = 25;

// How long a reader or writer has to notice a cancel by itself before the process ends in the middle of its
// work.
constexpr auto patience = std::chrono::milliseconds(200);

bool is_regular_file(int descriptor)
{
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

std::string text_field(json const & value, char const * name)
{
    auto const field = value.is_object() ? value.find(name) : value.end();
    return field != value.end() && field->is_string() ? field->get<std::string>() : std::string();
}

} // namespace

hostChannel::hostChannel(hostEvents & events) : m_events(events), m_connected(!is_regular_file(STDIN_FILENO))
{
}

bool hostChannel::read_job(hostJob & job, std::string & problem)
{
    for (;;) {
        switch (host_parse_job(m_input, job, problem)) {
        case hostJobState::complete:
            // The rest of the job's last line holds no command; those that follow do.
            m_input.erase(0, m_connected ? m_input.find('\n') : std::string::npos);
            return true;
        case hostJobState::invalid:
            return false;
        case hostJobState::incomplete:
            break;
        }
        if (!read_some()) {
            return false;
        }
    }
}

void hostChannel::watch(hostKeeper & keeper)
{
    m_keeper = &keeper;
    m_watcher = std::thread([this] { run(); });
    m_watcher.detach();
}

void hostChannel::finish(sdkStatus status, std::int64_t processed, std::int64_t failed)
{
    // Never released: whoever comes second must not end the process while the first still writes.
    m_finishing.lock();
    m_events.end(status, processed, failed);
    m_keeper->finish();
    // Without destructors: taking documents apart costs time, and the system takes back everything at once.
    ::_exit(0);
}

void hostChannel::run()
{
    take_commands();
    steady_clock::time_point cancelled_at = steady_clock::now();
    bool waiting = false;
    for (;;) {
        pollfd descriptor{m_connected ? STDIN_FILENO : -1, POLLIN, 0};
        if (::poll(&descriptor, 1, tick_milliseconds) > 0) {
            if (!read_some()) {
                abandon();
            }
            take_commands();
        }
        m_events.flush_if_due();
        if (!m_cancelled) {
            continue;
        }
        if (!waiting) {
            waiting = true;
            cancelled_at = steady_clock::now();
        } else if (steady_clock::now() - cancelled_at > patience) {
            finish(sdkStatus::cancelled, 0, 0);
        }
    }
}

bool hostChannel::read_some()
{
    char buffer[16384];
    for (;;) {
        auto const length = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (length > 0) {
            m_input.append(buffer, static_cast<std::size_t>(length));
            return true;
        }
        if (length == 0 || errno != EINTR) {
            return false;
        }
    }
}

void hostChannel::take_commands()
{
    for (auto end = m_input.find('\n'); end != std::string::npos; end = m_input.find('\n')) {
        take_command(m_input.substr(0, end));
        m_input.erase(0, end + 1);
    }
}

void hostChannel::take_command(std::string const & line)
{
    auto const value = json::parse(line, nullptr, false);
    auto const command = text_field(value, "command");
    if (command == "cancel") {
        m_cancelled = true;
    } else if (command == "guard") {
        m_keeper->keep(text_field(value, "folder"));
    } else if (command == "memory") {
        if (auto const limit = value.find("limit"); limit != value.end() && limit->is_number_unsigned()) {
            host_limit_memory(limit->get<std::uint64_t>());
        }
    }
}

void hostChannel::abandon()
{
    m_finishing.lock();
    m_keeper->finish();
    ::_exit(0);
}
