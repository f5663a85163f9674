#pragma once

#include "windows/kit/kitModal.h"
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
    /// Does what opens the help over a dialog that is modal, and gives the page of the book that it was about
    /// to show. It is closed before the user would see it.
    static std::string help_page_over_dialog(std::function<void()> const & open)
    {
        std::string page;
        kitModal help;
        help.expect([&](wxDialog * dialog) {
            if (auto * const window = dynamic_cast<wxHtmlHelpDialog *>(dialog))
                page = page_of(*window->GetController()).AfterLast(':').utf8_string();
            return wxID_CANCEL;
        });
        open();
        Test::run_until([&] { return !page.empty(); }, 20, "the help");
        Test::settle();
        return page;
    }

private:
    static wxString page_of(wxHtmlHelpController & controller)
    {
        return controller.GetHelpWindow()->GetHtmlWindow()->GetOpenedPage();
    }
};
