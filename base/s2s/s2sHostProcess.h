#pragma once

#include <chrono>
#include <string>
#include <vector>

#include <sys/types.h>

/// How a process of the translator host came to its end.
struct s2sHostExit {
    enum class Kind { status, signal, unknown };
    Kind kind = Kind::unknown;
    int number = 0; ///< exit status or signal

    std::string text() const; ///< "SIGSEGV", "exit status 3"
    bool is_signal(int one) const { return kind == Kind::signal && number == one; }
};

/// One running translator host and this side of the socket pair that joins us to it. The host runs in a
/// session of its own, with default signals and without any other descriptor of ours, so that an interrupt
/// typed at a terminal reaches it only through the socket. The destructor kills and reaps what still runs.
class s2sHostProcess {
public:
    s2sHostProcess() = default;
    ~s2sHostProcess();
    s2sHostProcess(s2sHostProcess const &) = delete;
    s2sHostProcess & operator=(s2sHostProcess const &) = delete;

    /// Starts the program. The host removes the `folders` when we are gone; it hears of them here already and
    /// not only with its job, because we may be gone before the job is sent. Returns 0 or the number of the
    /// system's error.
    int start(std::string const & program, std::vector<std::string> const & folders = {});

    int descriptor() const
    {
        return m_descriptor;
    }            ///< non-blocking socket; -1 before start and after the end
    void kill(); ///< at once, with everything that the host has started

    /// Waits until the host has ended, and kills it when that takes longer than `patience`. What the host has
    /// started ends with it.
    s2sHostExit wait(std::chrono::milliseconds patience);
    /// Whether the host is gone, without waiting; the descriptor then is as well.
    bool ended();

private:
    bool reap(int options);
    void close_descriptor();

    pid_t m_pid = -1;
    int m_descriptor = -1;
    s2sHostExit m_exit;
};
