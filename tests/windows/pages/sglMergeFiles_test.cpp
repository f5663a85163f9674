#include "sglMergeFiles.h"

#include "windows/kit/kitFileChooser.h"
#include "windows/pages/kitOpenPage.h"

#include <glib.h>
#include <gmock/gmock.h>
#include <wx/filedlg.h>
#include <wx/modalhook.h>

namespace {

constexpr auto & ids = kit_merge_page;
constexpr char const * files_id = "IDC_MULTIPLE_INPUT_FILE_LIST";

/// Counts the dialogs that are opened, and answers them all at once.
class DialogCount : private wxModalDialogHook {
public:
    DialogCount() { Register(); }
    int count() const { return m_count; }

private:
    int Enter(wxDialog *) override
    {
        ++m_count;
        return wxID_CANCEL;
    }
    int m_count = 0;
};

class MergePage : public kitOpenPageTest {
protected:
    void SetUp() override
    {
        kitOpenPageTest::SetUp();
        m_merge = open<sglMergeFiles>(ids);
    }
    /// Browses for a file in a dialog in which several can be chosen.
    void stage(std::string const & file)
    {
        kitModal boxes;
        boxes.expect([&](wxDialog * shown) {
            auto & dialog = dynamic_cast<wxFileDialog &>(*shown);
            dialog.SetPath(wxtStringConverter::to_wx(std::string_view(file)));
            run_until([&] { return paths(dialog).size() == 1; }, 20, "the file");
            return static_cast<int>(wxID_OK);
        });
        press(*m_page, ids.input_browse);
    }
    static wxArrayString paths(wxFileDialog & dialog)
    {
        wxArrayString chosen;
        dialog.GetPaths(chosen);
        return chosen;
    }
    bool can_add() { return enabled("IDC_MULTIPLE_ADD"); }
    bool can_remove() { return enabled("IDC_MULTIPLE_REMOVE"); }
    void add() { press(*m_page, "IDC_MULTIPLE_ADD"); }
    int rows() { return m_merge->num_input_rows(); }
    int lines() { return list(files_id).GetItemCount(); }
    void select(long line)
    {
        list(files_id).SetItemState(line, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
        settle();
    }
    /// What OK in the resources dialog does when another resource file was loaded in it.
    void take_resource_file(int row, std::string const & name)
    {
        in_next_dialog([this, row, name](wxDialog & dialog) {
            const_cast<sglRow &>(m_merge->input_row(row))
                .resource_table()
                .set_resource_file(utString(folder() / name));
            dialog.EndModal(wxID_OK);
        });
    }
    sglMergeFiles * m_merge = nullptr;
};

} // namespace

TEST_F(MergePage, StartsWithoutFilesAndNothingToPressButBrowse)
{
    EXPECT_EQ(m_merge->caption(), utString("Multiple Files"));
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(list(files_id).GetColumnCount(), 2);
    EXPECT_FALSE(can_add());
    EXPECT_FALSE(can_remove());
    EXPECT_FALSE(can_translate());
    EXPECT_FALSE(enabled(ids.input_resources));
    EXPECT_FALSE(enabled(ids.output_resources));
    EXPECT_TRUE(enabled(ids.input_browse));
}

TEST_F(MergePage, StagesAFileAndAddsItOnRequest)
{
    stage(step_file("a.stp"));
    EXPECT_EQ(input_file(), folder() / "a.stp");
    EXPECT_EQ(output_file(), folder() / "a.igs");
    EXPECT_TRUE(can_add());
    EXPECT_FALSE(can_translate());
    EXPECT_EQ(rows(), 0);
    add();
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(cell(files_id, 0), folder() / "a.stp");
    EXPECT_EQ(cell(files_id, 1), "step.rsc");
    EXPECT_EQ(m_merge->input_row(0).file_type(), utString("STEP"));
    EXPECT_FALSE(can_add());
    EXPECT_TRUE(can_translate());
}

TEST_F(MergePage, KeepsTheNameProposedForTheFirstFile)
{
    stage(step_file("a.stp"));
    add();
    stage(step_file("b.stp"));
    EXPECT_EQ(output_file(), folder() / "a.igs");
    add();
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(output_file(), folder() / "a.igs");
}

TEST_F(MergePage, RefusesAFileThatIsInTheListAlready)
{
    stage(step_file("a.stp"));
    add();
    stage(folder() / "a.stp");
    EXPECT_TRUE(can_add());
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    add();
    EXPECT_EQ(boxes.said()[0], "Duplicate file name");
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(lines(), 1);
    EXPECT_FALSE(can_add());
    EXPECT_TRUE(can_translate());
}

TEST_F(MergePage, AddsSeveralChosenFilesAndListsThoseOfUnknownFormat)
{
    std::filesystem::create_directory(folder() / "in");
    step_file("in/a.stp");
    step_file("in/b.stp");
    auto const notes = folder().write("in/notes.txt", "text");
    kitModal boxes;
    boxes.expect([&](wxDialog * shown) {
        auto & dialog = dynamic_cast<wxFileDialog &>(*shown);
        dialog.SetFilterIndex(5);
        dialog.SetPath(wxtStringConverter::to_wx(std::string_view(notes)));
        dialog.Show();
        run_until([&] { return paths(dialog).size() == 1; }, 20, "the first file");
        kitFileChooser const chooser(dialog);
        run_until([&] { return chooser.select_all(), paths(dialog).size() == 3; }, 20, "all files");
        dialog.Hide();
        return static_cast<int>(wxID_OK);
    });
    boxes.expect_message(wxID_OK);
    press(*m_page, ids.input_browse);
    ASSERT_EQ(boxes.said().size(), 1u);
    EXPECT_THAT(boxes.said()[0], testing::EndsWith(" was unable to determine the format of these items "
                                                   ":\n\n" +
                                                   notes + "\n\nThese items have not been added."));
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(lines(), 2);
    EXPECT_TRUE(can_translate());
}

TEST_F(MergePage, AddsEveryDroppedFileAtOnce)
{
    drop({step_file("a.stp"), "", step_file("b.stp"), folder().write("c.stl", "solid c\nendsolid c\n")});
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(cell(files_id, 0, 2), folder() / "c.stl");
    EXPECT_EQ(cell(files_id, 1, 2), "stl.rsc");
    EXPECT_EQ(m_merge->input_row(2).file_type(), utString("STL"));
    EXPECT_EQ(output_file(), folder() / "a.igs");
    EXPECT_FALSE(can_add());
    EXPECT_TRUE(can_translate());
}

TEST_F(MergePage, TellsOfEachDuplicateAndOfAFolderInADrop)
{
    std::filesystem::create_directory(folder() / "parts");
    auto const file = step_file("a.stp");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    boxes.expect_message(wxID_OK);
    boxes.expect_message(wxID_OK);
    drop({file, file, folder() / "parts", file});
    EXPECT_EQ(boxes.said()[0], "Duplicate file name");
    EXPECT_EQ(boxes.said()[1], "Duplicate file name");
    EXPECT_THAT(boxes.said()[2], testing::HasSubstr(folder() / "parts"));
    EXPECT_EQ(rows(), 1);
}

TEST_F(MergePage, TurnsTranslateOffAndAddOnWhenTheLastLineIsRemoved)
{
    drop({step_file("a.stp")});
    select(0);
    EXPECT_TRUE(can_remove());
    EXPECT_TRUE(enabled(ids.input_resources));
    press(*m_page, "IDC_MULTIPLE_REMOVE");
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(lines(), 0);
    EXPECT_FALSE(can_translate());
    EXPECT_TRUE(can_add());
    EXPECT_FALSE(can_remove());
    EXPECT_FALSE(enabled(ids.input_resources));
    add();
    EXPECT_EQ(rows(), 1);
}

TEST_F(MergePage, AddsNothingWhereNothingIsStaged)
{
    find<wxButton>(*m_page, "IDC_MULTIPLE_REMOVE")->Enable();
    press(*m_page, "IDC_MULTIPLE_REMOVE");
    EXPECT_TRUE(can_add());
    add();
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(lines(), 0);
    EXPECT_FALSE(can_add());
    EXPECT_FALSE(can_translate());
}

TEST_F(MergePage, RemovesTheSelectedLineAndItsRow)
{
    drop({step_file("a.stp"), step_file("b.stp"), step_file("c.stp")});
    select(1);
    press(*m_page, "IDC_MULTIPLE_REMOVE");
    ASSERT_EQ(rows(), 2);
    EXPECT_EQ(m_merge->input_row(1).filename(), utString(folder() / "c.stp"));
    EXPECT_EQ(cell(files_id, 0, 1), folder() / "c.stp");
    EXPECT_TRUE(can_translate());
}

TEST_F(MergePage, OpensNoOptionsWithoutASelectedLine)
{
    drop({step_file("a.stp")});
    find<wxButton>(*m_page, ids.input_resources)->Enable();
    DialogCount dialogs;
    press(*m_page, ids.input_resources);
    EXPECT_EQ(dialogs.count(), 0);
    EXPECT_EQ(input_resource(), "step.rsc");
    EXPECT_EQ(list(ids.input_list).GetItemCount(), 1);
}

TEST_F(MergePage, ShowsTheNewResourceFileOfALineAmongTheInputDetails)
{
    drop({step_file("a.stp"), step_file("b.stp")});
    select(0);
    take_resource_file(0, "mine.rsc");
    press(*m_page, ids.input_resources);
    EXPECT_EQ(cell(ids.input_list, 1), "mine.rsc");
    EXPECT_EQ(cell(files_id, 1, 0), "step.rsc");

    select(1);
    take_resource_file(1, "other.rsc");
    press(*m_page, ids.input_resources);
    EXPECT_EQ(list(ids.input_list).GetItemCount(), 2);
    EXPECT_EQ(cell(ids.input_list, 1, 0), "mine.rsc");
    EXPECT_EQ(cell(files_id, 1, 1), "step.rsc");
}

TEST_F(MergePage, OpensTheOptionsOfALineThatIsActivated)
{
    drop({step_file("a.stp")});
    select(0);
    take_resource_file(0, "mine.rsc");
    wxListEvent event(wxEVT_LIST_ITEM_ACTIVATED, list(files_id).GetId());
    event.SetEventObject(&list(files_id));
    list(files_id).ProcessWindowEvent(event);
    EXPECT_EQ(cell(ids.input_list, 1), "mine.rsc");
}

TEST_F(MergePage, OffersToAddAFileOnceItsFormatIsChosen)
{
    stage(folder().write("notes.txt", "text"));
    EXPECT_FALSE(can_add());
    choose(ids.input_format, "");
    EXPECT_FALSE(can_add());
    choose(ids.input_format, "STEP");
    EXPECT_TRUE(can_add());
    EXPECT_EQ(input_resource(), "step.rsc");
    add();
    EXPECT_EQ(m_merge->input_row(0).file_type(), utString("STEP"));
    EXPECT_FALSE(can_translate());
}

TEST_F(MergePage, RenamesTheOutputAfterItsFormat)
{
    drop({step_file("a.stp")});
    choose(ids.output_format, "STL");
    EXPECT_EQ(output_file(), folder() / "a.stl");
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_TRUE(can_translate());
}

TEST_F(MergePage, MergesFilesOfThreeFormatsIntoOneAssembly)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    drop({sample("step/screw.step", "screw.step"), sample("occ/mal_ecrou.brep", "nut.brep"),
          sample("iges/hammer.iges", "hammer.iges")});
    ASSERT_EQ(rows(), 3);
    browse_output(folder() / "whole.step");
    EXPECT_EQ(output_format(), "STEP");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    EXPECT_EQ(last_record().status(0), sdbProgressCompleted);
    auto const written = folder().read("whole.step");
    int components = 0;
    for (char const * const name : {"screw", "nut", "hammer"}) {
        auto const text = "NEXT_ASSEMBLY_USAGE_OCCURRENCE(";
        for (auto at = written.find(text); at != std::string::npos; at = written.find(text, at + 1)) {
            auto const end = written.find(';', at);
            if (written.substr(at, end - at).find(std::string("'") + name + "'") != std::string::npos) {
                ++components;
                break;
            }
        }
    }
    EXPECT_EQ(components, 3);
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(lines(), 3);
}

