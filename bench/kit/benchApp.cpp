#include "kit/benchApp.h"

#include <stdexcept>
#include <wx/init.h>

benchApp::benchApp(char ** arguments, Stage stage)
{
    auto * const app = new kitApp(VMR_BUILD_TREE, m_folder / "user");
    app->use_display(true);
    app->SetExitOnFrameDelete(false);
    wxApp::SetInstance(app);
    int only_the_name = 1;
    if (!wxEntryStart(only_the_name, arguments))
        throw std::runtime_error("the toolkit does not start");
    app->pre_splash_screen_init();
    if (stage == Stage::initialised && !app->run_on_init())
        throw std::runtime_error("the application does not start on " VMR_BUILD_TREE);
    m_loop = std::make_unique<wxEventLoop>();
    m_active = std::make_unique<wxEventLoopActivator>(m_loop.get());
}

benchApp::~benchApp() = default;
