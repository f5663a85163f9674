#include "sglAboutDlg.h"

#include "windows/kit/kitBrowser.h"
#include "windows/kit/kitWindowTest.h"

#include "sglNlsHelp.h"

#include <gmock/gmock.h>
#include <wx/statbmp.h>

namespace fs = std::filesystem;

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class AboutBox : public sglAboutDlg {
public:
    using sglAboutDlg::open_redirect_file;
    using sglAboutDlg::sglAboutDlg;
};

/// Sets a variable of the environment for as long as this lives.
class Variable {
public:
    Variable(char const * name, std::string const & value) : m_name(name)
    {
        if (char const * const before = std::getenv(name))
            m_before = before;
        setenv(name, value.c_str(), 1);
    }
    ~Variable()
    {
        if (m_before)
            setenv(m_name, m_before->c_str(), 1);
        else
            unsetenv(m_name);
    }
    Variable(Variable const &) = delete;
    Variable & operator=(Variable const &) = delete;

private:
    char const * m_name;
    std::optional<std::string> m_before;
};

class About : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
        m_credits = app().file_locator().search_path(sdbHRKDirectory::help).directories().front().utf8() +
                    "/TrademarksAndCredits.rtf";
    }

    void TearDown() override
    {
        if (fs::exists(m_credits + ".away"))
            fs::rename(m_credits + ".away", m_credits);
        kitWindowTest::TearDown();
    }

    static std::string text(wxWindow & dialog, char const * id)
    {
        return find<wxTextCtrl>(dialog, id)->GetValue().utf8_string();
    }
    /// The one file in a folder.
    static std::string only_file(std::string const & place)
    {
        std::vector<std::string> files;
        for (auto const & entry : fs::directory_iterator(place))
            files.push_back(entry.path().string());
        EXPECT_EQ(files.size(), 1u);
        return files.empty() ? std::string() : files[0];
    }

    wxFrame * m_frame = nullptr;
    std::string m_credits;
};

} // namespace

TEST_F(About, ShowsTheCopyrightMessageWithAnEmptyLineBehindIt)
{
    sglAboutDlg dialog(m_frame);
    show_modal(dialog, [&] {
        EXPECT_EQ(text(dialog, "IDC_ABOUTBOX_COPYRIGHT_TEXT"), app().copyright_message().str() + "\n\n");
        auto const & shown = *find<wxTextCtrl>(dialog, "IDC_ABOUTBOX_COPYRIGHT_TEXT");
        EXPECT_FALSE(shown.IsEditable());
        EXPECT_EQ(shown.GetInsertionPoint(), 0);
        EXPECT_GE(shown.PositionToCoords(0).y, 0) << "the first line is scrolled away";
        press(dialog, "wxID_OK");
    });
}

TEST_F(About, ShowsNameLanguagesAndLibraries)
{
    sglAboutDlg dialog(m_frame);
    show_modal(dialog, [&] {
        EXPECT_EQ(find<wxStaticText>(dialog, "IDC_ABOUTBOX_NAME")->GetLabelText().utf8_string(),
                  app().application_name_no_version().str());
        std::string const all = text(dialog, "IDC_ABOUTBOX_SURROUNDINGS");
        EXPECT_THAT(all, HasSubstr("Tester language used\t:  English\n"));
        EXPECT_THAT(
            all, HasSubstr("wxWidgets language used\t:  " + getNlsHelp()->wxwidgets_language().str() + "\n"));
        EXPECT_THAT(all, HasSubstr("Locale code page\t:  UTF-8\n"));
        EXPECT_THAT(all, HasSubstr(wxGetLibraryVersionInfo().GetVersionString().utf8_string() + "\nGTK 3."));
        EXPECT_THAT(all, HasSubstr("Open CASCADE 7."));
        EXPECT_EQ(all.find('\r'), std::string::npos);
        EXPECT_EQ(all.find("[["), std::string::npos);
        press(dialog, "wxID_OK");
    });
}

TEST_F(About, ShowsTheIconOfTheProgramOrNone)
{
    wxBitmap bitmap(48, 48);
    wxIcon icon;
    icon.CopyFromBitmap(bitmap);
    app().set_main_icon(icon);
    {
        sglAboutDlg dialog(m_frame);
        show_modal(dialog, [&] {
            auto const & picture = *find<wxStaticBitmap>(dialog, "IDC_ABOUTBOX_ICON");
            EXPECT_TRUE(picture.IsShown());
            EXPECT_EQ(picture.GetBitmap().GetSize(), wxSize(48, 48));
            press(dialog, "wxID_OK");
        });
    }
    app().set_main_icon(wxNullIcon);
    sglAboutDlg dialog(m_frame);
    show_modal(dialog, [&] {
        EXPECT_FALSE(find<wxStaticBitmap>(dialog, "IDC_ABOUTBOX_ICON")->IsShown());
        press(dialog, "wxID_OK");
    });
}

