// The picture at the start: from before the files of the installation are read until the main window is
// there.

#include "vmrApp.h"

#include "sdb/sdbSchemaDir.h"
#include "sglReleaseStatus.h"
#include "sglSplashScreen.h"

#include <wx/window.h>

void vmrApp::show_splash_screen()
{
    utString const picture = "splash.png";
    // Without its picture it would be an empty window.
    if (file_locator().schema_dir(sdbHRKDirectory::xrc).find_file(picture).invalid())
        return;
    sglSplashScreen::EnableSplashScreen(sglReleaseStatus::splash_string(), 1, picture);
    sglSplashScreen::ShowSplashScreen(nullptr);
    m_splash_end.Register();
    // No event is handled until the start is over, so it is painted now.
    if (auto * const window = sglSplashScreen::splash_screen())
        window->Update();
}

int vmrApp::FilterEvent(wxEvent & event)
{
    if (sglSplashScreen::PreTranslateAppMessage(event))
        return Event_Processed;
    if (m_window && event.GetEventType() == wxEVT_PAINT && sglSplashScreen::splash_screen()) {
        auto * const painted = dynamic_cast<wxWindow *>(event.GetEventObject());
        if (painted && wxGetTopLevelParent(painted) == m_window)
            CallAfter([] { sglSplashScreen::destroy_splash_screen(); });
    }
    return sglApp::FilterEvent(event);
}

int vmrSplashEnd::Enter(wxDialog *)
{
    sglSplashScreen::destroy_splash_screen();
    return wxID_NONE;
}
