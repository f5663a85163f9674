#pragma once

#include "sdk/measure/sdkModelComparison.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkReporter.h"
#include "sdk/sdkResult.h"

#include <array>
#include <atomic>
#include <chrono>
#include <mutex>
#include <string>
#include <string_view>
#include <unistd.h>

// Sends the lines that the engine reads. They go out at once, for a process may be killed without a warning;
// only where very many come in a short time do they gather, until 50 ms have passed since the last flush or
// 64 KiB are there. Every operation may be called from any thread. A reader of the other end that is gone is
// not noticed here.
class hostEvents {
public:
    explicit hostEvents(int descriptor) : m_descriptor(descriptor) {}
    hostEvents(hostEvents const &) = delete;
    hostEvents & operator=(hostEvents const &) = delete;

    void file(std::string const & path, char const * direction);
    // Numbers that do not rise are left out.
    void progress(int percent);
    void message(sdkStream stream, sdkText const & text);
    void finding(sdkFinding const & finding);
    // "verified", "differs", "losses" or "not_verified".
    void verdict(char const * verdict);
    // For comparisons: what the file A or B holds, with its box, which may be void; and two bodies that stand
    // for each other, or one alone.
    void inventory(char side, sdkInventory const & inventory, Bnd_Box const & extent);
    void pair(sdkComparedBody const & pair);
    // The one that file() has named last; empty before.
    std::string current_file();
    // Where the lines go.
    int descriptor() const { return m_descriptor; }

    // Sends what has waited for long enough.
    void flush_if_due();

    // Sends what waits before a crash ends the process; no other line follows. A handler of signals may call
    // it. In a process that was forked off this one it does nothing.
    void send_last_words() noexcept;

    // How long the last line that said something new is ago.
    std::chrono::steady_clock::duration silent_for();

    // The last line; sends all. Only the first call sends anything, and no other line follows it.
    void end(sdkStatus status, std::int64_t processed, std::int64_t failed);

private:
    void add(std::string_view line);
    void flush();
    void send(std::string_view text) const noexcept;

    std::mutex m_mutex;
    int const m_descriptor;
    pid_t const m_process = ::getpid();
    // What waits lies in a place of its own, so that it can be found whatever state the process is in.
    std::array<char, 64 * 1024> m_pending;
    std::atomic<std::size_t> m_size = 0;
    std::chrono::steady_clock::time_point m_flushed{};
    std::chrono::steady_clock::time_point m_added = std::chrono::steady_clock::now();
    int m_at_once = 0; // lines since the time of the last interval that went out at once
    std::chrono::steady_clock::time_point m_interval{};
    std::string m_file;
    std::atomic<int> m_percent = -1;
    bool m_ended = false;
};
