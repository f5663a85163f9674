#include "s2s/s2sHostConversation.h"

#include <algorithm>
#include <csignal>
#include <filesystem>

#include "s2s/s2sThreadComm.h"
#include "vmr/vmrabsOutput.h"

namespace {

using std::chrono::milliseconds;

constexpr milliseconds time_to_stop(300);
// For a host that has said its last word or closed its socket and is still there.
constexpr milliseconds time_to_leave(1000);
// How often to look for a request to stop where the channel could get no descriptor to wake us.
constexpr milliseconds look_again(20);
// So many lines are taken before the next look at anything else, such as a request to stop: a host that ran
// ahead of its turn may have said much.
constexpr int lines_at_once = 1000;
constexpr std::size_t longest_quote = 200;

} // namespace

s2sHostConversation::s2sHostConversation(s2sEngineParts const & parts, utString const & output,
                                         s2sHostAtWork & host, s2sSideWork & side_work)
    : m_parts(parts), m_output(output), m_process(host.process()), m_link(host.link()),
      m_side_work(side_work), m_longest_silence(host.allowance().patience),
      m_silence(m_longest_silence, Clock::now()), m_wake(parts.comm.termination_descriptor())
{
}

s2sHostEnd s2sHostConversation::hold()
{
    listen();
    m_side_work.attend(m_link, false);

    // Our end of the socket stays open until the host is gone, because a host that sees it close removes the
    // files that it has written.
    auto const exit = m_process.wait(m_killed ? milliseconds(0) : time_to_leave);
    return m_end ? *m_end : ended_without_word(exit);
}

void s2sHostConversation::listen()
{
    while (!m_end && (!m_link.closed() || m_link.has_line())) {
        pass_on_termination();
        if (m_deadline && Clock::now() >= *m_deadline) {
            end_host();
            return;
        }
        auto const before = Clock::now();
        wait();
        take_waiting_lines();
        // Whoever was silent for too long already has been listened to once more.
        if (!m_end && !m_deadline && m_silence.too_long(before)) {
            end_host();
            m_end = silent_for_too_long();
        }
    }
}

void s2sHostConversation::end_host()
{
    m_process.kill();
    m_killed = true;
}

void s2sHostConversation::take_waiting_lines()
{
    for (int i = 0; i < lines_at_once && !m_end; ++i) {
        auto const line = m_link.next_line();
        if (!line)
            break;
        take(*line);
    }
    m_silence.settle(Clock::now());
}

void s2sHostConversation::wait()
{
    auto longest = patience();
    if (auto const soon = m_side_work.attend(m_link, !m_link.closed()))
        longest = longest ? std::min(*longest, *soon) : *soon;
    if (m_link.has_line())
        longest = milliseconds(0);
    auto links = m_side_work.links();
    links.push_back(&m_link);
    s2s_wait_for(links, m_wake, longest);
}

void s2sHostConversation::pass_on_termination()
{
    if (m_deadline || !m_parts.comm.termination_requested())
        return;
    m_deadline = Clock::now() + time_to_stop;
    m_wake = -1; // it has been seen and stays readable
    m_link.send(R"({"command":"cancel"})");
}

std::optional<milliseconds> s2sHostConversation::patience() const
{
    if (m_deadline)
        return std::chrono::ceil<milliseconds>(std::max(*m_deadline - Clock::now(), Clock::duration::zero()));
    auto const silence = m_silence.left(Clock::now());
    if (m_parts.comm.termination_descriptor() < 0)
        return silence ? std::min(*silence, look_again) : look_again;
    return silence;
}

void s2sHostConversation::take(std::string_view line)
{
    auto const event = s2s_parse_host_event(line);
    m_silence.hear(event, line);
    if (auto const message = std::get_if<s2sHostMessage>(&event)) {
        take_event(*message);
    } else if (auto const progress = std::get_if<s2sHostProgress>(&event)) {
        take_event(*progress);
    } else if (auto const file = std::get_if<s2sHostFile>(&event)) {
        take_event(*file);
    } else if (auto const finding = std::get_if<s2sHostFinding>(&event)) {
        take_event(*finding);
    } else if (auto const verdict = std::get_if<s2sHostVerdict>(&event)) {
        m_verification.verdict = verdict->verdict;
    } else if (auto const end = std::get_if<s2sHostEnd>(&event)) {
        m_end = *end;
    } else if (std::holds_alternative<std::monostate>(event) && !m_said_nonsense) {
        m_said_nonsense = true;
        m_parts.say_error(s2sMessages::host_not_understood(s2s_repair_utf8(line.substr(0, longest_quote))));
    }
}

void s2sHostConversation::take_event(s2sHostFile const & event)
{
    m_parts.comm.currentFile(event.direction == s2sReadWriteWriting ? m_output : event.path, event.direction);
}

void s2sHostConversation::take_event(s2sHostProgress const & event)
{
    m_parts.comm.set_progress(event.percent);
}

void s2sHostConversation::take_event(s2sHostMessage const & event)
{
    if (auto const stream = event.error ? m_parts.error_stream : m_parts.output_stream)
        stream->write(event.domain.c_str(), event.key.c_str(), event.arguments);
}

void s2sHostConversation::take_event(s2sHostFinding const & event)
{
    m_verification.findings.add(
        {event.weight, event.kind, event.part, event.place, event.source, event.output, text_of(event)});
}

utString s2sHostConversation::text_of(s2sHostFinding const & event) const
{
    // The texts of the host stand in the catalogues as its messages have them, with the end of their line.
    auto key = event.key;
    if (!key.view().ends_with('\n'))
        key += "\n";
    return m_parts.text(event.domain, key, event.arguments);
}

s2sHostEnd s2sHostConversation::silent_for_too_long()
{
    bool const writing = m_parts.comm.writing();
    m_parts.say_error(s2sMessages::host_silent(std::chrono::ceil<std::chrono::seconds>(*m_longest_silence),
                                               writing, m_parts.comm.currentFile().str()));
    return {writing ? s2sThreadWriteError : s2sThreadReadError};
}

s2sHostEnd s2sHostConversation::ended_without_word(s2sHostExit const & exit)
{
    if (m_deadline)
        return {s2sThreadCancelled};
    bool const writing = m_parts.comm.writing();
    auto const text_for = exit.is_signal(SIGKILL)   ? s2sMessages::host_killed
                          : exit.is_signal(SIGXCPU) ? s2sMessages::host_out_of_time
                                                    : s2sMessages::host_died;
    m_parts.say_error(text_for(exit.text(), writing, m_parts.comm.currentFile().str()));
    return {writing ? s2sThreadWriteError : s2sThreadReadError};
}
