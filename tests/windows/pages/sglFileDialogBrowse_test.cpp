#include "sdu/sduStartupKeys.h"
#include "windows/kit/kitFileChooser.h"
#include "windows/pages/kitSide.h"

#include <gmock/gmock.h>
#include <wx/filedlg.h>

namespace {

using ::testing::ElementsAre;

class Browse : public kitSideTest {
protected:
    /// Answers the next file dialog with Cancel after a look at it.
    static void look(kitModal & boxes, std::function<void(wxFileDialog &)> const & at)
    {
        boxes.expect([at](wxDialog * dialog) {
            at(dynamic_cast<wxFileDialog &>(*dialog));
            return static_cast<int>(wxID_CANCEL);
        });
    }
    std::string filter_of_input()
    {
        std::string label;
        kitModal boxes;
        look(boxes, [&](wxFileDialog & dialog) { label = kitFileChooser(dialog).label(); });
        utString file;
        auto dialog = m_list->GetColumnCount() ? again(1) : side(1);
        EXPECT_EQ(dialog.input_browse(file), static_cast<int>(wxID_CANCEL));
        return label;
    }
    sglFileDialog again(unsigned int type)
    {
        m_list->DeleteAllColumns();
        return side(type);
    }
    int browse_output(sglFileDialog & dialog, sglRow & row, std::string const & path, int & edited)
    {
        kitModal boxes;
        boxes.expect_file(path);
        return dialog.output_browse(row, edited);
    }
    /// An output side whose row has options that the user has set.
    sglFileDialog edited_output(sglRow & row)
    {
        auto dialog = side(2);
        m_box->SetStringSelection("STL");
        dialog.create_output_details("STEP", "/data/part.stp", row);
        row.initialise(dialog.dlls(), *m_box, *m_list, 0);
        EXPECT_TRUE(row.resource_table().add_resource("stlWriteForm", "text"));
        return dialog;
    }
};

} // namespace

TEST_F(Browse, AsksForAnInputFileAndShowsIt)
{
    auto dialog = side(1);
    auto const path = step_file("part.stp");
    kitModal boxes;
    boxes.expect_file(path);
    utString file;
    EXPECT_EQ(dialog.input_browse(file), static_cast<int>(wxID_OK));
    EXPECT_EQ(file, utString(path));
    EXPECT_EQ(dialog.file_name(), utString(path));
    EXPECT_EQ(dialog.format(), utString("STEP"));
    EXPECT_EQ(dialog.num_selected(), 1);
    boxes.expect_file_cancelled();
    EXPECT_EQ(dialog.input_browse(file), static_cast<int>(wxID_CANCEL));
    EXPECT_EQ(dialog.num_selected(), 0);
    EXPECT_EQ(dialog.file_name(), utString(path));
}

TEST_F(Browse, OffersTheFormatsInOrderAndAllFilesLast)
{
    auto dialog = side(1);
    kitModal boxes;
    utString file;
    look(boxes, [](wxFileDialog & shown) {
        EXPECT_EQ(shown.GetMessage(), "Input File");
        EXPECT_TRUE(shown.HasFlag(wxFD_FILE_MUST_EXIST));
        EXPECT_FALSE(kitFileChooser(shown).several());
        EXPECT_THAT(kitFileChooser(shown).labels(),
                    ElementsAre(testing::StartsWith("BREP Files (*."), testing::StartsWith("IGES Files (*."),
                                testing::StartsWith("STEP Files (*."), testing::StartsWith("STL Files (*."),
                                "All Files (*.*)"));
    });
    dialog.input_browse(file);
}

