// The picture at the start: from before the files of the installation are read until the main window is
// there.

#include "vmrApp.h"

#include "sglReleaseStatus.h"
#include "sglSplashScreen.h"

#include <wx/evtloop.h>
#include <wx/stopwatch.h>
#include <wx/utils.h>
#include <wx/window.h>

namespace {

/// How long a start waits for the picture to be painted.
constexpr long longest_wait_in_milliseconds = 20;

bool is_painted_inside(wxEvent const & event, wxWindow const * window)
{
    auto * const painted =
        event.GetEventType() == wxEVT_PAINT ? dynamic_cast<wxWindow *>(event.GetEventObject()) : nullptr;
    return painted && wxGetTopLevelParent(painted) == window;
}

} // namespace

void vmrApp::show_splash_screen()
{
    sglSplashScreen::EnableSplashScreen(sglReleaseStatus::splash_string(), 1, "splash.png");
    // Without its picture it would be an empty window.
    if (!sglSplashScreen::has_picture())
        return;
    m_splash_end.Register();
    sglSplashScreen::ShowSplashScreen(nullptr);
    wxStopWatch const watch;
    do
        paint_splash_screen();
    while (!m_splash_painted && watch.Time() < longest_wait_in_milliseconds);
}

void vmrApp::paint_splash_screen()
{
    auto * const splash = sglSplashScreen::splash_screen();
    if (!splash || m_splash_painted)
        return;
    // The display needs a moment to give the window a place, and until the start is over no event would come
    // that says so. Keys wait for the main window.
    wxMilliSleep(1);
    wxGUIEventLoop loop;
    wxEventLoopActivator const active(&loop);
    loop.YieldFor(wxEVT_CATEGORY_UI);
    if (m_splash_painted)
        splash->Update();
}

int vmrApp::FilterEvent(wxEvent & event)
{
    auto * const splash = sglSplashScreen::splash_screen();
    if (!splash)
        return sglApp::FilterEvent(event);
    if (sglSplashScreen::PreTranslateAppMessage(event))
        return Event_Processed;
    if (is_painted_inside(event, splash))
        m_splash_painted = true;
    if (m_window && is_painted_inside(event, m_window))
        CallAfter([] { sglSplashScreen::destroy_splash_screen(); });
    return sglApp::FilterEvent(event);
}

int vmrSplashEnd::Enter(wxDialog *)
{
    sglSplashScreen::destroy_splash_screen();
    return wxID_NONE;
}
