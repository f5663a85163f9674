#include "vmrApp.h"

#include "sglDetermineRunStyle.h"
#include "sglParseCommandLine.h"
#include "version.h"

#include <iostream>
#include <wx/event.h>

vmrApp::vmrApp(std::string command_line)
    : sglApp(VMR_BUILD_DATE, VMR_VERSION, VMR_BUILD_NUMBER, "Crosswalk", "Quorvane",
             "Quorvane, All rights reserved"),
      m_command_line(std::move(command_line))
{
    use_display(false);
}

void vmrApp::OnHelp(wxCommandEvent & event)
{
    event.Skip();
}

void vmrApp::OnAbout(wxCommandEvent & event)
{
    event.Skip();
}

wxIcon vmrApp::main_icon()
{
    return wxNullIcon;
}

void vmrApp::end_main_window(int)
{
    ExitMainLoop();
}

bool vmrApp::OnInit()
{
    pre_splash_screen_init();
    if (!sglApp::OnInit()) {
        std::cerr
            << application_name_no_version().view()
            << ": the files of the installation could not be found. Please install the program again.\n";
        return false;
    }
    initialise_services();
    write_translator_cache();
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
    switch (style.determine_run_style(m_command_line, startup_info())) {
    case sglRunStyleCommandLine:
        return run_command_line();
    default:
        std::cerr << application_name_no_version().view()
                  << ": the window is not part of this version yet. Translate from the command line:\n"
                     "    vmr -help\n";
        return vmrExitNotRun;
    }
}

int vmrApp::run_command_line()
{
    sglParseCommandLine command_line(*application_information(), m_command_line.c_str());
    if (!command_line.parse())
        return vmrExitNotUnderstood;
    return command_line.translate() ? vmrExitOk : vmrExitNotRun;
}
