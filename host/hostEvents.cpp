#include "host/hostEvents.h"

#include "sdk/measure/sdkTotalsComparison.h"

#include <nlohmann/json.hpp>

#include <cerrno>
#include <poll.h>
#include <unistd.h>

using json = nlohmann::ordered_json;
using std::chrono::steady_clock;

namespace {

constexpr auto flush_interval = std::chrono::milliseconds(50);
// So many lines of an interval are sent one by one.
constexpr int most_at_once = 20;

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

template <class Count>
std::int64_t sum_of(sdkInventory const & inventory, Count const & count)
{
    std::int64_t sum = 0;
    for (auto const & body : inventory.bodies) {
        sum += count(body.measure);
    }
    return sum;
}

json corners_of(Bnd_Box const & extent)
{
    if (extent.IsVoid()) {
        return nullptr;
    }
    Bnd_Box box = extent;
    box.SetGap(0);
    auto const low = box.CornerMin();
    auto const high = box.CornerMax();
    return {low.X(), low.Y(), low.Z(), high.X(), high.Y(), high.Z()};
}

json measures_of(sdkBody const * body)
{
    if (!body) {
        return nullptr;
    }
    auto const & measure = body->measure;
    auto const & centroid = measure.centroid;
    return {{"part", body->part},
            {"volume", measure.volume},
            {"area", measure.area},
            {"length", measure.length},
            {"faces", measure.faces.size()},
            {"centroid", {centroid.X(), centroid.Y(), centroid.Z()}}};
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
    m_file = path;
    add(line);
    // Also one that is killed at once over the file must have named it.
    flush();
}

std::string hostEvents::current_file()
{
    std::lock_guard const lock(m_mutex);
    return m_file;
}

void hostEvents::progress(int percent)
{
    if (percent <= m_percent) {
        return;
    }
    // A process that runs out of memory over this has its last words to send and must not wait for itself.
    auto const line = line_of({{"event", "progress"}, {"percent", percent}});
    std::lock_guard const lock(m_mutex);
    if (percent > m_percent) {
        m_percent = percent;
        add(line);
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

void hostEvents::inventory(char side, sdkInventory const & inventory, Bnd_Box const & extent)
{
    auto const line =
        line_of({{"event", "inventory"},
                 {"side", std::string(1, side)},
                 {"solids", inventory.count(sdkBodyKind::solid)},
                 {"shells", sum_of(inventory, [](auto const & measure) { return measure.shells; })},
                 {"faces", sdk_face_count(inventory)},
                 {"meshes", inventory.count(sdkBodyKind::mesh)},
                 {"triangles", sum_of(inventory, [](auto const & measure) { return measure.triangles; })},
                 {"curves", inventory.count(sdkBodyKind::curve)},
                 {"points", inventory.count(sdkBodyKind::point)},
                 {"assemblies", inventory.assemblies},
                 {"instances", inventory.instances},
                 {"volume", inventory.volume()},
                 {"area", inventory.area()},
                 {"length", inventory.length()},
                 {"box", corners_of(extent)}});
    std::lock_guard const lock(m_mutex);
    add(line);
}

void hostEvents::pair(sdkComparedBody const & pair)
{
    auto const & named = pair.a ? *pair.a : *pair.b;
    json event = {{"event", "pair"},        {"part", named.part},       {"kind", sdk_kind_name(named.kind)},
                  {"place", named.place()}, {"a", measures_of(pair.a)}, {"b", measures_of(pair.b)},
                  {"same", pair.same}};
    if (pair.a && pair.b) {
        event["distance"] = pair.a->measure.centroid.Distance(pair.b->measure.centroid);
    }
    auto const line = line_of(event);
    std::lock_guard const lock(m_mutex);
    add(line);
}

void hostEvents::flush_if_due()
{
    std::lock_guard const lock(m_mutex);
    if (m_size > 0 && steady_clock::now() - m_flushed >= flush_interval) {
        flush();
    }
}

void hostEvents::send_last_words() noexcept
{
    if (::getpid() != m_process) {
        return;
    }
    // Another thread may be sending; one that crashed while it did will never let go. To take a mutex without
    // waiting is one exchange of a number, which a handler of signals may do.
    for (int i = 0; i < 200 && !m_mutex.try_lock(); ++i) {
        ::poll(nullptr, 0, 1);
    }
    send({m_pending.data(), m_size});
}

steady_clock::duration hostEvents::silent_for()
{
    std::lock_guard const lock(m_mutex);
    return steady_clock::now() - m_added;
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

void hostEvents::add(std::string_view line)
{
    if (m_ended) {
        return;
    }
    auto const now = steady_clock::now();
    m_added = now;
    if (m_size + line.size() > m_pending.size()) {
        flush();
    }
    if (line.size() > m_pending.size()) {
        send(line);
        return;
    }
    line.copy(m_pending.data() + m_size, line.size());
    m_size += line.size();
    if (now - m_interval >= flush_interval) {
        m_interval = now;
        m_at_once = 0;
    }
    if (++m_at_once <= most_at_once || now - m_flushed >= flush_interval) {
        flush();
    }
}

void hostEvents::flush()
{
    send({m_pending.data(), m_size});
    m_size = 0;
    m_flushed = steady_clock::now();
}

void hostEvents::send(std::string_view text) const noexcept
{
    while (!text.empty()) {
        auto const written = ::write(m_descriptor, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            break;
        }
        text.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
}
