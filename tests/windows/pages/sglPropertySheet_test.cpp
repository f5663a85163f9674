#include "sglPropertySheet.h"

#include "windows/kit/kitBrowser.h"
#include "windows/kit/kitHelpWindow.h"
#include "windows/pages/kitSettings.h"

#include "sglEdit.h"
#include "sglMessageDisplayer.h"

#include <gmock/gmock.h>
#include <wx/clipbrd.h>
#include <wx/html/helpfrm.h>
#include <wx/weakref.h>

namespace {

using ::testing::ElementsAre;
using ::testing::MatchesRegex;

/// Can undo when the test says so; the toolkit's control for one line never can here.
class UndoableText : public wxTextCtrl {
public:
    using wxTextCtrl::wxTextCtrl;
    bool CanUndo() const override { return can_undo; }
    bool can_undo = false;
};

/// A main window with two text controls and a button in place of the pages.
class Sheet : public sglPropertySheet {
public:
    Sheet(int has_menu, int expert, sglIMessageDisplayer const * displayer = nullptr)
        : sglPropertySheet(nullptr, has_menu, expert, displayer)
    {
        Create(nullptr, wxID_ANY, "main window");
        create_menu();
        auto * const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(text = new wxTextCtrl(this, wxID_ANY, "some text"));
        sizer->Add(other = new UndoableText(this, wxID_ANY));
        sizer->Add(button = new wxButton(this, wxID_ANY, "a button"));
        SetSizer(sizer);
    }

    using sglPropertySheet::check_menus;
    using sglPropertySheet::end_dialog;
    using sglPropertySheet::has_menu;
    using sglPropertySheet::message_displayer;
    using sglPropertySheet::set_return_code;

    wxTextCtrl * text = nullptr;
    UndoableText * other = nullptr;
    wxButton * button = nullptr;
};

class PropertySheet : public kitSettingsTest {
protected:
    void TearDown() override
    {
        app().at_end_of_main_window(nullptr);
        app().take_commands();
        kitSettingsTest::TearDown();
    }

    static Sheet * show_sheet(int has_menu = 1, int expert = 1)
    {
        auto * const sheet = new Sheet(has_menu, expert);
        sheet->Show();
        run_until([sheet] { return sheet->IsShownOnScreen() && sheet->IsActive(); }, 20, "the main window");
        settle();
        return sheet;
    }
    static bool enabled(Sheet const & sheet, char const * id)
    {
        return sheet.GetMenuBar()->IsEnabled(XRCID(id));
    }
    static bool ticked(Sheet const & sheet, char const * id)
    {
        return sheet.GetMenuBar()->IsChecked(XRCID(id));
    }
    static void put_on_clipboard(char const * text)
    {
        wxClipboardLocker const lock;
        wxTheClipboard->SetData(new wxTextDataObject(text));
    }
    static void empty_clipboard()
    {
        wxClipboardLocker const lock;
        wxTheClipboard->Clear();
    }

    /// Runs `end` and gives the code with which the window ended; -1 when it did not.
    static int code_of_end(Sheet & sheet, std::function<void()> const & end)
    {
        int code = -1;
        wxWeakRef<Sheet> const window(&sheet);
        app().at_end_of_main_window([&] {
            code = app().last_end_code();
            EXPECT_FALSE(sheet.IsShown());
            EXPECT_FALSE(wxPendingDelete.Member(&sheet));
        });
        end();
        EXPECT_EQ(code != -1, !window || wxPendingDelete.Member(window.get()));
        return code;
    }
};

} // namespace

TEST_F(PropertySheet, StartsWithTheCodeOfAGoodEnd)
{
    sglWxMessageDisplayer const displayer;
    Sheet sheet(1, 0, &displayer);
    EXPECT_EQ(sheet.return_code(), wxID_OK);
    EXPECT_EQ(sheet.return_code(), 5100);
    sheet.set_return_code(wxID_NO);
    EXPECT_EQ(sheet.return_code(), wxID_NO);
    EXPECT_EQ(sheet.is_expert(), 0);
    EXPECT_EQ(sheet.message_displayer(), &displayer);
}

