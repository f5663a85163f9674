#include "s2s/s2sBatchAhead.h"

#include <algorithm>
#include <exception>
#include <limits>

#include <nlohmann/json.hpp>

#include "s2s/s2sFiles.h"
#include "s2s/s2sHostEvent.h"
#include "s2s/s2sHostProgram.h"
#include "s2s/s2sMemory.h"
#include "s2s/s2sThreadComm.h"
#include "s2s/s2sVmr2vmr.h"

namespace fs = std::filesystem;

namespace {

using std::chrono::milliseconds;

// Bytes that one host may say ahead of its turn, about ten thousand messages, and all of them together.
constexpr std::size_t room_for_one = 1024 * 1024;
constexpr std::size_t room_for_all = 64 * room_for_one;
// How often to look whether the memory has become short.
constexpr milliseconds look_again(50);

/// A host that fails for want of memory or of space on the disk, or that is killed, may fail because of its
/// company only. One that cannot read its file would not read it alone either.
bool ended_badly(s2sHostLink const & link)
{
    auto const event = s2s_parse_host_event(link.last_line());
    // The link of one that has said its last word may close a little later.
    auto const end = std::get_if<s2sHostEnd>(&event);
    return end ? end->status != s2sThreadCompleted && end->status != s2sThreadReadError : link.closed();
}

/// Takes what has come already, so that an end is known that nobody has looked at yet.
void read_on(s2sHostLink & link)
{
    s2sHostLink * const links[] = {&link};
    for (std::size_t before = 0; link.wanted() != 0; before = link.unread()) {
        s2s_wait_for(links, -1, milliseconds(0));
        if (link.unread() == before)
            break;
    }
}

std::string guard_command(fs::path const & folder)
{
    using nlohmann::json;
    json const command = {{"command", "guard"}, {"folder", folder.native()}};
    return command.dump(-1, ' ', false, json::error_handler_t::replace);
}

/// A file that belongs to another, such as the materials of a mesh, has its name but for the extension.
bool belongs_together(fs::path const & a, fs::path const & b)
{
    return a.stem() == b.stem() && s2s_same_file(a.parent_path(), b.parent_path());
}

} // namespace

s2sBatchAhead::s2sBatchAhead(s2sEngineParts const & parts,
                             s2sTranslationElementscoPageArr const & translations,
                             std::vector<fs::path> const & inputs)
    : m_parts(parts), m_translations(translations), m_inputs(inputs), m_order(translations),
      m_left_to_turn(static_cast<std::size_t>(translations.count()), false)
{
}

s2sBatchAhead::~s2sBatchAhead()
{
    stop();
}

std::unique_ptr<s2sHostAtWork> s2sBatchAhead::take(int index)
{
    m_current = index;
    auto entry = m_entries.extract(index);
    if (entry.empty() || m_stopped)
        return nullptr;
    auto host = std::move(entry.mapped().host);
    auto & link = host->link();
    read_on(link);
    if (ended_badly(link))
        return nullptr;
    link.set_room(std::numeric_limits<std::size_t>::max());
    host->allow_free_memory(m_parts.context.limits());
    return host;
}

std::optional<milliseconds> s2sBatchAhead::attend(s2sHostLink & current, bool at_work)
{
    if (m_stopped || m_parts.context.hosts() < 2)
        return std::nullopt;
    try {
        if (m_parts.comm.termination_requested()) {
            stop();
            return std::nullopt;
        }
        settle(current);
        give_way();
        if (begin_one_more(at_work || next_starts_its_own() ? 1 : 0))
            return milliseconds(0);
    } catch (std::exception const &) {
        // The translation whose turn it is has nothing to do with it, and the others have their turn yet.
        stop();
    }
    return running() > 0 || m_leaving ? std::optional(look_again) : std::nullopt;
}

std::vector<s2sHostLink *> s2sBatchAhead::links()
{
    std::vector<s2sHostLink *> links;
    for (auto const & [index, entry] : m_entries)
        if (!entry.ended && !m_stopped)
            links.push_back(&entry.host->link());
    return links;
}

