#include "sglMergeFiles.h"

#include "windows/kit/kitFileChooser.h"
#include "windows/pages/kitOpenPage.h"

#include <glib.h>
#include <gmock/gmock.h>
#include <set>
#include <wx/filedlg.h>
#include <wx/modalhook.h>
#include <wx/treectrl.h>

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
    /// Double clicks a line of the list, as a user does, and runs the script in the dialog that this opens.
    void double_click(long line, std::function<void(wxDialog &)> const & script)
    {
        wxRect place;
        ASSERT_TRUE(list(files_id).GetItemRect(line, place));
        wxUIActionSimulator simulator;
        simulator.MouseMove(
            list(files_id).ClientToScreen(place.GetPosition() + wxPoint(20, place.height / 2)));
        settle();
        // Whichever of the nested event loops runs, the timer looks for the dialog.
        bool done = false;
        wxTimer look;
        look.Bind(wxEVT_TIMER, [&](wxTimerEvent &) {
            for (wxWindow * const window : wxTopLevelWindows)
                if (auto * const dialog = dynamic_cast<wxDialog *>(window); dialog && dialog->IsModal()) {
                    look.Stop();
                    settle();
                    script(*dialog);
                    done = true;
                    return;
                }
        });
        look.Start(20);
        simulator.MouseDblClick();
        run_until([&] { return done; }, 20, "the dialog");
        settle();
    }
    /// What OK in the resources dialog does when another resource file was loaded in it.
    void take_resource_file(int row, std::string const & name)
    {
        in_next_dialog([this, row, name](wxDialog & dialog) { end_with_resource_file(dialog, row, name); });
    }
    void end_with_resource_file(wxDialog & dialog, int row, std::string const & name)
    {
        const_cast<sglRow &>(m_merge->input_row(row))
            .resource_table()
            .set_resource_file(utString(folder() / name));
        dialog.EndModal(wxID_OK);
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

TEST_F(MergePage, ShowsTheNewResourceFileOfALineInTheLine)
{
    drop({step_file("a.stp"), step_file("b.stp")});
    select(0);
    take_resource_file(0, "mine.rsc");
    press(*m_page, ids.input_resources);
    EXPECT_EQ(cell(files_id, 1, 0), "mine.rsc");

    select(1);
    take_resource_file(1, "other.rsc");
    press(*m_page, ids.input_resources);
    EXPECT_EQ(cell(files_id, 1, 1), "other.rsc");
    EXPECT_EQ(cell(files_id, 1, 0), "mine.rsc");
    EXPECT_EQ(lines(), 2);
    // The upper list goes on showing the file that was staged last, and nothing beside it.
    EXPECT_EQ(list(ids.input_list).GetItemCount(), 1);
    EXPECT_EQ(input_file(), folder() / "b.stp");
    EXPECT_EQ(input_resource(), "step.rsc");
}

TEST_F(MergePage, OpensTheOptionsOfALineWithADoubleClick)
{
    drop({step_file("a.stp")});
    double_click(0, [&](wxDialog & dialog) { end_with_resource_file(dialog, 0, "mine.rsc"); });
    EXPECT_EQ(cell(files_id, 1), "mine.rsc");
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

TEST_F(MergePage, OpensTheOptionsOfALineInItsOwnFormat)
{
    drop({step_file("a.stp"), folder().write("c.stl", "solid c\nendsolid c\n")});
    ASSERT_EQ(input_format(), "STL");
    std::string before, after;
    std::vector<std::string> pages;
    double_click(0, [&](wxDialog & dialog) {
        before = dialog.GetTitle().utf8_string();
        auto & tree = *find<wxTreeCtrl>(dialog, "IDC_OPTIONS_TREE");
        wxTreeItemIdValue cookie;
        for (auto page = tree.GetFirstChild(tree.GetRootItem(), cookie); page.IsOk();
             page = tree.GetNextSibling(page))
            pages.push_back(tree.GetItemText(page).utf8_string());
        choose_menu(dialog, "IDM_OPTIONS_LOAD_DEFAULT");
        after = dialog.GetTitle().utf8_string();
        dialog.EndModal(wxID_CANCEL);
    });
    EXPECT_THAT(before, testing::EndsWith("- step.rsc"));
    EXPECT_THAT(after, testing::EndsWith("/step.rsc"));
    EXPECT_FALSE(pages.empty());
    EXPECT_EQ(std::set<std::string>(pages.begin(), pages.end()).size(), pages.size())
        << "no name is there twice";
}

TEST_F(MergePage, ActsOnALineOnlyWhileOneIsSelected)
{
    drop({step_file("a.stp"), step_file("b.stp")});
    for (bool const selected : {false, true, false}) {
        list(files_id).SetItemState(1, selected ? wxLIST_STATE_SELECTED : 0, wxLIST_STATE_SELECTED);
        settle();
        EXPECT_EQ(can_remove(), selected);
        EXPECT_EQ(enabled(ids.input_resources), selected);
        EXPECT_EQ(enabled("IDC_MULTIPLE_UP"), selected);
        EXPECT_FALSE(enabled("IDC_MULTIPLE_DOWN")) << "it is the last";
    }
    select(0);
    EXPECT_FALSE(enabled("IDC_MULTIPLE_UP"));
    EXPECT_TRUE(enabled("IDC_MULTIPLE_DOWN"));
    // With one more file there is a place below the last.
    select(1);
    drop({step_file("c.stp")});
    EXPECT_TRUE(enabled("IDC_MULTIPLE_DOWN"));
}

TEST_F(MergePage, MovesTheSelectedFileUpAndDown)
{
    drop({step_file("a.stp"), step_file("b.stp"), folder().write("c.stl", "solid c\nendsolid c\n")});
    auto const order = [&] {
        std::string shown, kept;
        for (int line = 0; line < lines(); ++line) {
            shown += std::filesystem::path(cell(files_id, 0, line)).stem().string() + " ";
            shown += cell(files_id, 1, line) + " ";
            kept += std::filesystem::path(m_merge->input_row(line).filename().str()).stem().string() + " ";
            auto const & table = m_merge->input_row(line).resource_table();
            kept += std::filesystem::path(table.resource_file().str()).filename().string() + " ";
        }
        EXPECT_EQ(shown, kept);
        return shown;
    };
    select(2);
    press(*m_page, "IDC_MULTIPLE_UP");
    EXPECT_EQ(order(), "a step.rsc c stl.rsc b step.rsc ");
    press(*m_page, "IDC_MULTIPLE_UP");
    EXPECT_EQ(order(), "c stl.rsc a step.rsc b step.rsc ") << "it stayed selected";
    EXPECT_FALSE(enabled("IDC_MULTIPLE_UP"));
    press(*m_page, "IDC_MULTIPLE_DOWN");
    EXPECT_EQ(order(), "a step.rsc c stl.rsc b step.rsc ");
    EXPECT_EQ(list(files_id).GetSelectedItemCount(), 1);
    EXPECT_EQ(output_file(), folder() / "a.igs");
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
