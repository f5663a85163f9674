// What the picture at the start costs a start: to load it, write on it, show it and wait until it is painted.
// What any first window costs is paid before.

#include "kit/kitApp.h"
#include "sglSplashScreen.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <wx/evtloop.h>
#include <wx/init.h>
#include <wx/utils.h>

namespace {

constexpr int rounds = 11;

double shown_in_milliseconds()
{
    auto const begin = std::chrono::steady_clock::now();
    sglSplashScreen::ShowSplashScreen(nullptr);
    bool painted = false;
    sglSplashScreen::splash_screen()->GetSplashWindow()->Bind(wxEVT_PAINT, [&](wxPaintEvent & event) {
        painted = true;
        event.Skip();
    });
    while (!painted) {
        wxMilliSleep(1);
        wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_UI);
    }
    sglSplashScreen::splash_screen()->Update();
    auto const end = std::chrono::steady_clock::now();
    return std::chrono::duration<double, std::milli>(end - begin).count();
}

void take_away()
{
    sglSplashScreen::destroy_splash_screen();
    while (sglSplashScreen::splash_screen())
        wxTheApp->ProcessIdle();
}

} // namespace

int main(int argc, char ** argv)
{
    kitTempFolder const folder;
    auto * const app = new kitApp(VMR_BUILD_TREE, folder / "user");
    app->use_display(true);
    app->SetExitOnFrameDelete(false);
    wxApp::SetInstance(app);
    if (!wxEntryStart(argc, argv))
        return 1;
    app->pre_splash_screen_init();
    wxEventLoop loop;
    wxEventLoopActivator const active(&loop);
    auto * const any_window = new wxFrame(nullptr, wxID_ANY, "bench");
    any_window->GetTextExtent("bench");
    any_window->Show();
    loop.YieldFor(wxEVT_CATEGORY_UI);
    sglSplashScreen::EnableSplashScreen("Beta Release", 1, "splash.png");
    double const first = shown_in_milliseconds();
    take_away();
    std::vector<double> later;
    for (int round = 0; round < rounds; ++round) {
        later.push_back(shown_in_milliseconds());
        take_away();
    }
    std::sort(later.begin(), later.end());
    any_window->Destroy();
    std::printf("the picture at the start %.1f ms; when shown again %.1f ms\n", first, later[rounds / 2]);
    return 0;
}