TEST_F(About, StandsInTheMiddleOfItsParent)
{
    m_frame->Move(300, 250);
    settle();
    sglAboutDlg dialog(m_frame);
    wxRect const inner = dialog.GetRect(), outer = m_frame->GetRect();
    EXPECT_NEAR(inner.x + inner.width / 2, outer.x + outer.width / 2, 2);
    EXPECT_NEAR(inner.y + inner.height / 2, outer.y + outer.height / 2, 2);
}

TEST_F(About, IsClosedByItsButtonByEnterAndByEscape)
{
    for (int const way : std::initializer_list<int>{0, WXK_RETURN, WXK_ESCAPE}) {
        sglAboutDlg dialog(m_frame);
        show_modal(dialog, [&] {
            if (way)
                key(way);
            else
                click(*find<wxButton>(dialog, "wxID_OK"));
            run_until([&] { return !dialog.IsModal(); }, 20, "the end of the dialog");
        });
        EXPECT_FALSE(dialog.IsShown());
    }
}

TEST_F(About, OpensTheCreditsOfTheInstallation)
{
    ASSERT_TRUE(fs::exists(m_credits));
    kitBrowser const browser;
    kitModal const no_boxes;
    kitTempFolder const temporary;
    Variable const place("TMPDIR", temporary.path().string());
    sglAboutDlg dialog(m_frame);
    wxCommandEvent event(wxEVT_BUTTON, XRCID("IDC_ABOUTBOX_TAC"));
    dialog.ProcessWindowEvent(event);
    run_until([&] { return !browser.opened().empty(); }, 20, "the application");
    EXPECT_EQ(browser.opened(), "open <" + m_credits + ">\n");
    EXPECT_EQ(temporary.count(), 0);
}

TEST_F(About, SaysThatTheCreditsAreMissing)
{
    ASSERT_TRUE(fs::exists(m_credits));
    fs::rename(m_credits, m_credits + ".away");
    kitBrowser const browser;
    kitModal boxes;
    expect_dialog(boxes, [](wxDialog & dialog) {
        click(*find<wxButton>(dialog, "IDC_ABOUTBOX_TAC"));
        press(dialog, "wxID_OK");
    });
    boxes.expect_message(wxID_OK);
    sglAboutDlg(m_frame).ShowModal();
    EXPECT_EQ(boxes.said(), std::vector<std::string>{"Failed to find Terms and Conditions file\n"});
    EXPECT_TRUE(boxes.styles().at(0) & wxOK);
    EXPECT_EQ(browser.opened(), "");
}

TEST_F(About, LeadsTheBrowserToTheCreditsWhenNoApplicationOpensThem)
{
    kitTempFolder const temporary;
    Variable const place("TMPDIR", temporary.path().string());
    // No program that opens documents is on this path.
    Variable const nothing("PATH", temporary.path().string());
    AboutBox dialog(m_frame);
    {
        wxLogNull const no_browser_either;
        wxCommandEvent event(wxEVT_BUTTON, XRCID("IDC_ABOUTBOX_TAC"));
        dialog.ProcessWindowEvent(event);
    }
    EXPECT_EQ(kit_read_file(only_file(temporary.path().string())),
              "<meta http-equiv = \"refresh\" content = \"0; url=file:///" + m_credits + "\" / >");
}

TEST_F(About, OpensAPageThatLeadsToThePathAsItStands)
{
    kitBrowser const browser;
    kitTempFolder const temporary;
    Variable const place("TMPDIR", temporary.path().string());
    AboutBox dialog(m_frame);
    dialog.open_redirect_file(apPathName::from_utf8("/a folder/M\xC3\xBCller & Co/50%.rtf"));
    std::string const page = only_file(temporary.path().string());
    EXPECT_THAT(page, EndsWith(".html"));
    EXPECT_EQ(kit_read_file(page), "<meta http-equiv = \"refresh\" content = \"0; "
                                   "url=file:////a folder/M\xC3\xBCller & Co/50%.rtf\" / >");
    run_until([&] { return !browser.opened().empty(); }, 20, "the browser");
    EXPECT_THAT(browser.opened(), HasSubstr(fs::path(page).filename().string()));
    EXPECT_TRUE(fs::exists(page)) << "the page stays for the browser";
}

TEST_F(About, SaysNothingWhenThePageCannotBeWritten)
{
    kitBrowser const browser;
    kitModal const no_boxes;
    Variable const place("TMPDIR", "/proc/self"); // where nobody can make a file
    AboutBox dialog(m_frame);
    dialog.open_redirect_file(apPathName(L"/a.rtf"));
    settle();
    EXPECT_EQ(browser.opened(), "");
}
