#include "s2s/s2sHostLink.h"

#include <algorithm>
#include <cerrno>

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

s2sHostLink::s2sHostLink(int socket, int wake) : m_socket(socket), m_wake(wake) {}

void s2sHostLink::send(std::string_view line)
{
    m_out.append(line);
    m_out.push_back('\n');
}

void s2sHostLink::wait(std::optional<std::chrono::milliseconds> timeout)
{
    short const wanted = static_cast<short>(m_out.empty() ? POLLIN : POLLIN | POLLOUT);
    pollfd polled[] = {{m_socket, wanted, 0}, {m_wake, POLLIN, 0}};
    int const patience =
        timeout ? static_cast<int>(std::clamp<std::chrono::milliseconds::rep>(timeout->count(), 0, 60000))
                : -1;
    if (poll(polled, 2, patience) <= 0)
        return;
    if (polled[0].revents & POLLOUT)
        write_queue();
    if (polled[0].revents & (POLLIN | POLLHUP | POLLERR | POLLNVAL))
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

void s2sHostLink::write_queue()
{
    auto const sent = ::send(m_socket, m_out.data(), m_out.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent > 0)
        m_out.erase(0, static_cast<std::size_t>(sent));
    else if (sent < 0 && !try_later(errno))
        m_out.clear(); // the other side is gone; what it said before is still to be read
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
