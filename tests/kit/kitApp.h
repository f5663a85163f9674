#pragma once

#include "kit/kitTempFolder.h"
#include "sglApp.h"

#include <cstdlib>
#include <memory>
#include <sys/wait.h>

/// An application object for tests, on an installation of its own in a temporary folder, without a display.
/// Its stages are public, so that a test can stop between them.
class kitApp : public sglApp {
public:
    explicit kitApp(std::string installation, std::string user_folder)
        : sglApp("2026-01-31", "7.2", ".5", "Tester", "Testing Company", "All rights tested"),
          m_installation(std::move(installation)), m_user_folder(std::move(user_folder))
    {
        use_display(false);
    }

    void OnHelp(wxCommandEvent & event) override { event.Skip(); }
    void OnAbout(wxCommandEvent & event) override { event.Skip(); }
    wxIcon main_icon() override { return wxNullIcon; }
    wxWindow * main_window() override { return nullptr; }

    using sglApp::analytics_reporter;
    using sglApp::build_translator_dlls;
    using sglApp::display_dll_load_error;
    using sglApp::get_build_type;
    using sglApp::initialise_services;
    using sglApp::pre_splash_screen_init;
    using sglApp::product_info_org;
    using sglApp::set_product_info;
    using sglApp::translators_were_scanned;
    using sglApp::use_display;

    bool run_on_init() { return sglApp::OnInit(); }
    bool OnInit() override { return true; }
    int last_end_code() const { return m_end_code; }

protected:
    void end_main_window(int code) override { m_end_code = code; }

    void initialise_directory_mapper() override
    {
        const_cast<sdbAppDirMap &>(file_locator())
            .initialise("", utString(m_installation + "/bin"), apPathName(L"Tester"),
                        application_information(), apPathName::from_utf8(m_user_folder), apPathName(L"/tmp"));
    }

private:
    std::string m_installation;
    std::string m_user_folder;
    int m_end_code = 0;
};

/// Lays out the files without which no application object starts, below `installation`.
inline void kit_install_minimum(kitTempFolder const & folder, std::string const & installation)
{
    char const empty_xrc[] =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
        "<resource xmlns=\"http://www.wxwidgets.org/wxxrc\" version=\"2.5.3.0\"></resource>\n";
    folder.write(installation + "/share/vmr/xrc/vmrgrlib.xrc", empty_xrc);
    folder.write(installation + "/share/vmr/xrc/vmrshared.xrc", empty_xrc);
    std::filesystem::create_directories(folder / (installation + "/bin"));
    std::filesystem::create_directories(folder / (installation + "/lib/vmr/translators"));
}