TEST_F(PropertySheet, HasEveryCommandInItsMenu)
{
    Sheet const sheet(1, 1);
    for (auto const * const id :
         {"IDM_FILE_OPEN", "IDM_FILE_SAVE_AS", "IDM_FILE_EXIT", "IDM_EDIT_UNDO", "IDM_EDIT_CUT",
          "IDM_EDIT_COPY", "IDM_EDIT_PASTE", "IDM_EDIT_CLEAR", "IDM_VIEW_EXPERT", "IDM_VIEW_GRAPHICS",
          "IDM_COLOUR_SCHEME", "IDM_VIEWER_STARTUP", "ID_HELP", "IDM_HELP_HELP", "IDM_HELP_CONTACT",
          "IDM_HELP_ABOUT", "IDM_HELP_TARNLOFT_HOMEPAGE", "IDM_WHAT_NEW_IN_CROSSWALK"})
        EXPECT_TRUE(sheet.GetMenuBar()->FindItem(XRCID(id))) << id;
}

TEST_F(PropertySheet, ShowsItsMenuBarHoweverOftenItIsHidden)
{
    Sheet & sheet = *show_sheet();
    run_until([&] { return sheet.GetMenuBar()->IsShownOnScreen(); }, 20, "the menu bar");
    sheet.Hide();
    settle();
    sheet.Show();
    run_until([&] { return sheet.GetMenuBar()->IsShownOnScreen(); }, 20, "the menu bar again");
}

TEST_F(PropertySheet, WithoutAMenuIgnoresAllThatConcernsOne)
{
    Sheet & sheet = *show_sheet(0);
    EXPECT_FALSE(sheet.GetMenuBar());
    sheet.check_menus();
    focus(*sheet.text);
    choose_menu(sheet, "IDM_VIEWER_STARTUP");
    EXPECT_FALSE(sheet.GetMenuBar());
    EXPECT_TRUE(settings().find_field(sduSTARTASVIEWER).invalid());
}

TEST_F(PropertySheet, TicksTheItemOfTheStartUnlessTheProgramStartsAsAViewer)
{
    EXPECT_TRUE(ticked(Sheet(1, 1), "IDM_VIEWER_STARTUP")) << "no field";
    settings().add_field(sduSTARTASVIEWER, "YeS");
    EXPECT_FALSE(ticked(Sheet(1, 1), "IDM_VIEWER_STARTUP"));
    settings().add_field(sduSTARTASVIEWER, "");
    EXPECT_TRUE(ticked(Sheet(1, 1), "IDM_VIEWER_STARTUP")) << "an empty field";
    settings().add_field(sduSTARTASVIEWER, "no");
    EXPECT_TRUE(ticked(Sheet(1, 1), "IDM_VIEWER_STARTUP"));
}

TEST_F(PropertySheet, KeepsHowToStartBetweenRuns)
{
    Sheet sheet(1, 1);
    for (int const checked : {0, 1}) {
        wxCommandEvent event(wxEVT_MENU, XRCID("IDM_VIEWER_STARTUP"));
        event.SetInt(checked);
        sheet.ProcessWindowEvent(event);
        EXPECT_EQ(on_disk(), utString(checked ? "no" : "yes"));
        EXPECT_EQ(ticked(sheet, "IDM_VIEWER_STARTUP"), checked != 0);
    }
}

TEST_F(PropertySheet, OffersToCopyCutAndClearWhatIsSelected)
{
    Sheet & sheet = *show_sheet();
    focus(*sheet.text);
    sheet.text->SelectNone();
    settle();
    for (auto const * const id : {"IDM_EDIT_COPY", "IDM_EDIT_CUT", "IDM_EDIT_CLEAR"})
        EXPECT_FALSE(enabled(sheet, id)) << id;
    sheet.text->SetSelection(0, 4);
    settle();
    for (auto const * const id : {"IDM_EDIT_COPY", "IDM_EDIT_CUT", "IDM_EDIT_CLEAR"})
        EXPECT_TRUE(enabled(sheet, id)) << id;
}

