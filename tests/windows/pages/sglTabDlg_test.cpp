#include "sglTabDlg.h"

#include "windows/kit/kitWindowTest.h"

#include <gmock/gmock.h>
#include <wx/display.h>
#include <wx/dnd.h>
#include <wx/listctrl.h>
#include <wx/notebook.h>

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class TabDlg : public kitWindowTest {
protected:
    void TearDown() override
    {
        app().at_end_of_main_window(nullptr);
        kitWindowTest::TearDown();
    }

    static sglTabDlg * show_window()
    {
        auto * const window = new sglTabDlg(nullptr, nullptr);
        EXPECT_FALSE(window->IsShown());
        window->Show();
        run_until([window] { return window->IsShownOnScreen() && window->IsActive(); }, 20, "the window");
        settle();
        return window;
    }
    static wxNotebook & notebook(sglTabDlg & window)
    {
        for (wxWindow * const child : window.GetChildren())
            if (auto * const found = dynamic_cast<wxNotebook *>(child))
                return *found;
        throw std::runtime_error("no notebook");
    }
    static bool ticked(sglTabDlg const & window)
    {
        return window.GetMenuBar()->IsChecked(XRCID("IDM_VIEW_EXPERT"));
    }
};

} // namespace

TEST_F(TabDlg, HasItsPagesInTheOrderInWhichTheyAreUsed)
{
    sglTabDlg & window = *show_window();
    EXPECT_EQ(window.GetTitle().utf8_string(), app().titlebar_string().str());
    wxNotebook const & pages = notebook(window);
    ASSERT_EQ(pages.GetPageCount(), 3u);
    EXPECT_EQ(pages.GetPageText(0), "Single File");
    EXPECT_EQ(pages.GetPageText(1), "Multiple Files");
    EXPECT_EQ(pages.GetPageText(2), "Batch Files");
    EXPECT_EQ(pages.GetSelection(), 0);
    EXPECT_TRUE(window.is_expert());
}

TEST_F(TabDlg, OpensWithoutPagesAndMenuAndTellsItWhenTheInstallationDoesNotDescribeThem)
{
    wxXmlResource * const installed = wxXmlResource::Set(new wxXmlResource);
    {
        wxLogNull const no_messages;
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        sglTabDlg & window = *show_window();
        EXPECT_EQ(window.GetMenuBar(), nullptr);
        EXPECT_EQ(notebook(window).GetPageCount(), 0u);
        EXPECT_THAT(boxes.said(), ElementsAre(StartsWith("These pages cannot be shown")));
        EXPECT_THAT(boxes.said()[0], HasSubstr("\nSingle File\nMultiple Files\nBatch Files\n"));
        for (auto const * const command :
             {"IDM_EDIT_COPY", "IDM_EDIT_UNDO", "IDM_VIEW_EXPERT", "IDM_VIEWER_STARTUP"})
            choose_menu(window, command);
        wxArrayString files;
        for (auto const * const name : {"a.step", "b.step"}) {
            files.Add(wxString::FromUTF8(folder().write(name, "ISO-10303-21;\nHEADER;\n")));
            window.open_files(files);
        }
        settle();
        bool ended = false;
        app().at_end_of_main_window([&] { ended = true; });
        window.Close();
        settle();
        EXPECT_TRUE(ended);
    }
    delete wxXmlResource::Set(installed);
}

TEST_F(TabDlg, CanNeitherBeResizedNorMaximised)
{
    sglTabDlg & window = *show_window();
    EXPECT_FALSE(window.HasFlag(wxRESIZE_BORDER));
    EXPECT_FALSE(window.HasFlag(wxMAXIMIZE_BOX));
    EXPECT_TRUE(window.HasFlag(wxMINIMIZE_BOX));
    wxSize const usual = window.ConvertDialogToPixels(wxSize(450, 380));
    // The window manager tells late how large its frame is, and the size counts with it.
    run_until([&] { return window.GetSize().x >= usual.x && window.GetSize().y >= usual.y; }, 20,
              "a window of its size");
    wxSize const needed = window.GetSizer()->ComputeFittingWindowSize(&window);
    EXPECT_GE(window.GetSize().x, needed.x);
    EXPECT_GE(window.GetSize().y, needed.y);
}

