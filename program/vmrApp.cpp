#include "vmrApp.h"

#include "idleWork.h"
#include "openedFile.h"
#include "process/memoryEnd.h"
#include "sglDetermineRunStyle.h"
#include "sglMessageBox.h"
#include "sglParseCommandLine.h"
#include "sglUsageDialogs.h"
#include "version.h"

#include <cstdlib>
#include <iostream>
#include <wx/log.h>

namespace {

/// A start without arguments asks the settings which window to open, so it needs a display in any case.
bool needs_display(std::string const & command_line)
{
    sduStartupInfo none;
    return command_line.empty() ||
           sglDetermineRunStyle().determine_run_style(command_line, none) != sglRunStyleCommandLine;
}

bool names_display(char const * variable)
{
    char const * const value = std::getenv(variable);
    return value && *value;
}

} // namespace

vmrApp::vmrApp(std::string command_line)
    : sglApp(VMR_BUILD_DATE, VMR_VERSION, VMR_BUILD_NUMBER, "Crosswalk", "Quorvane",
             "Quorvane, All rights reserved"),
      m_command_line(std::move(command_line))
{
    use_display(needs_display(m_command_line));
}

bool vmrApp::Initialize(int & count, wxChar ** arguments)
{
    // Where no display is named there is none to be tried, and nothing for the toolkit to complain about.
    bool const hopeless = has_display() && !names_display("DISPLAY") && !names_display("WAYLAND_DISPLAY");
    // What the toolkit has to say it would say in a window.
    wxLogNull const quiet;
    if (!hopeless && sglApp::Initialize(count, arguments))
        return true;
    std::cerr << application_name_no_version().view()
              << ": there is no display to open a window on. Translate from the command line:\n"
                 "    vmr -help\n";
    return false;
}

bool vmrApp::OnInit()
{
    pre_splash_screen_init();
    if (has_display())
        show_splash_screen();
    if (!sglApp::OnInit()) {
        sgl_show_error_text(
            application_name_no_version() +
            ": the files of the installation could not be found. Please install the program again.");
        return false;
    }
    paint_splash_screen();
    initialise_services();
    initialise_usage_data();
    return true;
}

void vmrApp::write_translator_cache() const
{
    // Without a place for the user's files every start scans; that is slower and not worth a complaint.
    if (translators_were_scanned() &&
        file_locator().schema_dir(sdbHRKDirectory::translator_cache).create_user_dir())
        make_translator_dll_cache_file();
}

int vmrApp::OnRun()
{
    sglDetermineRunStyle style;
    if (style.determine_run_style(m_command_line, startup_info()) == sglRunStyleCommandLine) {
        write_translator_cache();
        return run_command_line();
    }
    open_main_window();
    // Who comes with files wants them translated now.
    if (style.num_file_arguments() == 0)
        ask_about_usage_data_when_idle();
    vmr_add_idle_work([this] { write_translator_cache(); });
    Bind(wxEVT_IDLE, &vmrApp::do_idle_work, this);
    wxArrayString files;
    for (int i = 0; i < style.num_file_arguments(); ++i)
        files.push_back(vmr_opened_file(style.file_argument(i)));
    m_window->open_files(files);
    return sglApp::OnRun();
}

int vmrApp::run_command_line()
{
    sglParseCommandLine command_line(*application_information(), m_command_line.c_str());
    if (!command_line.parse())
        return vmrExitNotUnderstood;
    return command_line.translate() ? vmrExitOk : vmrExitNotRun;
}

void vmrApp::OnUnhandledException()
{
    end_if_memory_has_run_out();
    sglApp::OnUnhandledException();
}

int vmrApp::OnExit()
{
    m_help.reset();
    sgl_end_usage_dialogs();
    return sglApp::OnExit();
}
