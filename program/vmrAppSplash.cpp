// The picture at the start: from before the files of the installation are read until the main window is
// there.

#include "vmrApp.h"

#include "sdb/sdbSchemaDir.h"
#include "sglReleaseStatus.h"
#include "sglSplashScreen.h"

#include <wx/evtloop.h>
#include <wx/stopwatch.h>
#include <wx/utils.h>
#include <wx/window.h>

namespace {

/// What the picture may cost a start, in milliseconds.
constexpr long longest_showing = 25;

bool is_painted_inside(wxEvent const & event, wxWindow const * window)
{
    auto * const painted =
        event.GetEventType() == wxEVT_PAINT ? dynamic_cast<wxWindow *>(event.GetEventObject()) : nullptr;
    return painted && wxGetTopLevelParent(painted) == window;
}

} // namespace

void vmrApp::show_splash_screen()
{
    wxStopWatch const watch;
    utString const picture = "splash.png";
    // Without its picture it would be an empty window.
    if (file_locator().schema_dir(sdbHRKDirectory::xrc).find_file(picture).invalid())
        return;
    m_splash_end.Register();
    sglSplashScreen::EnableSplashScreen(sglReleaseStatus::splash_string(), 1, picture);
    sglSplashScreen::ShowSplashScreen(nullptr);
    // The display needs a moment to give the window a place, and until the start is over nobody would paint
    // it. What the user does meanwhile waits for the main window.
    wxGUIEventLoop loop;
    wxEventLoopActivator const active(&loop);
    while (!m_splash_painted && watch.Time() < longest_showing) {
        loop.YieldFor(wxEVT_CATEGORY_UI);
        wxMilliSleep(1);
    }
    if (auto * const window = sglSplashScreen::splash_screen())
        window->Update();
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
