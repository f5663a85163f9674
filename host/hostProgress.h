#pragma once

#include "host/hostEvents.h"

#include <Message_ProgressIndicator.hxx>

#include <atomic>
#include <chrono>

// Turns the position of a translation into events, at most twenty a second however often it is asked, and
// passes a cancel on to the algorithms.
class hostProgress : public Message_ProgressIndicator {
public:
    hostProgress(hostEvents & events, std::atomic<bool> const & cancelled)
        : m_events(events), m_cancelled(cancelled)
    {
    }

protected:
    Standard_Boolean UserBreak() override { return m_cancelled; }
    void Show(Message_ProgressScope const & scope, Standard_Boolean force) override;

private:
    hostEvents & m_events;
    std::atomic<bool> const & m_cancelled;
    int m_percent = -1;
    std::chrono::steady_clock::time_point m_shown{};
};
