#pragma once

#include "sdk/measure/sdkModelComparison.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkReporter.h"
#include "sdk/sdkResult.h"

#include <chrono>
#include <mutex>
#include <string>

// Sends the lines that the engine reads. Lines gather until 50 ms have passed since the last flush or 64 KiB
// are there. Every operation may be called from any thread. A reader of the other end that is gone is not
// noticed here.
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
    // Where the lines go.
    int descriptor() const { return m_descriptor; }

    // Sends what has waited for long enough.
    void flush_if_due();

    // The last line; sends all. Only the first call sends anything, and no other line follows it.
    void end(sdkStatus status, std::int64_t processed, std::int64_t failed);

private:
    void add(std::string const & line);
    void flush();

    std::mutex m_mutex;
    int const m_descriptor;
    std::string m_pending;
    std::chrono::steady_clock::time_point m_flushed{};
    int m_percent = -1;
    bool m_ended = false;
};
