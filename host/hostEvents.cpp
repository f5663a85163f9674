#include "host/hostEvents.h"

#include <nlohmann/json.hpp>

#include <cerrno>
#include <unistd.h>

using json = nlohmann::ordered_json;
using std::chrono::steady_clock;

namespace {

constexpr auto flush_interval = std::chrono::milliseconds(50);
constexpr std::size_t flush_size = 64 * 1024;

// The domain under which the engine looks up the texts of the host and of all modules.
constexpr char const * message_domain = "vmrhost";

// Names out of broken files may hold anything; the lines stay valid UTF-8.
std::string line_of(json const & event)
{
    return event.dump(-1, ' ', false, json::error_handler_t::replace) + '\n';
}

json arguments_of(sdkText const & text)
{
    json arguments = json::array();
    for (auto const & argument : text.arguments()) {
        std::visit([&](auto const & value) { arguments.push_back(value); }, argument);
    }
    return arguments;
}

char const * text_of(sdkWeight weight)
{
    switch (weight) {
    case sdkWeight::note:
        return "note";
    case sdkWeight::difference:
        return "difference";
    case sdkWeight::loss:
        break;
    }
    return "loss";
}

char const * text_of(sdkStatus status)
{
    switch (status) {
    case sdkStatus::completed:
        return "completed";
    case sdkStatus::read_error:
        return "read_error";
    case sdkStatus::write_error:
        return "write_error";
    case sdkStatus::too_big:
        return "too_big";
    case sdkStatus::cancelled:
        break;
    }
    return "cancelled";
}

} // namespace

void hostEvents::file(std::string const & path, char const * direction)
{
    auto const line = line_of({{"event", "file"}, {"path", path}, {"direction", direction}});
    std::lock_guard const lock(m_mutex);
    add(line);
}

void hostEvents::progress(int percent)
{
    std::lock_guard const lock(m_mutex);
    if (percent > m_percent) {
        m_percent = percent;
        add(line_of({{"event", "progress"}, {"percent", percent}}));
    }
}

void hostEvents::message(sdkStream stream, sdkText const & text)
{
    // Every message is a line of its own wherever it is shown.
    std::string key(text.key());
    if (!key.ends_with('\n'))
        key += '\n';
    auto const line = line_of({{"event", "message"},
                               {"stream", stream == sdkStream::output ? "output" : "error"},
                               {"domain", message_domain},
                               {"key", std::move(key)},
                               {"args", arguments_of(text)}});
    std::lock_guard const lock(m_mutex);
    add(line);
}

void hostEvents::finding(sdkFinding const & finding)
{
    json event = {{"event", "finding"},
                  {"weight", text_of(finding.weight)},
                  {"kind", finding.kind},
                  {"part", finding.part},
                  {"place", finding.place}};
    if (finding.source) {
        event["source"] = *finding.source;
    }
    if (finding.output) {
        event["output"] = *finding.output;
    }
    event["domain"] = message_domain;
    event["key"] = finding.text.key();
    event["args"] = arguments_of(finding.text);
    auto const line = line_of(event);
    std::lock_guard const lock(m_mutex);
    add(line);
}

void hostEvents::verdict(char const * verdict)
{
    auto const line = line_of({{"event", "verdict"}, {"verdict", verdict}});
    std::lock_guard const lock(m_mutex);
    add(line);
}

void hostEvents::flush_if_due()
{
    std::lock_guard const lock(m_mutex);
    if (!m_pending.empty() && steady_clock::now() - m_flushed >= flush_interval) {
        flush();
    }
}

void hostEvents::end(sdkStatus status, std::int64_t processed, std::int64_t failed)
{
    auto const line = line_of(
        {{"event", "end"}, {"status", text_of(status)}, {"processed", processed}, {"failed", failed}});
    std::lock_guard const lock(m_mutex);
    if (m_ended) {
        return;
    }
    add(line);
    m_ended = true;
    flush();
}

void hostEvents::add(std::string const & line)
{
    if (m_ended) {
        return;
    }
    m_pending += line;
    if (m_pending.size() >= flush_size || steady_clock::now() - m_flushed >= flush_interval) {
        flush();
    }
}

void hostEvents::flush()
{
    std::string_view rest = m_pending;
    while (!rest.empty()) {
        auto const written = ::write(m_descriptor, rest.data(), rest.size());
        if (written < 0 && errno != EINTR) {
            break;
        }
        rest.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    m_pending.clear();
    m_flushed = steady_clock::now();
}