TEST_F(MergePage, WritesNothingWhenOneOfTheFilesHasVanished)
{
    drop({step_file("a.stp"), step_file("b.stp")});
    std::filesystem::remove(folder() / "a.stp");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    EXPECT_THAT(boxes.said()[0], testing::HasSubstr(folder() / "a.stp"));
    EXPECT_FALSE(folder().exists("a.igs"));
    EXPECT_TRUE(folder().exists("b.stp"));
}

TEST_F(MergePage, OpensTheOptionsOfALineWithTheFormatInTheBox)
{
    drop({step_file("a.stp"), folder().write("c.stl", "solid c\nendsolid c\n")});
    ASSERT_EQ(input_format(), "STL");
    select(0);
    std::string before, after;
    in_next_dialog([&](wxDialog & dialog) {
        before = dialog.GetTitle().utf8_string();
        choose_menu(dialog, "IDM_OPTIONS_LOAD_DEFAULT");
        after = dialog.GetTitle().utf8_string();
        dialog.EndModal(wxID_CANCEL);
    });
    press(*m_page, ids.input_resources);
    EXPECT_THAT(before, testing::EndsWith("- step.rsc"));
    EXPECT_THAT(after, testing::EndsWith("/stl.rsc"));
}

TEST_F(MergePage, ComparesWholeNamesWhenItLooksForDuplicates)
{
    kitModal const no_boxes;
    drop({step_file("a.stp.stp"), step_file("a.stp")});
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(lines(), 2);
}