TEST_F(TabDlg, HasItsCloseButtonAtTheRightBelowThePages)
{
    sglTabDlg & window = *show_window();
    auto * const button = dynamic_cast<wxButton *>(window.FindWindow(wxID_CLOSE));
    ASSERT_TRUE(button);
    EXPECT_EQ(button->GetId(), 5001);
    EXPECT_EQ(button->GetLabel(), "Close");
    EXPECT_EQ(button->GetRect().GetRight() + 5, window.GetClientRect().GetRight());
    EXPECT_GT(button->GetRect().y, notebook(window).GetRect().GetBottom());
    int code = -1;
    app().at_end_of_main_window([&] { code = app().last_end_code(); });
    click(*button);
    run_until([&] { return code != -1; }, 20, "the press");
    EXPECT_EQ(code, 5101);
}

TEST_F(TabDlg, KnowsTheTopicOfItsPageAndNoneForTheContents)
{
    sglTabDlg & window = *show_window();
    std::vector<std::string> topics;
    for (std::size_t page = 0; page < 3; ++page) {
        notebook(window).SetSelection(page);
        topics.push_back(window.help_topic(XRCID("ID_HELP")).str());
        EXPECT_TRUE(window.help_topic(XRCID("IDM_HELP_HELP")).invalid());
    }
    EXPECT_THAT(topics,
                ElementsAre("source/pages/single.htm", "source/pages/merge.htm", "source/pages/batch.htm"));
}

TEST_F(TabDlg, StaysInTheExpertViewAndKeepsItsTick)
{
    sglTabDlg & window = *show_window();
    EXPECT_TRUE(ticked(window));
    bool ended = false;
    app().at_end_of_main_window([&] { ended = true; });
    window.GetMenuBar()->Check(XRCID("IDM_VIEW_EXPERT"), false);
    choose_menu(window, "IDM_VIEW_EXPERT");
    settle();
    EXPECT_TRUE(ticked(window));
    EXPECT_FALSE(ended);
    EXPECT_TRUE(window.IsShown());
}

TEST_F(TabDlg, TurnsOpenAndSaveAsIntoTheButtonsOfThePageThatIsShown)
{
    sglTabDlg & window = *show_window();
    wxNotebook & pages = notebook(window);
    std::vector<int> pressed;
    int came_up = 0;
    window.Bind(wxEVT_BUTTON, [&](wxCommandEvent &) { ++came_up; });
    for (std::size_t i = 0; i < pages.GetPageCount(); ++i) {
        pages.GetPage(i)->Bind(wxEVT_BUTTON, [&pressed, &pages, i](wxCommandEvent & event) {
            EXPECT_EQ(pages.GetSelection(), static_cast<int>(i));
            pressed.push_back(event.GetId());
        });
        pages.SetSelection(i);
        choose_menu(window, "IDM_FILE_OPEN");
        choose_menu(window, "IDM_FILE_SAVE_AS");
    }
    EXPECT_THAT(pressed,
                ElementsAre(XRCID("IDC_SINGLE_INPUT_BROWSE"), XRCID("IDC_SINGLE_OUTPUT_BROWSE"),
                            XRCID("IDC_MULTIPLE_INPUT_BROWSE"), XRCID("IDC_MULTIPLE_OUTPUT_BROWSE"),
                            XRCID("IDC_BATCH_INPUT_BROWSE_BUTTON"), XRCID("IDC_BATCH_OUTPUT_BROWSE_BUTTON")));
    EXPECT_EQ(came_up, 0);
}

TEST_F(TabDlg, OpensTheFileDialogOfItsPageByKey)
{
    sglTabDlg & window = *show_window();
    focus(notebook(window));
    kitModal boxes;
    boxes.expect_file_cancelled();
    key('O', wxMOD_CONTROL);
}

TEST_F(TabDlg, GivesOneFileToThePageForOne)
{
    sglTabDlg & window = *show_window();
    wxArrayString files;
    window.open_files(files);
    EXPECT_EQ(notebook(window).GetSelection(), 0);
    notebook(window).SetSelection(2);
    std::string const file = "/usr/share/opencascade/data/step/screw.step";
    files.push_back(file);
    window.open_files(files);
    EXPECT_EQ(notebook(window).GetSelection(), 0);
    EXPECT_EQ(find<wxListCtrl>(window, "IDC_SINGLE_INPUT_FILENAME")->GetItemText(0), file);
}