TEST_F(Browse, ShowsNamesInCapitalsAndWithAllFilesThoseWithoutADot)
{
    auto dialog = side(1);
    kitModal boxes;
    utString file;
    look(boxes, [](wxFileDialog & shown) {
        kitFileChooser const chooser(shown);
        constexpr std::size_t step = 2, all = 4;
        for (auto const * name : {"part.stp", "PART.STP", "Part.Stp", "a.STEP"})
            EXPECT_TRUE(chooser.shows(step, name)) << name;
        for (auto const * name : {"part.igs", "stp", "part.stpx", "README"})
            EXPECT_FALSE(chooser.shows(step, name)) << name;
        for (auto const * name : {"README", "part.stp", ".hidden", "a.b.c"})
            EXPECT_TRUE(chooser.shows(all, name)) << name;
    });
    dialog.input_browse(file);
}

TEST_F(Browse, OpensOnTheFormatOfTheBoxThenThePreferredOneThenAllFiles)
{
    EXPECT_EQ(filter_of_input(), "All Files (*.*)");
    app().startup_info().add_field_without_saving(sduPREFERREDINPUTFORMAT, "IGES");
    EXPECT_THAT(filter_of_input(), testing::StartsWith("IGES Files"));
    m_box->SetStringSelection("STEP");
    EXPECT_THAT(filter_of_input(), testing::StartsWith("STEP Files"));
    m_box->add_and_select_unknown();
    app().startup_info().add_field_without_saving(sduPREFERREDINPUTFORMAT, "NOSUCH");
    EXPECT_EQ(filter_of_input(), "All Files (*.*)");
}

TEST_F(Browse, TakesSeveralFilesWithoutShowingThem)
{
    auto dialog = side(1);
    dialog.allow_multiple_files(0);
    auto const a = step_file("a.stp"), b = step_file("b.stp");
    kitModal boxes;
    boxes.expect([&](wxDialog * shown) {
        auto & files = dynamic_cast<wxFileDialog &>(*shown);
        kitFileChooser const chooser(files);
        EXPECT_TRUE(chooser.several());
        auto const selected = [&] {
            wxArrayString paths;
            files.GetPaths(paths);
            return paths.size();
        };
        files.SetPath(a);
        files.Show();
        run_until([&] { return selected() == 1; }, 20, "the first file");
        // There is no selection of all before the folder has been read.
        run_until([&] { return chooser.select_all(), selected() == 2; }, 20, "both files");
        files.Hide();
        return static_cast<int>(wxID_OK);
    });
    utString file("before");
    EXPECT_EQ(dialog.input_browse(file), static_cast<int>(wxID_OK));
    ASSERT_EQ(dialog.num_selected(), 2);
    EXPECT_THAT(std::vector<utString>(dialog.selected_files().begin(), dialog.selected_files().end()),
                testing::UnorderedElementsAre(utString(a), utString(b)));
    EXPECT_EQ(file, utString("before"));
    EXPECT_EQ(m_list->GetItemCount(), 0);
}

TEST_F(Browse, ShowsTheOneFileWhereSeveralAreAllowed)
{
    auto dialog = side(1);
    dialog.allow_multiple_files(1);
    auto const path = step_file("a.stp");
    kitModal boxes;
    boxes.expect([&](wxDialog * shown) {
        auto & files = dynamic_cast<wxFileDialog &>(*shown);
        files.SetPath(path);
        run_until(
            [&] {
                wxArrayString paths;
                files.GetPaths(paths);
                return paths.size() == 1;
            },
            20, "the selection");
        return static_cast<int>(wxID_OK);
    });
    utString file;
    EXPECT_EQ(dialog.input_browse(file), static_cast<int>(wxID_OK));
    EXPECT_EQ(file, utString(path));
    EXPECT_EQ(dialog.file_name(), utString(path));
}

TEST_F(Browse, TakesAnOutputFileAndItsFormat)
{
    auto dialog = side(2);
    sglRow row;
    int edited = 0;
    auto const path = folder() / "out.STL";
    EXPECT_EQ(browse_output(dialog, row, path, edited), static_cast<int>(wxID_OK));
    EXPECT_EQ(edited, 1);
    EXPECT_EQ(dialog.format(), utString("STL"));
    EXPECT_EQ(row.filename(), utString(path));
    EXPECT_EQ(row.file_type(), utString("STL"));
    EXPECT_FALSE(row.invalid());
    EXPECT_TRUE(m_button->IsEnabled());
    EXPECT_EQ(m_box->FindString("unknown format"), -1);
    EXPECT_FALSE(folder().exists("out.STL"));
}

