#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "s2s/s2sHostEvent.h"

/// How long a host has said nothing new. A percentage that does not rise, a line that repeats the last one
/// and what is not understood are nothing new: a library that runs in circles may go on saying that for ever.
/// Times are given by the caller.
class s2sSilence {
public:
    using Clock = std::chrono::steady_clock;

    /// Without `patience` it may last for ever.
    s2sSilence(std::optional<std::chrono::milliseconds> patience, Clock::time_point now)
        : m_patience(patience), m_since(now)
    {
    }

    void hear(s2sHostEvent const & event, std::string_view line);
    /// To be called when everything that has come has been heard: whoever passes it on may take a while, and
    /// the silence begins after that.
    void settle(Clock::time_point now);

    /// How long it may still last; no value for ever.
    std::optional<std::chrono::milliseconds> left(Clock::time_point now) const;
    bool too_long(Clock::time_point now) const;

private:
    std::optional<std::chrono::milliseconds> m_patience;
    Clock::time_point m_since;
    std::string m_last;
    int m_percent = -1;
    bool m_news = false;
};
