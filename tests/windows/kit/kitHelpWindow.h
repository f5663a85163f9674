#pragma once

#include "windows/kit/kitWindowTest.h"

#include <string>
#include <wx/html/helpctrl.h>
#include <wx/html/helpdlg.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>
#include <wx/timer.h>

/// The help window of that kind that is open, or null.
template <class Window>
Window * kit_help_window()
{
    for (wxWindow * const window : wxTopLevelWindows)
        if (auto * const help = dynamic_cast<Window *>(window); help && help->IsShown())
            return help;
    return nullptr;
}

/// Tests that open the help over a dialog.
template <class Test>
class kitHelpOverDialog : public Test {
protected:
    /// Does what opens the help over a dialog that is modal, and gives the page of the book that it showed
    /// before it was closed.
    static std::string help_page_over_dialog(std::function<void()> const & open)
    {
        // Whichever of the nested event loops runs, the timer looks for the help.
        std::string page;
        wxTimer look;
        look.Bind(wxEVT_TIMER, [&](wxTimerEvent &) {
            auto * const help = kit_help_window<wxHtmlHelpDialog>();
            if (!help || !help->IsModal())
                return;
            look.Stop();
            auto const & html = *help->GetController()->GetHelpWindow()->GetHtmlWindow();
            page = html.GetOpenedPage().AfterLast(':').utf8_string();
            help->Close();
        });
        look.Start(20);
        open();
        Test::run_until([&] { return !page.empty(); }, 20, "the help");
        Test::settle();
        return page;
    }
};
