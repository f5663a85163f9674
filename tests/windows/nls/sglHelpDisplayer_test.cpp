#include "sglHelpDisplayer.h"

#include "windows/resources/kitResources.h"

#include <unistd.h>
#include <wx/filename.h>
#include <wx/html/helpdata.h>
#include <wx/html/helpdlg.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>
#include <wx/wfstream.h>
#include <wx/zipstrm.h>

namespace {

/// Writes down what the displayer asks of the toolkit.
class RecordedHelp : public sglHelpDisplayer {
public:
    using sglHelpDisplayer::load_file;
    using sglHelpDisplayer::sglHelpDisplayer;

    bool LoadFile(wxString const & file) override
    {
        asked.push_back("load " + file.utf8_string());
        return false;
    }
    bool DisplayContents() override
    {
        asked.push_back("contents");
        return true;
    }
    bool DisplaySection(wxString const & section) override
    {
        asked.push_back("section " + section.utf8_string());
        return true;
    }
    using sglHelpDisplayer::DisplaySection;

    std::vector<std::string> asked;
};

class Help : public kitResourcesTest {
protected:
    void SetUp() override
    {
        kitResourcesTest::SetUp();
        m_directory = app().file_locator().search_path(sdbHRKDirectory::help).directories().front().utf8();
        std::filesystem::create_directories(m_directory);
        // Other tests run at the same time.
        m_name = "test-book-" + std::to_string(getpid()) + ".htb";
        m_book = m_directory + "/" + m_name;
    }
    void TearDown() override
    {
        kitResourcesTest::TearDown();
        std::filesystem::remove(m_book);
    }

    void write_book() const { write_book(m_book); }
    static void write_book(std::string const & path)
    {
        wxFFileOutputStream file(path);
        wxZipOutputStream archive(file);
        auto const add = [&](char const * name, std::string const & text) {
            archive.PutNextEntry(name);
            archive.Write(text.data(), text.size());
        };
        add("book.hhp", "[OPTIONS]\nContents file=book.hhc\nTitle=Test book\nDefault topic=index.htm\n");
        add("book.hhc", "<ul><li><object type=\"text/sitemap\"><param name=\"Name\" value=\"Values\">"
                        "<param name=\"Local\" value=\"substituted/values.htm\"></object></ul>");
        add("index.htm", "<html><title>Start</title><body>Start here</body></html>");
        add("substituted/values.htm", "<html><title>Values</title><body>What values mean</body></html>");
    }

    std::string m_directory;
    std::string m_name;
    std::string m_book;
};

} // namespace

TEST_F(Help, ThatIsMissingIsToldAndNothingIsShown)
{
    RecordedHelp help(&app(), nullptr);
    help.set_help_file("no-such-book.htb");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    help.show_help();
    boxes.expect_message(wxID_OK);
    help.show_help("a.htm");
    EXPECT_EQ(help.asked, std::vector<std::string>{});
    std::string const text = "Couldn't find help files. Please check your installation";
    EXPECT_EQ(boxes.said(), (std::vector<std::string>{text, text}));
    EXPECT_TRUE(boxes.styles()[0] & wxICON_EXCLAMATION);
}

TEST_F(Help, OnATopicIsLookedUpBelowTheSubstitutedPages)
{
    write_book();
    RecordedHelp help(&app(), nullptr);
    help.set_help_file(utString(m_name));
    help.show_help("source/values.htm");
    help.show_help();
    // That the book could not be opened changes nothing.
    EXPECT_EQ(help.asked, (std::vector<std::string>{"load " + m_book, "section substituted/source/values.htm",
                                                    "load " + m_book, "contents"}));
}

TEST_F(Help, OpensARealBookAtAPage)
{
    write_book();
    {
        sglHelpDisplayer help(&app(), m_frame);
        help.set_help_file(utString(m_name));
        help.show_help("values.htm");
        ASSERT_TRUE(help.GetHelpWindow());
        auto * const page = help.GetHelpWindow()->GetHtmlWindow();
        run_until([&] { return page->ToText().Contains("What values mean"); }, 20, "the page");
        help.show_help();
        EXPECT_EQ(help.GetHelpData()->GetBookRecArray().size(), 1u);
    }
    settle();
}

TEST_F(Help, OpensOverTheOptionsWhichGoOnWhenItIsClosed)
{
    std::string const book = m_directory + "/vmrdoc.htb";
    bool const installed_book = std::filesystem::exists(book);
    if (!installed_book)
        write_book(book);
    auto const help_window = []() -> wxHtmlHelpDialog * {
        for (wxWindow * const window : wxTopLevelWindows)
            if (auto * const help = dynamic_cast<wxHtmlHelpDialog *>(window); help && help->IsShown())
                return help;
        return nullptr;
    };
    kitResources dialog(m_table, m_frame, m_step);
    EXPECT_EQ(show(dialog,
                   [&] {
                       // Twice: the window is made anew. It keeps the user's events from the dialog
                       // meanwhile.
                       for (int time = 0; time < 2; ++time) {
                           bool seen = false;
                           wxTheApp->CallAfter([&] {
                               run_until([&] { return help_window() != nullptr; }, 20, "the help");
                               settle();
                               seen = help_window() != nullptr;
                               if (seen)
                                   help_window()->Close();
                           });
                           press(dialog, "IDC_OPTIONS_HELP");
                           EXPECT_TRUE(seen);
                           settle();
                           for (wxWindow * const window : wxTopLevelWindows)
                               EXPECT_FALSE(dynamic_cast<wxHtmlHelpDialog *>(window)) << "is left";
                       }
                       click(*find<wxButton>(dialog, "IDC_OPTIONS_OK"));
                   }),
              wxID_OK);
    if (!installed_book)
        std::filesystem::remove(book);
}
