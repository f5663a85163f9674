#pragma once

#include "kit/kitApp.h"

#include <memory>
#include <wx/evtloop.h>

/// The application object of a benchmark, started on the build tree as its installation, with an empty folder
/// for the user's files, a display and an active event loop. Main thread only; the toolkit keeps the
/// application.
class benchApp {
public:
    enum class Stage {
        before_splash_screen, ///< the toolkit and what the picture at the start needs
        initialised           ///< also all that comes before the main window
    };
    /// Throws std::runtime_error when the toolkit or the application does not start.
    explicit benchApp(char ** arguments, Stage stage = Stage::initialised);
    ~benchApp();
    benchApp(benchApp const &) = delete;
    benchApp & operator=(benchApp const &) = delete;

private:
    kitTempFolder m_folder;
    std::unique_ptr<wxEventLoop> m_loop;
    std::unique_ptr<wxEventLoopActivator> m_active;
};
