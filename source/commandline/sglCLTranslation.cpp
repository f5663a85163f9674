#include "sglCLTranslation.h"

#include "sglNlsHelp.h"

#include <memory>
#include <wx/defs.h>
#include <wx/utils.h>

namespace {

constexpr unsigned long tick_milliseconds = 100;
constexpr int nothing_translated = 9;

} // namespace

sglCLThread::sglCLThread(sglCLTranslation * translation)
    : wxThread(wxTHREAD_JOINABLE), m_translation(translation)
{
}

wxThread::ExitCode sglCLThread::Entry()
{
    m_running = 1;
    while (m_running) {
        wxMilliSleep(tick_milliseconds);
        m_translation->tick_from_poller();
    }
    return nullptr;
}

void sglCLTranslation::tick_from_poller()
{
    wxTimerEvent event(timer());
    ProcessEvent(event);
}

int sglCLTranslation::start_translation()
{
    auto const poller = std::make_unique<sglCLThread>(this);
    m_poller = poller.get();
    poller->Create(0);
    getNlsHelp()->set_translating(1);
    bool const polled = poller->Run() == wxTHREAD_NO_ERROR;
    int const result = wrapper()->run();
    if (polled)
        poller->Wait();
    else
        tick_from_poller(); // the system had no thread to give: the steps at the end are made all the same
    if (channel().current_translation_details().num_processed() == 0)
        return nothing_translated;
    return result != 0 ? wxID_OK : wxID_CANCEL;
}

void sglCLTranslation::thread_has_died()
{
    m_poller->stop_thread();
}
