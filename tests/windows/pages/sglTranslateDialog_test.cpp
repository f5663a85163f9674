#include "sglDropFiles.h"
#include "windows/kit/kitWindowTest.h"
#include "windows/pages/kitPage.h"
#include "wxt/wxtStringConverter.h"

#include <gmock/gmock.h>

namespace {

class TranslatePage : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
        m_resources = std::make_unique<kitXrc>(kitPage::resources());
        m_page = new kitPage(m_frame);
    }
    void TearDown() override
    {
        m_resources.reset();
        kitWindowTest::TearDown();
    }
    void create() { ASSERT_TRUE(m_page->create()); }
    std::string step_file(std::string const & name) const
    {
        return folder().write(name, "ISO-10303-21;\nHEADER;\n");
    }
    /// Fills both sides from a file that is there.
    void choose(std::string const & file)
    {
        int failed = 0;
        m_page->m_input_details.set_details(utString(file), failed);
        m_page->input.initialise(&app().input_dlls(), *m_page->m_input_combo, *m_page->m_input_list, 0);
        m_page->m_output_combo->SetStringSelection("STL");
        EXPECT_EQ(m_page->fill_output_fields(utString(file), m_page->output), 1);
    }
    void translate()
    {
        wxCommandEvent event;
        m_page->OnTranslate(event);
    }
    static std::string cell(wxListCtrl * list, int column)
    {
        return list->GetItemText(0, column).utf8_string();
    }

    std::unique_ptr<kitXrc> m_resources;
    wxFrame * m_frame = nullptr;
    kitPage * m_page = nullptr;
};

} // namespace

TEST_F(TranslatePage, ShowsTheFormatsOfBothSidesAndTheUnknownOne)
{
    create();
    EXPECT_EQ(m_page->m_input_combo->selected_item(), unknown_format());
    EXPECT_EQ(m_page->m_output_combo->selected_item(), unknown_format());
    for (auto name = app().input_dlls().formats(); ++name;)
        EXPECT_NE(m_page->m_input_combo->FindString(wxtStringConverter::to_wx(name().ut_string())), -1);
    for (auto name = app().output_dlls().formats(); ++name;)
        EXPECT_NE(m_page->m_output_combo->FindString(wxtStringConverter::to_wx(name().ut_string())), -1);
    EXPECT_EQ(m_page->m_input_list->GetColumnCount(), 2);
    EXPECT_EQ(m_page->m_output_list->GetColumnCount(), 2);
    EXPECT_FALSE(m_page->m_input_resource_button->IsEnabled());
    EXPECT_FALSE(m_page->m_output_resource_button->IsEnabled());
    EXPECT_FALSE(m_page->m_translate_button->IsEnabled());
    EXPECT_EQ(m_page->m_input_resource_button->GetLabel(), "Options of the input");
    EXPECT_EQ(m_page->caption(), utString("Test"));
}

TEST_F(TranslatePage, IsNotReadyWithoutItsControls)
{
    m_page->has_children = false;
    EXPECT_EQ(m_page->create(), 0);
}

TEST_F(TranslatePage, TakesFilesDroppedOntoItsInputList)
{
    create();
    auto * const target = dynamic_cast<sglDropFiles *>(m_page->m_input_list->GetDropTarget());
    ASSERT_TRUE(target);
    wxArrayString files;
    files.Add("a");
    files.Add("b");
    EXPECT_TRUE(target->OnDropFiles(1, 1, files));
    EXPECT_EQ(m_page->dropped, files);
}

TEST_F(TranslatePage, TakesNoFilesWhileADialogIsOpenInFrontOfIt)
{
    create();
    auto * const target = dynamic_cast<sglDropFiles *>(m_page->m_input_list->GetDropTarget());
    ASSERT_TRUE(target);
    auto * const text = new wxTextCtrl(m_frame, wxID_ANY);
    sglDropFiles text_target(text);
    wxArrayString files;
    files.Add("a");
    wxDialog dialog(m_frame, wxID_ANY, "a dialog");
    bool taken = true;
    show_modal(dialog, [&] {
        taken = target->OnDropFiles(1, 1, files);
        EXPECT_TRUE(sgl_dialog_is_open());
        EXPECT_TRUE(text_target.OnDropFiles(1, 1, files));
        dialog.EndModal(wxID_OK);
    });
    EXPECT_FALSE(taken);
    EXPECT_TRUE(m_page->dropped.empty());
    EXPECT_EQ(text->GetValue(), "a");
    EXPECT_FALSE(sgl_dialog_is_open());
    EXPECT_TRUE(target->OnDropFiles(1, 1, files));
    EXPECT_EQ(m_page->dropped, files);
}

