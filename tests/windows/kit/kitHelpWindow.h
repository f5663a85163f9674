#pragma once

#include "windows/kit/kitWindowTest.h"

#include <string>
#include <wx/html/helpctrl.h>
#include <wx/html/helpdlg.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>
#include <wx/timer.h>
#include <wx/weakref.h>

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
    /// Does what opens the help over a dialog that is modal, and gives the page of the book that it showed.
    /// The help is opened once for each way in which a user closes it.
    static std::string help_page_over_dialog(std::function<void()> const & open)
    {
        std::string page;
        for (auto const & close : {close_with_escape, close_with_its_button, close_with_its_frame}) {
            std::string const shown = help_page(open, close);
            EXPECT_TRUE(page.empty() || page == shown) << page << " and " << shown;
            page = shown;
        }
        return page;
    }

    static void close_with_escape(wxHtmlHelpDialog &) { Test::key(WXK_ESCAPE); }
    static void close_with_its_button(wxHtmlHelpDialog & help)
    {
        auto * const button = help.FindWindow(wxID_OK);
        ASSERT_TRUE(button);
        Test::click(*button);
    }
    static void close_with_its_frame(wxHtmlHelpDialog & help) { help.Close(); }

    /// The same for one way of closing it.
    static std::string help_page(std::function<void()> const & open,
                                 std::function<void(wxHtmlHelpDialog &)> const & close)
    {
        // Whichever of the nested event loops runs, the timer looks for the help.
        std::string page;
        wxWeakRef<wxDialog> closed;
        wxTimer look;
        look.Bind(wxEVT_TIMER, [&](wxTimerEvent &) {
            auto * const help = kit_help_window<wxHtmlHelpDialog>();
            if (!help || !help->IsModal())
                return;
            look.Stop();
            Test::run_until([&] { return help->IsShownOnScreen() && help->IsActive(); }, 20,
                            "the help to be the active window");
            Test::settle();
            auto const & html = *help->GetController()->GetHelpWindow()->GetHtmlWindow();
            page = html.GetOpenedPage().AfterLast(':').utf8_string();
            closed = help;
            close(*help);
        });
        look.Start(20);
        open();
        Test::run_until([&] { return !page.empty() && !closed; }, 20, "the help to be gone");
        Test::settle();
        return page;
    }
};
