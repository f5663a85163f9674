#include "sglSingleFile.h"

#include "windows/pages/kitOpenPage.h"

#include <gmock/gmock.h>
#include <wx/button.h>

namespace {

constexpr auto & ids = kit_single_page;

class SinglePage : public kitOpenPageTest {
protected:
    void SetUp() override
    {
        kitOpenPageTest::SetUp();
        m_single = open<sglSingleFile>(ids);
    }
    /// Options of the input row that the user has set.
    void edit_input_row()
    {
        auto & row = const_cast<sglRow &>(m_single->input_row(0));
        ASSERT_TRUE(row.resource_table().add_resource("stepReadNames", "false"));
        ASSERT_TRUE(row.resource_table().modified());
    }
    sglSingleFile * m_single = nullptr;
};

} // namespace

TEST_F(SinglePage, HasItsFormatBoxesBelowEachOther)
{
    EXPECT_EQ(box("IDC_SINGLE_INPUT_FORMAT").GetScreenPosition().x,
              box("IDC_SINGLE_OUTPUT_FORMAT").GetScreenPosition().x);
}

TEST_F(SinglePage, IsEmptyAtFirstWithBothBoxesOnTheUnknownFormat)
{
    EXPECT_EQ(m_single->caption(), utString("Single File"));
    EXPECT_EQ(list(ids.input_list).GetItemCount(), 0);
    EXPECT_EQ(list(ids.output_list).GetItemCount(), 0);
    EXPECT_EQ(list(ids.input_list).GetColumnCount(), 2);
    EXPECT_EQ(input_format(), unknown());
    EXPECT_EQ(output_format(), unknown());
    EXPECT_FALSE(can_translate());
    EXPECT_FALSE(enabled(ids.input_resources));
    EXPECT_FALSE(enabled(ids.output_resources));
    EXPECT_TRUE(enabled(ids.input_browse));
    EXPECT_TRUE(enabled(ids.output_browse));
    EXPECT_EQ(m_single->num_input_rows(), 1);
    EXPECT_EQ(m_single->num_output_rows(), 1);
}

TEST_F(SinglePage, OffersTheFormatsOfTheCatalogueInItsOrder)
{
    std::vector<std::string> shown, wanted;
    auto const & popup = *box(ids.input_format).popup();
    for (int row = 0; row < popup.GetItemCount(); ++row)
        if (auto const text = popup.GetItemText(row).utf8_string(); text != unknown())
            shown.push_back(text);
    for (auto format = app().input_dlls().formats(); ++format;)
        wanted.push_back(format().ut_string().str());
    EXPECT_EQ(shown, wanted);
}

TEST_F(SinglePage, ProposesAnOutputForTheInputThatIsBrowsedFor)
{
    browse_input(step_file("part.stp"));
    EXPECT_EQ(input_file(), folder() / "part.stp");
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_EQ(input_resource(), "step.rsc");
    EXPECT_EQ(output_file(), folder() / "part.igs");
    EXPECT_EQ(output_format(), "IGES");
    EXPECT_TRUE(enabled(ids.input_resources));
    EXPECT_TRUE(enabled(ids.output_resources));
    EXPECT_TRUE(can_translate());
    EXPECT_EQ(m_single->input_row(7).filename(), utString(folder() / "part.stp"));
    EXPECT_EQ(m_single->output_row(7).file_type(), utString("IGES"));
}

TEST_F(SinglePage, StaysAsItIsWhenNoFileIsChosen)
{
    kitModal boxes;
    boxes.expect_file_cancelled();
    press(*m_page, ids.input_browse);
    boxes.expect_file_cancelled();
    press(*m_page, ids.output_browse);
    EXPECT_EQ(list(ids.input_list).GetItemCount(), 0);
    EXPECT_EQ(list(ids.output_list).GetItemCount(), 0);
    EXPECT_FALSE(can_translate());
}

