#include "s2s/s2sHostLink.h"

#include <algorithm>
#include <cerrno>
#include <vector>

#include <poll.h>
#include <sys/socket.h>

namespace {

// Small enough that a request to stop is seen soon also when each line takes a while to display.
constexpr std::size_t read_size = 64 * 1024;
constexpr std::size_t longest_line = 64 * 1024 * 1024;

bool try_later(int error)
{
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

} // namespace

void s2sHostLink::send(std::string_view line)
{
    m_out.append(line);
    m_out.push_back('\n');
}

short s2sHostLink::wanted() const
{
    if (m_closed)
        return 0;
    return static_cast<short>((has_room() ? POLLIN : 0) | (m_out.empty() ? 0 : POLLOUT));
}

void s2sHostLink::take_part(short events)
{
    if (!m_out.empty() && (events & (POLLOUT | POLLHUP | POLLERR)))
        write_queue();
    if (has_room() && (events & (POLLIN | POLLHUP | POLLERR | POLLNVAL)))
        read_some();
}

std::optional<std::string_view> s2sHostLink::next_line()
{
    auto const end = m_in.find('\n', m_scanned);
    if (end == std::string::npos) {
        m_scanned = m_in.size();
        return std::nullopt;
    }
    auto const line = std::string_view(m_in).substr(m_line, end - m_line);
    m_line = m_scanned = end + 1;
    return line;
}

bool s2sHostLink::has_line() const
{
    return m_in.find('\n', m_scanned) != std::string::npos;
}

std::string_view s2sHostLink::last_line() const
{
    auto const end = m_in.rfind('\n');
    if (end == std::string::npos)
        return {};
    auto const before = end > 0 ? m_in.rfind('\n', end - 1) : std::string::npos;
    auto const begin = before == std::string::npos ? 0 : before + 1;
    return std::string_view(m_in).substr(begin, end - begin);
}

void s2sHostLink::write_queue()
{
    auto const sent = ::send(m_socket, m_out.data(), m_out.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent > 0)
        m_out.erase(0, static_cast<std::size_t>(sent));
    else if (sent < 0 && !try_later(errno)) {
        // The other side is gone, or will never hear what it waits for and has to be told that nothing comes
        // any more. What it said before is still to be read.
        m_out.clear();
        ::shutdown(m_socket, SHUT_WR);
    }
}

void s2sHostLink::read_some()
{
    m_in.erase(0, m_line);
    m_scanned -= m_line;
    m_line = 0;
    auto const kept = m_in.size();
    m_in.resize(kept + read_size);
    auto const got = recv(m_socket, m_in.data() + kept, read_size, MSG_DONTWAIT);
    m_in.resize(kept + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    m_closed = got == 0 || (got < 0 && !try_later(errno)) || m_in.size() > longest_line;
}

void s2s_wait_for(std::span<s2sHostLink * const> links, int wake,
                  std::optional<std::chrono::milliseconds> timeout)
{
    std::vector<pollfd> polled;
    // A link that wants nothing is left out altogether: poll would not stop telling that it is closed.
    for (auto const link : links)
        polled.push_back({link->wanted() != 0 ? link->descriptor() : -1, link->wanted(), 0});
    polled.push_back({wake, POLLIN, 0});
    int const patience =
        timeout ? static_cast<int>(std::clamp<std::chrono::milliseconds::rep>(timeout->count(), 0, 60000))
                : -1;
    if (poll(polled.data(), polled.size(), patience) <= 0)
        return;
    for (std::size_t i = 0; i < links.size(); ++i)
        if (polled[i].revents != 0)
            links[i]->take_part(polled[i].revents);
}