TEST_F(PropertySheet, TurnsThemOffWhenTheFocusLeavesTheTextWhileUndoStaysAsItStood)
{
    Sheet & sheet = *show_sheet();
    focus(*sheet.text);
    sheet.text->SetSelection(0, 4);
    settle();
    ASSERT_TRUE(enabled(sheet, "IDM_EDIT_COPY"));
    for (bool const undo : {true, false}) {
        sheet.GetMenuBar()->Enable(XRCID("IDM_EDIT_UNDO"), undo);
        sheet.button->SetFocus();
        run_until([&] { return wxWindow::FindFocus() == sheet.button; });
        sheet.GetMenuBar()->Enable(XRCID("IDM_EDIT_UNDO"), undo);
        settle();
        for (auto const * const id : {"IDM_EDIT_COPY", "IDM_EDIT_CUT", "IDM_EDIT_CLEAR"})
            EXPECT_FALSE(enabled(sheet, id)) << id;
        EXPECT_EQ(enabled(sheet, "IDM_EDIT_UNDO"), undo);
    }
}

TEST_F(PropertySheet, OffersToUndoWhatTheTextCanUndo)
{
    Sheet & sheet = *show_sheet();
    focus(*sheet.other);
    for (bool const can : {true, false}) {
        sheet.other->can_undo = can;
        settle();
        EXPECT_EQ(enabled(sheet, "IDM_EDIT_UNDO"), can);
    }
}

TEST_F(PropertySheet, OffersToPasteWhileThereIsTextOnTheClipboard)
{
    Sheet & sheet = *show_sheet();
    put_on_clipboard("a text");
    settle();
    EXPECT_TRUE(enabled(sheet, "IDM_EDIT_PASTE"));
    empty_clipboard();
    settle();
    EXPECT_FALSE(enabled(sheet, "IDM_EDIT_PASTE"));
}

TEST_F(PropertySheet, OffersToPasteTextThatIsOfferedInOneEncodingOnly)
{
    Sheet & sheet = *show_sheet();
    {
        wxClipboardLocker const lock;
        auto * const data = new wxCustomDataObject(wxDataFormat("UTF8_STRING"));
        data->SetData(4, "text");
        wxTheClipboard->SetData(data);
    }
    settle();
    EXPECT_TRUE(enabled(sheet, "IDM_EDIT_PASTE"));
    empty_clipboard();
}

TEST_F(PropertySheet, HandsTheEditCommandsToTheTextThatHasTheFocus)
{
    Sheet & sheet = *show_sheet();
    focus(*sheet.text);
    sheet.text->SetSelection(0, 5);
    choose_menu(sheet, "IDM_EDIT_CUT");
    EXPECT_EQ(sheet.text->GetValue(), "text");
    focus(*sheet.other);
    choose_menu(sheet, "IDM_EDIT_PASTE");
    choose_menu(sheet, "IDM_EDIT_PASTE");
    EXPECT_EQ(sheet.other->GetValue(), "some some ");
    sheet.other->SetSelection(4, 10);
    choose_menu(sheet, "IDM_EDIT_CLEAR");
    EXPECT_EQ(sheet.other->GetValue(), "some");
    sheet.other->SetSelection(1, 4);
    choose_menu(sheet, "IDM_EDIT_COPY");
    sheet.other->SetSelection(4, 4);
    choose_menu(sheet, "IDM_EDIT_PASTE");
    EXPECT_EQ(sheet.other->GetValue(), "someome");
}

TEST_F(PropertySheet, DoesTheSameForTheKeysThatUsersKnow)
{
    Sheet & sheet = *show_sheet();
    focus(*sheet.text);
    sheet.text->SetSelection(0, 5);
    settle();
    key('X', wxMOD_CONTROL);
    EXPECT_EQ(sheet.text->GetValue(), "text");
    focus(*sheet.other);
    key('V', wxMOD_CONTROL);
    EXPECT_EQ(sheet.other->GetValue(), "some ");
    key(WXK_F1);
    EXPECT_THAT(app().take_commands(), ElementsAre("help"));
}

TEST_F(PropertySheet, HandsTheFocusedControlTheStandardCommandWhichDoesNotComeBackUp)
{
    Sheet & sheet = *show_sheet();
    std::vector<int> seen;
    int came_back = 0;
    sheet.button->Bind(wxEVT_MENU, [&](wxCommandEvent & event) {
        seen.push_back(event.GetId());
        event.Skip();
    });
    for (int const id : {wxID_UNDO, wxID_COPY, wxID_PASTE, wxID_CUT, wxID_CLEAR})
        sheet.Bind(
            wxEVT_MENU, [&](wxCommandEvent &) { ++came_back; }, id);
    focus(*sheet.button);
    for (auto const * const id :
         {"IDM_EDIT_UNDO", "IDM_EDIT_COPY", "IDM_EDIT_PASTE", "IDM_EDIT_CUT", "IDM_EDIT_CLEAR"})
        choose_menu(sheet, id);
    EXPECT_THAT(seen, ElementsAre(5007, 5032, 5033, 5031, 5034));
    EXPECT_EQ(came_back, 0);
}

