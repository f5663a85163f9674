#pragma once

#include <chrono>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Lines over a socket that neither blocks nor raises a signal: what is sent waits in a queue until the other
/// side takes it, and what comes in is cut at the line ends. The descriptor is not owned.
class s2sHostLink {
public:
    explicit s2sHostLink(int socket) : m_socket(socket) {}

    void send(std::string_view line); ///< queues the line with its end

    /// The next complete line, valid until the next wait; none when there is no complete one at present.
    std::optional<std::string_view> next_line();
    bool has_line() const;
    /// The last complete line that has come, whether read already or not; empty when there is none.
    std::string_view last_line() const;

    /// Takes no more from the other side, which then waits, while so many bytes lie here unread.
    void set_room(std::size_t bytes) { m_room = bytes; }
    std::size_t unread() const { return m_in.size() - m_line; }

    /// The other side has closed, or has sent a line beyond every measure; what it said before can still be
    /// read. A last line without an end is lost.
    bool closed() const { return m_closed; }

    int descriptor() const { return m_socket; }
    short wanted() const;         ///< what to poll for; 0 when there is nothing that could happen
    void take_part(short events); ///< sends and receives what poll() says is possible

private:
    void write_queue();
    void read_some();
    bool has_room() const { return unread() < m_room; }

    int m_socket;
    std::string m_out;
    std::string m_in;
    std::size_t m_line = 0;    // where in m_in the next line begins
    std::size_t m_scanned = 0; // no line end stands before here and after m_line
    std::size_t m_room = std::numeric_limits<std::size_t>::max();
    bool m_closed = false;
};

/// Sends and receives on all the links what is possible, after waiting for something to happen, for ever
/// without a `timeout`. The wait ends also when `wake` becomes readable; -1 for none.
void s2s_wait_for(std::span<s2sHostLink * const> links, int wake,
                  std::optional<std::chrono::milliseconds> timeout);
