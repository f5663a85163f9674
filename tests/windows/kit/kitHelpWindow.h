#pragma once

#include "windows/kit/kitWindowTest.h"

#include <string>
#include <wx/html/helpctrl.h>
#include <wx/html/helpdlg.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>

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
        wxString page;
        wxTheApp->CallAfter([&] {
            Test::run_until([] { return kit_help_window<wxHtmlHelpDialog>() != nullptr; }, 20, "the help");
            Test::settle();
            if (auto * const help = kit_help_window<wxHtmlHelpDialog>()) {
                page = help->GetController()->GetHelpWindow()->GetHtmlWindow()->GetOpenedPage();
                help->Close();
            }
        });
        open();
        Test::settle();
        return page.AfterLast(':').utf8_string();
    }
};