TEST_F(PropertySheet, DoesNothingForAnEditCommandWithoutAFocus)
{
    Sheet sheet(1, 1);
    ASSERT_FALSE(wxWindow::FindFocus());
    choose_menu(sheet, "IDM_EDIT_PASTE");
    EXPECT_EQ(sheet.text->GetValue(), "some text");
}

TEST_F(PropertySheet, EndsCancelledWhenItIsClosedOrLeft)
{
    Sheet & closed = *show_sheet();
    EXPECT_EQ(code_of_end(closed, [&] { closed.Close(); }), 5101);
    Sheet & left = *show_sheet();
    EXPECT_EQ(code_of_end(left, [&] { choose_menu(left, "IDM_FILE_EXIT"); }), 5101);
    Sheet & left_by_key = *show_sheet();
    EXPECT_EQ(code_of_end(left_by_key, [&] { key('Q', wxMOD_CONTROL); }), 5101);
}

TEST_F(PropertySheet, EndsWithTheCodesOfTheOtherViews)
{
    Sheet & to_graphics = *show_sheet(1, 1);
    EXPECT_EQ(code_of_end(to_graphics, [&] { choose_menu(to_graphics, "IDM_VIEW_GRAPHICS"); }),
              XRCID("IDM_VIEW_GRAPHICS"));
    Sheet & to_expert = *show_sheet(1, 0);
    EXPECT_EQ(code_of_end(to_expert, [&] { choose_menu(to_expert, "IDM_VIEW_EXPERT"); }),
              XRCID("ID_VIEW_EXPERT"));
    EXPECT_NE(XRCID("ID_VIEW_EXPERT"), XRCID("IDM_VIEW_EXPERT"));
}

TEST_F(PropertySheet, OfTheExpertViewStaysWhenThatViewIsChosen)
{
    Sheet & sheet = *show_sheet(1, 1);
    EXPECT_EQ(code_of_end(sheet, [&] { choose_menu(sheet, "IDM_VIEW_EXPERT"); }), -1);
    EXPECT_TRUE(sheet.IsShown());
}

TEST_F(PropertySheet, HandsHelpAboutAndColoursToTheProgram)
{
    Sheet sheet(1, 1);
    for (auto const * const id : {"ID_HELP", "IDM_HELP_HELP", "IDM_HELP_ABOUT", "IDM_COLOUR_SCHEME"})
        choose_menu(sheet, id);
    EXPECT_THAT(app().take_commands(), ElementsAre("help", "help", "about", "colours"));
}

TEST_F(PropertySheet, LeadsToTheHomePageAndTheSupport)
{
    Sheet sheet(1, 1);
    kitBrowser const browser;
    choose_menu(sheet, "IDM_HELP_TARNLOFT_HOMEPAGE");
    run_until([&] { return !browser.opened().empty(); });
    std::string const first = browser.opened();
    EXPECT_THAT(first, MatchesRegex("open <https://[a-z.]+/>\n"));
    choose_menu(sheet, "IDM_HELP_CONTACT");
    run_until([&] { return browser.opened().size() > first.size(); });
    EXPECT_THAT(browser.opened().substr(first.size()), MatchesRegex("open <mailto:[a-z]+@[a-z.]+>\n"));
}

TEST_F(PropertySheet, OpensTheHelpAtTheNews)
{
    kitModal const no_boxes;
    Sheet & sheet = *show_sheet();
    choose_menu(sheet, "IDM_WHAT_NEW_IN_CROSSWALK");
    run_until([] { return kit_help_window<wxHtmlHelpFrame>() != nullptr; }, 20, "the help");
    auto * const help = kit_help_window<wxHtmlHelpFrame>();
    ASSERT_TRUE(help);
    auto * const page = help->GetController()->GetHelpWindow()->GetHtmlWindow();
    run_until([&] { return page->GetOpenedPage().EndsWith("source/new/new.htm"); }, 20,
              "the page of the news");
    help->Close();
    run_until([] { return kit_help_window<wxHtmlHelpFrame>() == nullptr; }, 20, "the end of the help");
}