TEST_F(TranslatePage, TakesNoFilesWhileItIsAtWork)
{
    create();
    auto * const target = dynamic_cast<sglDropFiles *>(m_page->m_input_list->GetDropTarget());
    ASSERT_TRUE(target);
    wxArrayString files;
    files.Add("a");
    m_page->Disable();
    EXPECT_FALSE(target->OnDropFiles(1, 1, files));
    m_page->Enable();
    EXPECT_TRUE(target->OnDropFiles(1, 1, files));
}

TEST_F(TranslatePage, TakesFilesAfterADialogThatWasAnsweredWithoutBeingShown)
{
    create();
    {
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        wxMessageDialog(m_frame, "a message").ShowModal();
    }
    EXPECT_FALSE(sgl_dialog_is_open());
}

TEST_F(TranslatePage, PutsTheFirstDroppedFileIntoATextControl)
{
    auto * const text = new wxTextCtrl(m_frame, wxID_ANY, "before");
    sglDropFiles target(text);
    wxArrayString files;
    EXPECT_TRUE(target.OnDropFiles(1, 1, files));
    EXPECT_EQ(text->GetValue(), "before");
    files.Add("/data/a.stp");
    files.Add("/data/b.stp");
    EXPECT_TRUE(target.OnDropFiles(1, 1, files));
    EXPECT_EQ(text->GetValue(), "/data/a.stp");
}

TEST_F(TranslatePage, ProposesAnOutputForTheInputThatIsBrowsedFor)
{
    create();
    auto const file = step_file("part.stp");
    kitModal boxes;
    boxes.expect_file(file);
    wxCommandEvent event;
    EXPECT_EQ(m_page->OnInputBrowse(event, m_page->output), static_cast<int>(wxID_OK));
    EXPECT_EQ(cell(m_page->m_input_list, 0), file);
    EXPECT_THAT(cell(m_page->m_output_list, 0), testing::StartsWith(folder() / "part."));
    EXPECT_EQ(m_page->output.filename().str(), cell(m_page->m_output_list, 0));
    EXPECT_FALSE(m_page->output.invalid());
}

TEST_F(TranslatePage, ProposesNothingOnceTheOutputIsTheUsersOwn)
{
    create();
    wxCommandEvent event;
    kitModal boxes;
    boxes.expect_file(folder() / "own.stl");
    EXPECT_EQ(m_page->OnOutputBrowse(event, m_page->output), static_cast<int>(wxID_OK));
    EXPECT_EQ(m_page->m_user_edited, 1);
    boxes.expect_file(step_file("part.stp"));
    m_page->OnInputBrowse(event, m_page->output);
    EXPECT_EQ(cell(m_page->m_output_list, 0), folder() / "own.stl");
}

TEST_F(TranslatePage, ProposesNothingForAnUnknownInput)
{
    create();
    EXPECT_EQ(m_page->fill_output_fields("/data/notes.txt", m_page->output), 0);
    EXPECT_EQ(m_page->m_output_list->GetItemCount(), 0);
    EXPECT_TRUE(m_page->output.invalid());
}

TEST_F(TranslatePage, TranslatesOnlyIntoAKnownFormatAndAFile)
{
    create();
    m_page->enableTranslateButton(1);
    EXPECT_FALSE(m_page->m_translate_button->IsEnabled());
    choose(step_file("part.stp"));
    m_page->enableTranslateButton(1);
    EXPECT_TRUE(m_page->m_translate_button->IsEnabled());
    m_page->enableTranslateButton(0);
    EXPECT_FALSE(m_page->m_translate_button->IsEnabled());
    m_page->m_output_combo->add_and_select_unknown();
    m_page->enableTranslateButton(1);
    EXPECT_FALSE(m_page->m_translate_button->IsEnabled());
    m_page->m_output_combo->delete_unknown();
    m_page->m_output_list->SetItem(0, 0, "");
    m_page->enableTranslateButton(1);
    EXPECT_FALSE(m_page->m_translate_button->IsEnabled());
}

