#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

/// Lines over a socket that neither blocks nor raises a signal: what is sent waits in a queue until the other
/// side takes it, and what comes in is cut at the line ends. Neither descriptor is owned.
class s2sHostLink {
public:
    /// A wait ends also when `wake` becomes readable; -1 for none.
    s2sHostLink(int socket, int wake);

    void send(std::string_view line); ///< queues the line with its end

    /// Sends and receives what it can, after waiting for something to happen, for ever without a `timeout`.
    void wait(std::optional<std::chrono::milliseconds> timeout);
    void ignore_wake() { m_wake = -1; } ///< for a wake-up that has been seen and stays readable

    /// The next complete line, valid until the next wait; none when there is no complete one at present.
    std::optional<std::string_view> next_line();

    /// The other side has closed, or has sent a line beyond every measure. A last line without an end is
    /// lost.
    bool closed() const { return m_closed; }

private:
    void write_queue();
    void read_some();

    int m_socket;
    int m_wake;
    std::string m_out;
    std::string m_in;
    std::size_t m_line = 0;    // where in m_in the next line begins
    std::size_t m_scanned = 0; // no line end stands before here and after m_line
    bool m_closed = false;
};
