#pragma once

#include "kit/kitTempFolder.h"
#include "sglApp.h"

#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <utility>
#include <vector>

/// An application object for tests, on an installation of its own in a temporary folder, without a display.
/// Its stages are public, so that a test can stop between them.
class kitApp : public sglApp {
public:
    explicit kitApp(std::string installation, std::string user_folder, utString const & name = "Tester")
        : sglApp("2026-01-31", "7.2", ".5", name, "Testing Company", "All rights tested"),
          m_installation(std::move(installation)), m_user_folder(std::move(user_folder))
    {
        use_display(false);
    }

    void OnHelp(wxCommandEvent & event) override
    {
        m_commands.push_back("help");
        event.Skip();
    }
    void OnAbout(wxCommandEvent & event) override
    {
        m_commands.push_back("about");
        event.Skip();
    }
    void OnColourScheme() const override { m_commands.push_back("colours"); }
    wxIcon main_icon() override { return m_icon; }
    wxWindow * main_window() override { return m_main_window; }

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
    void end_main_window(int code) override
    {
        m_end_code = code;
        if (m_at_end)
            m_at_end();
    }

    /// Looks for the files of the installation elsewhere from now on; gives where they were.
    std::string move_installation(std::string installation)
    {
        auto old = std::exchange(m_installation, std::move(installation));
        initialise_directory_mapper();
        return old;
    }
    void set_main_window(wxWindow * window) { m_main_window = window; }
    void set_main_icon(wxIcon const & icon) { m_icon = icon; }
    void at_end_of_main_window(std::function<void()> action) { m_at_end = std::move(action); }
    /// The commands of the main window that reached this, since the last call.
    std::vector<std::string> take_commands() { return std::exchange(m_commands, {}); }

protected:
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
    std::function<void()> m_at_end;
    wxWindow * m_main_window = nullptr;
    wxIcon m_icon;
    mutable std::vector<std::string> m_commands;
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