TEST_F(TabDlg, GivesSeveralFilesToThePageThatMergesThem)
{
    sglTabDlg & window = *show_window();
    wxArrayString files;
    files.push_back("/usr/share/opencascade/data/step/screw.step");
    files.push_back("/usr/share/opencascade/data/step/linkrods.step");
    window.open_files(files);
    EXPECT_EQ(notebook(window).GetSelection(), 1);
    auto const * const list = find<wxListCtrl>(window, "IDC_MULTIPLE_INPUT_FILE_LIST");
    ASSERT_TRUE(list);
    ASSERT_EQ(list->GetItemCount(), 2);
    EXPECT_EQ(list->GetItemText(0), files[0]);
    EXPECT_EQ(list->GetItemText(1), files[1]);
}

TEST_F(TabDlg, StandsInTheMiddleOfTheScreen)
{
    sglTabDlg & window = *show_window();
    wxRect const screen = wxDisplay(0u).GetClientArea();
    wxRect const place = window.GetScreenRect();
    EXPECT_NEAR(place.x + place.width / 2, screen.x + screen.width / 2, 4);
    EXPECT_NEAR(place.y + place.height / 2, screen.y + screen.height / 2, 40);
}

TEST_F(TabDlg, HasTheTranslateButtonOfThePageThatIsShownForEnter)
{
    sglTabDlg & window = *show_window();
    wxNotebook & pages = notebook(window);
    ASSERT_TRUE(window.GetDefaultItem());
    EXPECT_EQ(window.GetDefaultItem()->GetId(), XRCID("IDC_SINGLE_TRANSLATE"));
    char const * const buttons[] = {"IDC_SINGLE_TRANSLATE", "IDC_MULTIPLE_TRANSLATE",
                                    "IDC_BATCH_TRANSLATE_BUTTON"};
    for (std::size_t const page : {1u, 2u, 0u}) {
        pages.SetSelection(page);
        EXPECT_EQ(window.GetDefaultItem()->GetId(), XRCID(buttons[page])) << page;
    }
}

TEST_F(TabDlg, AsksBeforeItLeavesABatchThatHasNotBeenRun)
{
    sglTabDlg & window = *show_window();
    int ended = 0;
    app().at_end_of_main_window([&] { ++ended; });
    notebook(window).SetSelection(2);
    auto * const queue = find<wxListCtrl>(window, "IDC_BATCH_BATCH_LIST");
    wxArrayString files;
    files.push_back(wxString::FromUTF8(folder().write("a.step", "ISO-10303-21;\nHEADER;\n")));
    files.push_back(wxString::FromUTF8(folder().write("b.step", "ISO-10303-21;\nHEADER;\n")));
    dynamic_cast<wxFileDropTarget &>(*queue->GetDropTarget()).OnDropFiles(1, 1, files);
    settle();
    {
        kitModal boxes;
        for (int way = 0; way < 3; ++way)
            boxes.expect_message(wxID_NO);
        window.Close();
        settle();
        ASSERT_EQ(ended, 0);
        choose_menu(window, "IDM_FILE_EXIT");
        ASSERT_EQ(ended, 0);
        wxCommandEvent close(wxEVT_BUTTON, wxID_CLOSE);
        window.ProcessWindowEvent(close);
        EXPECT_EQ(boxes.said()[0],
                  "Translations of the batch that have not been made: 2\nThe batch is not kept. "
                  "Do you want to leave all the same?");
        EXPECT_TRUE(boxes.styles()[0] & wxNO_DEFAULT);
    }
    EXPECT_EQ(ended, 0);
    EXPECT_TRUE(window.IsShown());
    kitModal boxes;
    boxes.expect_message(wxID_YES);
    window.Close();
    settle();
    EXPECT_EQ(ended, 1);
}

TEST_F(TabDlg, LeavesWithoutAQuestionWhereNothingWaitsOrNobodyCanAnswer)
{
    kitModal const no_boxes;
    int ended = 0;
    app().at_end_of_main_window([&] { ++ended; });
    show_window()->Close();
    settle();
    EXPECT_EQ(ended, 1);
}

TEST_F(TabDlg, GivesNoCommandToAPageThatIsAtWork)
{
    sglTabDlg & window = *show_window();
    wxWindow & page = *notebook(window).GetCurrentPage();
    int pressed = 0;
    page.Bind(wxEVT_BUTTON, [&](wxCommandEvent &) { ++pressed; });
    page.Disable();
    choose_menu(window, "IDM_FILE_OPEN");
    EXPECT_EQ(pressed, 0);
    page.Enable();
    choose_menu(window, "IDM_FILE_OPEN");
    EXPECT_EQ(pressed, 1);
}