TEST_F(Browse, AsksForAnOutputFileWithTheQuestionBeforeOverwriting)
{
    auto dialog = side(2);
    app().startup_info().add_field_without_saving(sduPREFERREDOUTPUTFORMAT, "BREP");
    kitModal boxes;
    look(boxes, [](wxFileDialog & shown) {
        EXPECT_EQ(shown.GetMessage(), "Output File");
        EXPECT_TRUE(shown.HasFlag(wxFD_SAVE));
        EXPECT_TRUE(shown.HasFlag(wxFD_OVERWRITE_PROMPT));
        EXPECT_THAT(kitFileChooser(shown).label(), testing::StartsWith("BREP Files"));
    });
    sglRow row;
    int edited = 0;
    EXPECT_EQ(dialog.output_browse(row, edited), static_cast<int>(wxID_CANCEL));
    EXPECT_EQ(edited, 0);
    EXPECT_EQ(m_list->GetItemCount(), 0);
}

TEST_F(Browse, AcceptsAnOutputFileThatNoTranslatorClaimsAndKeepsTheFormat)
{
    auto dialog = side(2);
    sglRow row;
    int edited = 0;
    m_box->SetStringSelection("STL");
    auto const path = folder() / "out.print";
    EXPECT_EQ(browse_output(dialog, row, path, edited), static_cast<int>(wxID_OK));
    EXPECT_EQ(edited, 1);
    EXPECT_EQ(cell(0), path);
    EXPECT_EQ(dialog.format(), utString("STL"));
    EXPECT_EQ(row.file_type(), utString("STL"));
    EXPECT_FALSE(row.invalid());
    EXPECT_TRUE(m_button->IsEnabled());
}

TEST_F(Browse, RefusesAnOutputFileThatCannotBeWritten)
{
    auto dialog = side(2);
    sglRow row;
    int edited = 0;
    kitModal boxes;
    boxes.expect_file("/proc/out.stl");
    boxes.expect_message(wxID_OK);
    EXPECT_EQ(dialog.output_browse(row, edited), static_cast<int>(wxID_CANCEL));
    EXPECT_EQ(boxes.said().front(), "No write access granted for the selected file");
    EXPECT_TRUE(boxes.styles().front() & wxICON_ERROR);
    EXPECT_EQ(edited, 0);
    EXPECT_EQ(m_list->GetItemCount(), 0);
    EXPECT_TRUE(row.invalid());
}

TEST_F(Browse, DropsTheChosenFileWhereTheUserKeepsTheOptions)
{
    sglRow row;
    auto dialog = edited_output(row);
    int edited = 0;
    kitModal boxes;
    boxes.expect_file(folder() / "out.igs");
    boxes.expect_message(wxID_NO);
    EXPECT_EQ(dialog.output_browse(row, edited), static_cast<int>(wxID_OK));
    EXPECT_EQ(edited, 1);
    EXPECT_EQ(cell(0), "/data/part.stl");
    EXPECT_EQ(dialog.format(), utString("STL"));
    EXPECT_TRUE(row.resource_table().modified());
    EXPECT_TRUE(m_button->IsEnabled());
}

TEST_F(Browse, TakesTheChosenFileWhereTheUserGivesUpTheOptions)
{
    sglRow row;
    auto dialog = edited_output(row);
    int edited = 0;
    kitModal boxes;
    boxes.expect_file(folder() / "out.igs");
    boxes.expect_message(wxID_YES);
    EXPECT_EQ(dialog.output_browse(row, edited), static_cast<int>(wxID_OK));
    EXPECT_EQ(row.file_type(), utString("IGES"));
    EXPECT_EQ(row.filename(), utString(folder() / "out.igs"));
    EXPECT_FALSE(row.resource_table().modified());
}
