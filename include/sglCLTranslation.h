#pragma once

#include <atomic>

#include <wx/thread.h>

#include "sglTranslation.h"

class sglCLTranslation;

/// Plays the part of the timer in a run without an event loop: ticks its translation every 100 milliseconds.
class sglCLThread : public wxThread {
public:
    explicit sglCLThread(sglCLTranslation * translation);

    void stop_thread() { m_running = 0; } ///< the loop ends after the present tick

protected:
    ExitCode Entry() override;

private:
    std::atomic<int> m_running = 0;
    sglCLTranslation * m_translation;
};

/// A request that runs on the calling thread, with no event loop and no window.
class sglCLTranslation : public sglTranslation {
public:
    void tick_from_poller(); ///< delivers a timer event; on the polling thread

protected:
    /// Returns 9 when nothing was translated, else the toolkit's identifier of a good or a cancelled end.
    int start_translation() override;
    void thread_has_died() override;

private:
    sglCLThread * m_poller = nullptr;
};
