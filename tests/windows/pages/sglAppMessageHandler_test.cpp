#include "sglAppMessageHandler.h"

#include "windows/kit/kitBrowser.h"
#include "windows/kit/kitWindowTest.h"

#include <gmock/gmock.h>
#include <wx/html/helpctrl.h>
#include <wx/html/helpdata.h>
#include <wx/html/helpfrm.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>
#include <wx/treectrl.h>
#include <wx/wfstream.h>
#include <wx/zipstrm.h>

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

/// The program's help book, for as long as this lives, where the installation has none.
class Book {
public:
    explicit Book(sglApp const & app)
        : m_folder(app.file_locator().search_path(sdbHRKDirectory::help).directories().front().utf8()),
          m_path(m_folder + "/vmrdoc.htb")
    {
        if (std::filesystem::exists(m_path))
            return;
        m_made_folder = std::filesystem::create_directories(m_folder);
        m_made_book = true;
        wxFFileOutputStream file(m_path);
        wxZipOutputStream archive(file);
        auto const add = [&](char const * name, std::string const & text) {
            archive.PutNextEntry(name);
            archive.Write(text.data(), text.size());
        };
        add("vmrdoc.hhp", "[OPTIONS]\nContents file=vmrdoc.hhc\nTitle=Help\n"
                          "Default topic=substituted/source/new/new.htm\n");
        add("vmrdoc.hhc", "<ul><li><object type=\"text/sitemap\"><param name=\"Name\" value=\"News\">"
                          "<param name=\"Local\" value=\"substituted/source/new/new.htm\"></object></ul>");
        add("substituted/source/new/new.htm", "<html><title>News</title><body>What is new</body></html>");
    }
    ~Book()
    {
        if (m_made_book)
            std::filesystem::remove(m_path);
        if (m_made_folder)
            std::filesystem::remove(m_folder);
    }

private:
    std::string m_folder;
    std::string m_path;
    bool m_made_folder = false;
    bool m_made_book = false;
};

wxHtmlHelpFrame * help_frame()
{
    for (wxWindow * const window : wxTopLevelWindows)
        if (auto * const frame = dynamic_cast<wxHtmlHelpFrame *>(window); frame && frame->IsShown())
            return frame;
    return nullptr;
}

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
    Book const book(app());
    kitModal const no_boxes;
    sglAppMessageHandler const handler(&app());
    // Again after the user has closed the window.
    for (int time = 0; time < 2; ++time) {
        handler.OnWhatNewInCrosswalk();
        run_until([] { return help_frame() != nullptr; }, 20, "the help");
        ASSERT_TRUE(help_frame());
        auto * const page = help_frame()->GetController()->GetHelpWindow()->GetHtmlWindow();
        run_until([&] { return page->GetOpenedPage().EndsWith("substituted/source/new/new.htm"); }, 20,
                  "the page of the news");
        help_frame()->Close();
        run_until([] { return help_frame() == nullptr; }, 20, "the end of the help");
    }
}
