#pragma once

#include "sglApp.h"
#include "sglHelpDisplayer.h"
#include "sglTabDlg.h"

#include <memory>
#include <string>
#include <wx/event.h>
#include <wx/iconbndl.h>
#include <wx/modalhook.h>

/// What the process tells its caller.
enum vmrExitStatus {
    vmrExitOk = 0,           ///< the command line was understood and the translation was run
    vmrExitNotRun = 1,       ///< it was understood and could not be run
    vmrExitNotUnderstood = 2 ///< it was not understood
};

/// Takes the splash screen away when the user is asked something, which it would hide.
class vmrSplashEnd : public wxModalDialogHook {
protected:
    int Enter(wxDialog * dialog) override;
};

/// The translator program: starts the library and does what its command line asks for, in a window or without
/// one.
class vmrApp : public sglApp {
public:
    explicit vmrApp(std::string command_line);

    void OnHelp(wxCommandEvent & event) override;
    void OnAbout(wxCommandEvent & event) override;
    wxIcon main_icon() override;
    wxWindow * main_window() override { return m_window; }
    /// Another view opens the window anew, everything else ends the program.
    void end_main_window(int code) override;
    int FilterEvent(wxEvent & event) override;

protected:
    bool Initialize(int & count, wxChar ** arguments) override;
    bool OnInit() override;
    int OnRun() override;
    int OnExit() override;
    void OnUnhandledException() override;

private:
    void show_splash_screen();
    void paint_splash_screen();
    void write_translator_cache() const;
    int run_command_line();
    void open_main_window();
    void complete_menu(wxMenuBar & bar);
    void do_idle_work(wxIdleEvent & event);
    void initialise_usage_data();
    void ask_about_usage_data_when_idle();
    void remember_to_ask_about_usage_data();
    void add_usage_menu(wxMenuBar & bar);
    wxIconBundle const & icons();

    std::string m_command_line;
    sglWxMessageDisplayer m_displayer;
    sglTabDlg * m_window = nullptr; // belongs to the toolkit
    wxIconBundle m_icons;
    std::unique_ptr<sglHelpDisplayer> m_help;
    vmrSplashEnd m_splash_end;
    bool m_splash_painted = false;
};
