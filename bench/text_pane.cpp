// How late the window's own events come while a worker writes into a text pane as fast as it can.
//
//   text_pane [messages] [characters per message]
//
// Prints how long until all text is in the pane, and the longest gap between two ticks of a timer of one
// millisecond, which stands for the user's events.

#include "kit/benchTicker.h"
#include "sglCEditDisplayer.h"
#include "sglEdit.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <wx/app.h>
#include <wx/frame.h>

namespace {

class Bench : public wxApp {
    bool OnInit() override
    {
        m_messages = argc > 1 ? std::atol(argv[1].utf8_str()) : 100000;
        m_length = argc > 2 ? std::atol(argv[2].utf8_str()) : 60;
        auto * const frame = new wxFrame(nullptr, wxID_ANY, "text pane", wxDefaultPosition, wxSize(700, 500));
        m_edit = new sglEdit(frame, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                             wxTE_MULTILINE | wxTE_READONLY);
        frame->Show();
        CallAfter([this] {
            m_begin = benchClock::now();
            m_tick.begin();
            m_worker = std::thread([this] {
                sglCEditDisplayer displayer(*m_edit);
                std::string const text(static_cast<std::size_t>(m_length), 'x');
                for (long message = 0; message < m_messages; ++message)
                    displayer.display((text + "\n").c_str());
                m_written = benchClock::now();
            });
        });
        return true;
    }

    void look_whether_all_is_shown(benchClock::time_point now)
    {
        if (m_edit->GetLastPosition() < m_messages * (m_length + 1))
            return;
        m_tick.Stop();
        m_worker.join();
        std::printf(
            "%ld messages of %ld characters: written after %.0f ms, shown after %.0f ms, latest event "
            "%.0f ms late\n",
            m_messages, m_length, bench_milliseconds(m_written - m_begin), bench_milliseconds(now - m_begin),
            bench_milliseconds(m_tick.longest()));
        ExitMainLoop();
    }

    long m_messages = 0;
    long m_length = 0;
    sglEdit * m_edit = nullptr;
    benchTicker m_tick{[this](benchClock::time_point now) { look_whether_all_is_shown(now); }};
    std::thread m_worker;
    benchClock::time_point m_begin, m_written;
};

} // namespace

wxIMPLEMENT_APP(Bench);
