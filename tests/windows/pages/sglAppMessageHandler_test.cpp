#include "sglAppMessageHandler.h"

#include "windows/kit/kitBrowser.h"
#include "windows/kit/kitHelpWindow.h"
#include "windows/kit/kitWindowTest.h"

#include <gmock/gmock.h>
#include <wx/html/helpfrm.h>

namespace {

using ::testing::MatchesRegex;

class MessageHandler : public kitWindowTest {
protected:
    void TearDown() override
    {
        app().set_main_window(nullptr);
        kitWindowTest::TearDown();
    }
};

} // namespace

TEST_F(MessageHandler, OpensTheHomePageInTheBrowser)
{
    kitBrowser const browser;
    app().message_handler().OnTarnloftHomePage();
    run_until([&] { return !browser.opened().empty(); });
    EXPECT_THAT(browser.opened(), MatchesRegex("open <https://[a-z.]+/>\n"));
}

TEST_F(MessageHandler, ShowsTheReportOfAllTranslationsOverTheMainWindow)
{
    wxFrame * const frame = show_frame();
    app().set_main_window(frame);
    wxWindow * parent = nullptr;
    bool seen = false;
    frame->CallAfter([&] {
        wxDialog * dialog = nullptr;
        run_until([&] {
            for (wxWindow * const window : wxTopLevelWindows)
                if (window->IsShownOnScreen() && window->FindWindow(XRCID("IDC_REPORT_TREE")))
                    dialog = dynamic_cast<wxDialog *>(window);
            return dialog != nullptr;
        });
        seen = true;
        parent = dialog->GetParent();
        press(*dialog, "IDC_REPORT_OK");
    });
    app().message_handler().OnViewTranslationDetails();
    EXPECT_TRUE(seen);
    EXPECT_EQ(parent, frame);
}

TEST_F(MessageHandler, OpensTheHelpAtTheNewsInAWindowThatStays)
{
    kitModal const no_boxes;
    sglAppMessageHandler const handler(&app());
    // Again after the user has closed the window.
    for (int time = 0; time < 2; ++time) {
        handler.OnWhatNewInCrosswalk();
        run_until([] { return kit_help_window<wxHtmlHelpFrame>() != nullptr; }, 20, "the help");
        auto * const help = kit_help_window<wxHtmlHelpFrame>();
        ASSERT_TRUE(help);
        auto * const page = help->GetController()->GetHelpWindow()->GetHtmlWindow();
        run_until([&] { return page->GetOpenedPage().EndsWith("substituted/source/new/new.htm"); }, 20,
                  "the page of the news");
        help->Close();
        run_until([] { return kit_help_window<wxHtmlHelpFrame>() == nullptr; }, 20, "the end of the help");
    }
}