TEST_F(SinglePage, OpensTheFileDialogsFromTheMenuToo)
{
    {
        kitModal boxes;
        boxes.expect_file(step_file("part.stp"));
        choose_menu(*m_page, "IDM_FILE_OPEN");
    }
    EXPECT_EQ(input_file(), folder() / "part.stp");
    kitModal boxes;
    boxes.expect_file(folder() / "other.stl");
    choose_menu(*m_page, "IDM_FILE_SAVE_AS");
    EXPECT_EQ(output_file(), folder() / "other.stl");
    EXPECT_EQ(output_format(), "STL");
}

TEST_F(SinglePage, ShowsAFileOfUnknownFormatAndLeavesTranslateOff)
{
    browse_input(folder().write("notes.txt", "text"));
    EXPECT_EQ(input_file(), folder() / "notes.txt");
    EXPECT_EQ(input_resource(), "unknown");
    EXPECT_EQ(input_format(), unknown());
    EXPECT_EQ(output_file(), "");
    EXPECT_FALSE(can_translate());
    EXPECT_FALSE(enabled(ids.input_resources));

    choose(ids.input_format, "STEP");
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_EQ(input_resource(), "step.rsc");
    EXPECT_TRUE(enabled(ids.input_resources));
    EXPECT_EQ(output_file(), "");
    EXPECT_FALSE(can_translate());

    browse_output(folder() / "notes.igs");
    EXPECT_EQ(output_file(), folder() / "notes.igs");
    EXPECT_TRUE(can_translate());
}

TEST_F(SinglePage, TakesTheFirstOfSeveralDroppedFiles)
{
    auto const first = step_file("first.stp");
    drop({first, step_file("second.stp")});
    EXPECT_EQ(input_file(), first);
    EXPECT_EQ(list(ids.input_list).GetItemCount(), 1);
    EXPECT_EQ(output_file(), folder() / "first.igs");
    EXPECT_TRUE(can_translate());
}

TEST_F(SinglePage, IgnoresADropWithoutAName)
{
    drop({});
    drop({""});
    EXPECT_EQ(list(ids.input_list).GetItemCount(), 0);
}

TEST_F(SinglePage, KeepsTheOutputThatTheUserHasChosenWhenAFileIsDropped)
{
    browse_output(folder() / "mine.igs");
    drop({step_file("part.stp")});
    EXPECT_EQ(output_file(), folder() / "mine.igs");
    EXPECT_EQ(input_file(), folder() / "part.stp");
    EXPECT_TRUE(can_translate());
}

TEST_F(SinglePage, GoesBackToTheFormatOfEditedOptionsThatTheUserKeeps)
{
    drop({step_file("part.stp")});
    edit_input_row();
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    choose(ids.input_format, "STL");
    EXPECT_EQ(boxes.said().size(), 1u);
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_EQ(input_resource(), "step.rsc");
    EXPECT_EQ(input_file(), folder() / "part.stp");
    EXPECT_TRUE(m_single->input_row(0).resource_table().modified());
    EXPECT_TRUE(enabled(ids.input_resources));
    EXPECT_TRUE(can_translate());
}

TEST_F(SinglePage, TakesANewFormatWhereTheUserGivesEditedOptionsUp)
{
    drop({step_file("part.stp")});
    edit_input_row();
    kitModal boxes;
    boxes.expect_message(wxID_YES);
    choose(ids.input_format, "STL");
    EXPECT_EQ(input_format(), "STL");
    EXPECT_EQ(m_single->input_row(0).file_type(), utString("STL"));
    EXPECT_FALSE(m_single->input_row(0).resource_table().modified());
    EXPECT_EQ(input_resource(), "stl.rsc");
}

TEST_F(SinglePage, KeepsFileAndOptionsWhenTheUserKeepsThemAtTheNextFile)
{
    drop({step_file("part.stp")});
    edit_input_row();
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    drop({folder().write("mesh.stl", "solid a\nendsolid a\n")});
    EXPECT_EQ(input_file(), folder() / "part.stp");
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_TRUE(m_single->input_row(0).resource_table().modified());
}

