#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <utility>

#include "s2s/s2sEngineParts.h"
#include "s2s/s2sHostAtWork.h"
#include "s2s/s2sHostEvent.h"
#include "s2s/s2sSideWork.h"
#include "s2s/s2sSilence.h"
#include "s2s/s2sVerification.h"

/// What passes between the engine and the host of the translation whose turn it is: gives what the host says
/// to the channel and to the streams, and carries a request to stop.
class s2sHostConversation {
public:
    /// `output` is what the user sees as the name of every file being written. The host has been started and
    /// may have said much already.
    s2sHostConversation(s2sEngineParts const & parts, utString const & output, s2sHostAtWork & host,
                        s2sSideWork & side_work);

    /// Returns when the host is gone. The status of what comes back is one of those with which a translation
    /// may end; messages about how the host came to its end have been said.
    s2sHostEnd hold();

    /// What the host said about source and output, after hold(). To be taken once.
    s2sVerification take_verification() { return std::move(m_verification); }

private:
    void listen();
    void wait();
    void pass_on_termination();
    void end_host();
    std::optional<std::chrono::milliseconds> patience() const;
    void take(std::string_view line);
    void take_waiting_lines();
    void take_event(s2sHostFile const & event);
    void take_event(s2sHostProgress const & event);
    void take_event(s2sHostMessage const & event);
    void take_event(s2sHostFinding const & event);
    utString text_of(s2sHostFinding const & event) const;
    s2sHostEnd silent_for_too_long();
    s2sHostEnd ended_without_word(s2sHostExit const & exit);

    using Clock = std::chrono::steady_clock;

    s2sEngineParts const & m_parts;
    utString m_output;
    s2sHostProcess & m_process;
    s2sHostLink & m_link;
    s2sSideWork & m_side_work;
    std::optional<std::chrono::milliseconds> m_longest_silence;
    s2sSilence m_silence;
    int m_wake; // descriptor that tells of a request to stop; -1 for none
    std::optional<s2sHostEnd> m_end;
    s2sVerification m_verification;
    std::optional<Clock::time_point> m_deadline; // for a host that has been asked to stop
    bool m_killed = false;
    bool m_said_nonsense = false;
};