std::vector<std::string> s2sBatchAhead::folders_in_use() const
{
    std::vector<std::string> folders;
    for (auto const & [index, entry] : m_entries)
        if (entry.ended)
            folders.push_back(entry.host->folder().native());
    return folders;
}

void s2sBatchAhead::files_changed(std::vector<fs::path> const & files)
{
    std::erase_if(m_entries, [&](Entries::value_type const & item) {
        for (auto const & input : m_translations[item.first].input_elements())
            for (auto const & file : files)
                if (file != files.back() && belongs_together(file, s2s_real_place(input.file().str())))
                    return true;
        return false;
    });
}

/// Sorts those that have said their last word. The folder of a host that has ended would be nobody's when
/// this process is killed, so the others are told of it.
void s2sBatchAhead::settle(s2sHostLink & current)
{
    m_leaving = false;
    for (auto item = m_entries.begin(); item != m_entries.end();) {
        auto & [index, entry] = *item;
        auto & host = *entry.host;
        if (entry.ended) {
            m_leaving = !host.process().ended() || m_leaving;
        } else if (host.link().closed() && ended_badly(host.link())) {
            m_left_to_turn[static_cast<std::size_t>(index)] = true;
            item = m_entries.erase(item);
            continue;
        } else if (host.link().closed()) {
            entry.ended = true;
            m_leaving = true;
            auto const command = guard_command(host.folder());
            current.send(command);
            for (auto const other : links())
                other->send(command);
        }
        ++item;
    }
}

void s2sBatchAhead::give_way()
{
    auto const now = Clock::now();
    if (running() == 0 || now < m_next_look)
        return;
    m_next_look = now + look_again;
    if (!s2s_memory_is_short(s2s_memory()))
        return;
    std::erase_if(m_entries, [this](Entries::value_type const & item) {
        if (!item.second.ended)
            m_left_to_turn[static_cast<std::size_t>(item.first)] = true;
        return !item.second.ended;
    });
}

/// Whether it makes sense to try again at once.
bool s2sBatchAhead::begin_one_more(int others_at_work)
{
    if (running() + others_at_work >= m_parts.context.hosts() || kept() > room_for_all)
        return false;
    int const index = next_to_begin();
    if (index < 0 || !s2s_memory_for_one_more(s2s_memory()))
        return false;

    m_left_to_turn[static_cast<std::size_t>(index)] = true;
    auto const & translation = m_translations[index];
    if (s2s_check_translation(translation, m_parts.loader, m_inputs))
        return true;
    auto host = std::make_unique<s2sHostAtWork>();
    if (host->start(s2s_host_program(m_parts.app_info).str(), translation, m_parts.context.limits(),
                    m_parts.context.hosts(), folders_in_use()))
        return true;
    host->link().set_room(room_for_one);
    m_entries[index].host = std::move(host);
    m_left_to_turn[static_cast<std::size_t>(index)] = false;
    return true;
}

/// Whether the entry whose turn comes next will start a host then.
bool s2sBatchAhead::next_starts_its_own() const
{
    int const next = m_current + 1;
    return next < m_translations.count() && !m_entries.contains(next);
}

int s2sBatchAhead::next_to_begin()
{
    for (int i = m_current + 1; i < m_translations.count(); ++i)
        if (!m_entries.contains(i) && !m_left_to_turn[static_cast<std::size_t>(i)] &&
            m_order.last_before(i) < m_current)
            return i;
    return -1;
}

int s2sBatchAhead::running() const
{
    return static_cast<int>(std::count_if(m_entries.begin(), m_entries.end(),
                                          [](auto const & item) { return !item.second.ended; }));
}

std::size_t s2sBatchAhead::kept() const
{
    std::size_t bytes = 0;
    for (auto const & [index, entry] : m_entries)
        bytes += entry.host->link().unread();
    return bytes;
}

void s2sBatchAhead::stop()
{
    m_stopped = true;
    for (auto const & [index, entry] : m_entries)
        entry.host->process().kill();
}
