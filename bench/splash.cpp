// What the picture at the start costs a start: to load it, write on it, show it and wait until it is painted.
// What any first window costs is paid before.

#include "kit/benchApp.h"
#include "kit/benchTimes.h"
#include "sglSplashScreen.h"

#include <cstdio>
#include <wx/utils.h>

namespace {

constexpr int rounds = 11;

double shown_in_milliseconds()
{
    return bench_milliseconds([] {
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
    });
}

void take_away()
{
    sglSplashScreen::destroy_splash_screen();
    while (sglSplashScreen::splash_screen())
        wxTheApp->ProcessIdle();
}

} // namespace

int main(int, char ** argv)
{
    benchApp const app(argv, benchApp::Stage::before_splash_screen);
    auto * const any_window = new wxFrame(nullptr, wxID_ANY, "bench");
    any_window->GetTextExtent("bench");
    any_window->Show();
    wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_UI);
    sglSplashScreen::EnableSplashScreen("Beta Release", 1, "splash.png");
    double const first = shown_in_milliseconds();
    take_away();
    std::vector<double> later;
    for (int round = 0; round < rounds; ++round) {
        later.push_back(shown_in_milliseconds());
        take_away();
    }
    any_window->Destroy();
    std::printf("the picture at the start %.1f ms; when shown again %.1f ms\n", first, bench_median(later));
    return 0;
}
