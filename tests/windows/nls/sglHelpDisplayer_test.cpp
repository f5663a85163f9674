#include "sglHelpDisplayer.h"

#include "sglAboutDlg.h"
#include "sglExportToDialog.h"
#include "sglNlsHelp.h"
#include "sglReportDialog.h"

#include "nls/sglHelpColours.h"
#include "windows/kit/kitHelpFolder.h"
#include "windows/kit/kitHelpWindow.h"
#include "windows/resources/kitResources.h"

#include <gmock/gmock.h>
#include <optional>
#include <wx/html/helpdata.h>
#include <wx/html/helpfrm.h>
#include <wx/wfstream.h>
#include <wx/zipstrm.h>

namespace {

constexpr char const * no_help = "Couldn't find help files. Please check your installation";

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

    utString language() const override { return spoken ? *spoken : sglHelpDisplayer::language(); }

    std::vector<std::string> asked;
    std::optional<utString> spoken = utString(); ///< nothing for the program's own
};

int answer_titled_like_the_program(wxDialog * dialog)
{
    EXPECT_EQ(dialog->GetTitle(), wxTheApp->GetAppDisplayName());
    return wxID_OK;
}

/// Books of the tests' own.
class Help : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_folder.emplace(app(), folder());
        m_book = m_folder->path() + "/" + m_name;
    }
    void TearDown() override
    {
        kitWindowTest::TearDown();
        m_folder.reset();
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

    std::optional<kitHelpFolder> m_folder;
    std::string const m_name = "test-book.htb";
    std::string m_book;
};

