#pragma once

#include "sglApp.h"

#include <string>

/// What the process tells its caller.
enum vmrExitStatus {
    vmrExitOk = 0,           ///< the command line was understood and the translation was run
    vmrExitNotRun = 1,       ///< it was understood and could not be run
    vmrExitNotUnderstood = 2 ///< it was not understood
};

/// The translator program: starts the library and does what its command line asks for.
class vmrApp : public sglApp {
public:
    explicit vmrApp(std::string command_line);

    void OnHelp(wxCommandEvent & event) override;
    void OnAbout(wxCommandEvent & event) override;
    wxIcon main_icon() override;
    wxWindow * main_window() override { return nullptr; }

protected:
    bool OnInit() override;
    int OnRun() override;
    void end_main_window(int code) override;

private:
    void write_translator_cache() const;
    int run_command_line();

    std::string m_command_line;
};