TEST_F(TranslatePage, ShowsTheNameOfTheResourceFileOfARow)
{
    create();
    sglRow row;
    row.resource_table().set_resource_file("/data/mine.rsc");
    m_page->set_resource_file(row, m_page->m_input_list, 0);
    ASSERT_EQ(m_page->m_input_list->GetItemCount(), 1);
    EXPECT_EQ(cell(m_page->m_input_list, 1), "mine.rsc");
    row.resource_table().set_resource_file("other.rsc");
    m_page->set_resource_file(row, m_page->m_input_list, 0);
    ASSERT_EQ(m_page->m_input_list->GetItemCount(), 1);
    EXPECT_EQ(cell(m_page->m_input_list, 1), "other.rsc");
}

TEST_F(TranslatePage, AsksBeforeAProposedNameOverwritesAFile)
{
    create();
    choose(step_file("part.stp"));
    auto const there = folder().write("part.stl", "old");
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    translate();
    EXPECT_THAT(boxes.said(),
                testing::ElementsAre("The file " + there + " already exists. Do you want to overwrite it?"));
    EXPECT_TRUE(boxes.styles().front() & wxICON_QUESTION);
    EXPECT_EQ(folder().read("part.stl"), "old");
    EXPECT_EQ(m_page->m_user_edited, 0);
}

TEST_F(TranslatePage, TellsOfAnUnknownOutputAndKeepsTheNameOfTheUser)
{
    create();
    choose(step_file("part.stp"));
    m_page->UserEdited(1);
    m_page->m_output_combo->Append("NOSUCH");
    m_page->m_output_combo->SetStringSelection("NOSUCH");
    m_page->output.initialise(&app().output_dlls(), *m_page->m_output_combo, *m_page->m_output_list, 0);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    EXPECT_THAT(boxes.said(), testing::ElementsAre("An invalid output format was detected"));
    EXPECT_EQ(m_page->m_user_edited, 1);
}

TEST_F(TranslatePage, TellsOfAnUnknownInput)
{
    create();
    choose(step_file("part.stp"));
    m_page->input.clear();
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    EXPECT_THAT(boxes.said(), testing::ElementsAre("An invalid input format was detected"));
    EXPECT_TRUE(boxes.styles().front() & wxICON_ERROR);
}

TEST_F(TranslatePage, DoesNothingWithoutInputsButForgetTheUsersName)
{
    create();
    m_page->inputs = 0;
    m_page->UserEdited(1);
    translate();
    EXPECT_EQ(m_page->m_user_edited, 0);
}

TEST_F(TranslatePage, TranslatesAndProposesNamesAgainAfterwards)
{
    std::filesystem::path const sample = "/usr/share/opencascade/data/step/screw.step";
    if (!std::filesystem::exists(sample))
        GTEST_SKIP() << "no sample files are installed";
    create();
    std::filesystem::copy_file(sample, folder() / "screw.step");
    choose(folder() / "screw.step");
    m_page->UserEdited(1);
    folder().write("screw.stl", "old");
    kitModal boxes;
    boxes.expect_message(wxID_YES); // to the question about the old file
    boxes.expect_message(wxID_OK);
    m_page->CallAfter([] {
        wxWindow * ok = nullptr;
        run_until(
            [&] {
                for (wxWindow * const window : wxTopLevelWindows)
                    if (auto * const found = window->FindWindow(XRCID("IDC_PROGRESS_OK")))
                        ok = found;
                return ok && ok->IsEnabled();
            },
            60, "the end of the translation");
        if (ok)
            press(*wxGetTopLevelParent(ok), "IDC_PROGRESS_OK");
    });
    translate();
    EXPECT_EQ(m_page->m_user_edited, 0);
    EXPECT_GT(folder().read("screw.stl").size(), 10'000u);
    EXPECT_EQ(cell(m_page->m_output_list, 0), folder() / "screw.stl");
}