TEST_F(SinglePage, PutsTheUnknownFormatBackWhenTheBoxIsClosedWithoutAChoice)
{
    choose(ids.input_format, "");
    EXPECT_EQ(input_format(), unknown());
    EXPECT_FALSE(can_translate());
    browse_input(folder().write("notes.txt", "text"));
    choose(ids.input_format, "");
    EXPECT_EQ(input_format(), unknown());
    EXPECT_EQ(input_resource(), "unknown");
    EXPECT_FALSE(can_translate());
    choose(ids.output_format, "");
    EXPECT_EQ(output_format(), unknown());
}

TEST_F(SinglePage, LeavesTheOutputAloneWhenAFormatIsChosenWithoutAFile)
{
    choose(ids.output_format, "STL");
    EXPECT_EQ(list(ids.output_list).GetItemCount(), 0);
    EXPECT_FALSE(enabled(ids.output_resources));
    find<wxButton>(*m_page, ids.output_resources)->Enable();
    choose(ids.output_format, "IGES");
    EXPECT_TRUE(enabled(ids.output_resources));
    EXPECT_FALSE(can_translate());
}

TEST_F(SinglePage, LeavesTranslateAloneWhenAFormatIsChosenWithoutAnInput)
{
    find<wxButton>(*m_page, ids.translate)->Enable();
    choose(ids.input_format, "STL");
    EXPECT_TRUE(can_translate());
    EXPECT_FALSE(enabled(ids.input_resources));
}

TEST_F(SinglePage, RenamesTheOutputAfterItsFormat)
{
    drop({step_file("part.stp")});
    choose(ids.output_format, "STL");
    EXPECT_EQ(output_file(), folder() / "part.stl");
    EXPECT_EQ(m_single->output_row(0).filename(), utString(folder() / "part.stl"));
    EXPECT_EQ(m_single->output_row(0).file_type(), utString("STL"));
    EXPECT_TRUE(enabled(ids.output_resources));
    EXPECT_TRUE(can_translate());
}

TEST_F(SinglePage, ShowsTheNameOfTheResourceFileThatIsTakenInTheDialog)
{
    drop({step_file("part.stp")});
    in_next_dialog([](wxDialog & dialog) { dialog.EndModal(wxID_CANCEL); });
    press(*m_page, ids.input_resources);
    EXPECT_EQ(input_resource(), "step.rsc");

    auto & row = const_cast<sglRow &>(m_single->output_row(0));
    in_next_dialog([&](wxDialog & dialog) {
        row.resource_table().set_resource_file(utString(folder() / "mine.rsc"));
        dialog.EndModal(wxID_OK);
    });
    press(*m_page, ids.output_resources);
    EXPECT_EQ(cell(ids.output_list, 1), "mine.rsc");
    EXPECT_EQ(list(ids.output_list).GetItemCount(), 1);
}

TEST_F(SinglePage, TranslatesIntoAChosenOutputOnceTheFormatOfTheInputIsKnown)
{
    browse_output(folder() / "mine.igs");
    drop({folder().write("notes.txt", "text")});
    EXPECT_EQ(output_file(), folder() / "mine.igs");
    EXPECT_FALSE(can_translate());
    choose(ids.input_format, "STEP");
    EXPECT_TRUE(can_translate());
}

TEST_F(SinglePage, AnswersEachCloseOfAFormatBoxOnce)
{
    drop({step_file("part.stp")});
    int closed = 0;
    m_page->Bind(wxEVT_COMBOBOX_CLOSEUP, [&](wxCommandEvent & event) {
        ++closed;
        event.Skip();
    });
    choose(ids.input_format, "STL");
    EXPECT_EQ(closed, 1);
    choose(ids.input_format, "");
    EXPECT_EQ(closed, 2);
    choose(ids.output_format, "BREP");
    EXPECT_EQ(closed, 3);
}