TEST_F(MergePage, LoadsTheFormatOfTheInputWhenThatOfTheOutputChanges)
{
    drop({step_file("a.stp")});
    struct Seen {
        sglComboBox & box;
        std::string text;
    } seen{box(ids.input_format), ""};
    auto & output = box(ids.output_format);
    output.SetStringSelection("STL");
    settle();
    g_idle_add(
        [](void * data) -> gboolean {
            auto & what = *static_cast<Seen *>(data);
            what.text = what.box.GetValue().utf8_string();
            return G_SOURCE_REMOVE;
        },
        &seen);
    wxCommandEvent event(wxEVT_COMBOBOX_CLOSEUP, output.GetId());
    event.SetEventObject(&output);
    m_page->ProcessWindowEvent(event);
    EXPECT_EQ(seen.text, "Loading DLL...");
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_EQ(output_file(), folder() / "a.stl");
}

TEST_F(MergePage, ProposesNoOutputAfterAFirstFileOfUnknownFormat)
{
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    drop({folder().write("notes.txt", "text")});
    drop({step_file("a.stp")});
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(output_file(), "");
    EXPECT_FALSE(can_translate());
}

TEST_F(MergePage, AddsNoFileThatItNoLongerShows)
{
    stage(step_file("a.stp"));
    EXPECT_TRUE(can_add());
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    drop({folder().write("notes.txt", "text")});
    EXPECT_EQ(input_file(), folder() / "notes.txt");
    EXPECT_FALSE(can_add());
    EXPECT_EQ(rows(), 0);
}

TEST_F(MergePage, TakesNoInputWhileItAddsSeveralFiles)
{
    kitModal const no_boxes;
    struct Seen {
        wxListCtrl & list;
        bool enabled = true;
    } seen{list(files_id)};
    g_idle_add(
        [](void * data) -> gboolean {
            auto & what = *static_cast<Seen *>(data);
            what.enabled = what.list.IsEnabled();
            return G_SOURCE_REMOVE;
        },
        &seen);
    drop({step_file("a.stp"), step_file("b.stp")});
    EXPECT_FALSE(seen.enabled);
    EXPECT_TRUE(list(files_id).IsEnabled());
    EXPECT_EQ(rows(), 2);
}