/// The program's own book.
class HelpBook : public kitHelpOverDialog<kitResourcesTest> {
protected:
    static wxString page_of(sglHelpDisplayer & help)
    {
        return help.GetHelpWindow()->GetHtmlWindow()->ToText();
    }
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
    EXPECT_EQ(boxes.said(), (std::vector<std::string>{no_help, no_help}));
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
        sglHelpDisplayer help(&app(), show_frame());
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

TEST_F(Help, OpensABookThatIsThereAgainAfterItCouldNotBeOpened)
{
    wxLogNull const silent;
    sglHelpDisplayer help(&app(), nullptr);
    for (int time = 0; time < 2; ++time)
        EXPECT_FALSE(help.LoadFile(wxString::FromUTF8(m_book))) << time;
    write_book();
    for (int time = 0; time < 2; ++time)
        EXPECT_TRUE(help.LoadFile(wxString::FromUTF8(m_book))) << time;
    EXPECT_EQ(help.GetHelpData()->GetBookRecArray().size(), 1u);
}

TEST_F(Help, DoesNotTakeADamagedBookForOneThatIsOpen)
{
    sglHelpDisplayer help(&app(), nullptr);
    std::ofstream(m_book) << "no archive";
    kitModal const no_boxes;
    for (int time = 0; time < 2; ++time)
        EXPECT_FALSE(help.LoadFile(wxString::FromUTF8(m_book))) << time;
    wxLog::FlushActive();
}

TEST_F(Help, OfADamagedBookIsToldLikeAMissingOneAndNothingIsShown)
{
    std::string const whole = kit_read_file(VMR_BUILD_TREE "/share/vmr/help/vmrdoc.htb");
    ASSERT_GT(whole.size(), 10'000u);
    auto * const frame = show_frame();
    {
        sglHelpDisplayer help(&app(), frame);
        help.set_help_file(utString(m_name));
        for (std::size_t const length : {0U, 100U, 5000U, static_cast<unsigned>(whole.size() - 30)}) {
            std::ofstream(m_book, std::ios::binary) << whole.substr(0, length);
            kitModal boxes;
            for (bool const topic : {false, true}) {
                boxes.expect(answer_titled_like_the_program);
                topic ? help.show_help("source/formats/iges.htm") : help.show_help();
                // What the toolkit has to say itself comes when nothing else is to be done.
                wxLog::FlushActive();
                settle();
            }
            EXPECT_EQ(boxes.said(), (std::vector<std::string>{no_help, no_help})) << length;
            EXPECT_FALSE(help.GetHelpWindow()) << length;
            EXPECT_EQ(wxTopLevelWindows.GetCount(), 1u) << length;
        }
        // Mended, it opens.
        std::ofstream(m_book, std::ios::binary) << whole;
        help.show_help();
        EXPECT_TRUE(help.GetHelpWindow());
    }
    settle();
}

TEST_F(Help, PrefersTheBookInTheLanguageOfTheProgram)
{
    for (char const * const book : {"vmrdoc.htb", "vmrdoc_de.htb", "vmrdoc_pt_BR.htb"})
        write_book(m_folder->path() + "/" + book);
    auto const opened_in = [&](char const * language) {
        RecordedHelp help(&app(), nullptr);
        help.spoken = language;
        help.show_help();
        return std::filesystem::path(help.asked.at(0)).filename().string();
    };
    EXPECT_EQ(opened_in("de"), "vmrdoc_de.htb");
    EXPECT_EQ(opened_in("de_AT"), "vmrdoc_de.htb");
    EXPECT_EQ(opened_in("pt_BR"), "vmrdoc_pt_BR.htb");
    EXPECT_EQ(opened_in("pt"), "vmrdoc.htb");
    EXPECT_EQ(opened_in("it_IT"), "vmrdoc.htb");
    EXPECT_EQ(opened_in(""), "vmrdoc.htb");
}

TEST_F(Help, IsInTheLanguageThatTheUserAskedFor)
{
    utString const before = getNlsHelp()->requested_language();
    getNlsHelp()->set_nls_language("fr");
    write_book(m_folder->path() + "/vmrdoc_fr.htb");
    write_book(m_folder->path() + "/vmrdoc.htb");
    RecordedHelp help(&app(), nullptr);
    help.spoken.reset();
    help.show_help();
    EXPECT_EQ(help.asked.at(0), "load " + m_folder->path() + "/vmrdoc_fr.htb");
    getNlsHelp()->set_nls_language(before);
}

TEST_F(Help, HasDarkColoursOnADarkDesktop)
{
    wxString const page = "<body bgcolor=\"#FFFFFF\" text=\"#202428\"><td bgcolor=\"#DCE6F2\">#1</td>";
    EXPECT_EQ(sglHelpColours(false).Process(page), page);
    wxString const dark = sglHelpColours(true).Process(page);
    EXPECT_EQ(dark, "<body bgcolor=\"#1E2226\" text=\"#E4E7EA\"><td bgcolor=\"#33465C\">#1</td>");
}

TEST_F(HelpBook, ShowsItsContentsAndATopic)
{
    {
        sglHelpDisplayer help(&app(), m_frame);
        help.show_help();
        run_until([&] { return page_of(help).Contains("Your first translation"); }, 20, "the first page");
        auto const & contents = help.GetHelpData()->GetContentsArray();
        EXPECT_GT(contents.size(), 30u);
        EXPECT_EQ(help.GetHelpData()->GetBookRecArray()[0].GetTitle(), "Crosswalk Help");
        std::vector<wxString> names;
        for (std::size_t item = 0; item < contents.size(); ++item)
            names.push_back(contents[item].name);
        EXPECT_THAT(names, testing::Contains(wxString("Start here")));
        EXPECT_THAT(names, testing::Contains(wxString("When something goes wrong")));

        help.show_help("source/formats/iges.htm");
        run_until([&] { return page_of(help).Contains("igesReadSewTolerance"); }, 20, "the topic");
        EXPECT_EQ(help.GetHelpWindow()->GetHtmlWindow()->GetOpenedPageTitle(), "IGES");
    }
    settle();
}

TEST_F(HelpBook, ShowsItsContentsInTheLettersOfALanguage)
{
    class InJapanese : public sglHelpDisplayer {
    public:
        using sglHelpDisplayer::sglHelpDisplayer;
        utString language() const override { return "ja"; }
    };
    {
        InJapanese help(&app(), m_frame);
        help.show_help();
        auto const & contents = help.GetHelpData()->GetContentsArray();
        ASSERT_GT(contents.size(), 1u);
        EXPECT_EQ(contents[0].name.utf8_string(), "Crosswalk ヘルプ");
        EXPECT_EQ(contents[1].name.utf8_string(), "はじめに");
    }
    settle();
}

TEST_F(HelpBook, FindsWordsInItsIndexAndInItsText)
{
    {
        sglHelpDisplayer help(&app(), m_frame);
        help.show_help();
        EXPECT_TRUE(help.KeywordSearch("igesReadSewTolerance", wxHELP_SEARCH_INDEX));
        run_until([&] { return page_of(help).Contains("Sewing distance"); }, 20, "the page of the keyword");
        EXPECT_TRUE(help.KeywordSearch("tessellated", wxHELP_SEARCH_ALL));
        run_until([&] { return page_of(help).Contains("ISO 10303"); }, 20, "the page with the word");
        EXPECT_FALSE(help.KeywordSearch("no-such-word-anywhere", wxHELP_SEARCH_ALL));
    }
    settle();
}

TEST_F(HelpBook, OpensOverTheOptionsWhichGoOnWhenItIsClosed)
{
    kitResources dialog(m_table, m_frame, m_step);
    EXPECT_EQ(show(dialog,
                   [&] {
                       // Twice: the window is made anew. It keeps the user's events from the dialog
                       // meanwhile.
                       for (int time = 0; time < 2; ++time) {
                           bool seen = false;
                           wxTheApp->CallAfter([&] {
                               run_until([] { return kit_help_window<wxHtmlHelpDialog>() != nullptr; }, 20,
                                         "the help");
                               settle();
                               auto * const help = kit_help_window<wxHtmlHelpDialog>();
                               seen = help != nullptr;
                               if (seen)
                                   help->Close();
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
}

TEST_F(HelpBook, KeepsTheOtherWindowsFromClicksOverADialogAndSoDoesTheDialogAfterwards)
{
    // In a corner of the screen, where no dialog covers it.
    auto * const other = new wxFrame(nullptr, wxID_ANY, "other", wxPoint(0, 700), wxSize(200, 200));
    auto * const button = new wxButton(other, wxID_ANY, "Press");
    int pressed = 0;
    button->Bind(wxEVT_BUTTON, [&](wxCommandEvent &) { ++pressed; });
    other->Show();
    run_until([&] { return button->IsShownOnScreen(); }, 20, "the other window");
    settle();
    click(*button);
    ASSERT_EQ(pressed, 1) << "without a dialog it can be pressed";

    for (auto const & close : {close_with_escape, close_with_its_button, close_with_its_frame}) {
        sglAboutDlg about(m_frame);
        show_modal(about, [&] {
            for (int time = 0; time < 2; ++time) {
                help_page([] { key(WXK_F1); },
                          [&](wxHtmlHelpDialog & help) {
                              click(*button);
                              EXPECT_EQ(pressed, 1) << "below the help";
                              help.Raise();
                              focus(*help.GetHelpWindow());
                              close(help);
                          });
                click(*button);
                EXPECT_EQ(pressed, 1) << "below the dialog";
                about.Raise();
                focus(*find<wxWindow>(about, "wxID_OK"));
            }
            key(WXK_ESCAPE);
        });
        click(*button);
        EXPECT_EQ(pressed, 2) << "nothing is above it";
        pressed = 1;
    }
}

TEST_F(HelpBook, OpensInAWindowThatEscapeCloses)
{
    {
        sglHelpDisplayer help(&app(), m_frame);
        for (int time = 0; time < 2; ++time) {
            help.show_help();
            auto * const window = kit_help_window<wxHtmlHelpFrame>();
            ASSERT_TRUE(window);
            focus(*help.GetHelpWindow()->GetHtmlWindow());
            key(WXK_ESCAPE);
            run_until([] { return kit_help_window<wxHtmlHelpFrame>() == nullptr; }, 20, "the help to go");
        }
    }
    settle();
}

TEST_F(HelpBook, OpensAtTheOptionsWithTheirButtonAndWithF1)
{
    std::string const topic = "substituted/source/resources/resourcevalues.htm";
    kitResources dialog(m_table, m_frame, m_step);
    show(dialog, [&] {
        EXPECT_EQ(help_page_over_dialog([&] { press(dialog, "IDC_OPTIONS_HELP"); }), topic);
        EXPECT_EQ(help_page_over_dialog([] { key(WXK_F1); }), topic);
    });
}

TEST_F(HelpBook, OpensWithF1AtThePageOfADialog)
{
    auto const page_of_dialog = [&](wxDialog & dialog, char const * button) {
        std::string page;
        show_modal(dialog, [&] {
            page = help_page_over_dialog([] { key(WXK_F1); });
            press(dialog, button);
        });
        return page;
    };
    sglReportDialog report(m_frame);
    EXPECT_EQ(page_of_dialog(report, "IDC_REPORT_OK"), "substituted/source/dialogs/report.htm");
    sglExportToDialog exports(m_frame);
    ASSERT_TRUE(exports.initialise(utString::make_invalid()));
    EXPECT_EQ(page_of_dialog(exports, "IDC_EXPORTTO_CANCEL"), "substituted/source/resources/exportto.htm");
    sglAboutDlg about(m_frame);
    EXPECT_EQ(page_of_dialog(about, "wxID_OK"), "substituted/source/dialogs/about.htm");
}
