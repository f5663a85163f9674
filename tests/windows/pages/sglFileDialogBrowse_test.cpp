#include "sdu/sduStartupKeys.h"
#include "windows/kit/kitFileChooser.h"
#include "windows/pages/kitSide.h"

#include <gmock/gmock.h>
#include <wx/filedlg.h>

namespace {

using ::testing::ElementsAre;

constexpr int cad_filter = 0, step_filter = 3, stl_filter = 4, all_filter = 5;

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
    static void expect_folder(wxFileDialog & dialog, std::string const & wanted)
    {
        kitFileChooser const chooser(dialog);
        run_until([&] { return chooser.folder() == wanted; }, 20, "the folder");
        EXPECT_EQ(chooser.folder(), wanted);
    }
    /// The name of the output after that name was typed and that filter chosen, where "part.stl" was offered.
    std::string named(char const * format, std::string const & typed, int filter)
    {
        auto dialog = again(2);
        sglRow row;
        m_box->SetStringSelection(format);
        dialog.create_output_details("STEP", utString(folder() / "part.stp"), row);
        kitModal boxes;
        boxes.expect([&](wxDialog * shown) {
            auto & files = dynamic_cast<wxFileDialog &>(*shown);
            files.SetFilterIndex(filter);
            kitFileChooser const chooser(files);
            chooser.type_name(typed);
            run_until([&] { return chooser.path() == folder() / typed; }, 20, "the name");
            return static_cast<int>(wxID_OK);
        });
        int edited = 0;
        EXPECT_EQ(dialog.output_browse(row, edited), static_cast<int>(wxID_OK));
        std::filesystem::path const path = row.filename().str();
        EXPECT_EQ(path.parent_path(), folder().path());
        return path.filename().string();
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
                    ElementsAre("All CAD Files", testing::StartsWith("BREP Files (*."),
                                testing::StartsWith("IGES Files (*."), testing::StartsWith("STEP Files (*."),
                                testing::StartsWith("STL Files (*."), "All Files (*.*)"));
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
        constexpr std::size_t cad = 0, step = 3, all = 5;
        for (auto const * name : {"part.stp", "PART.STP", "Part.Stp", "a.STEP"})
            EXPECT_TRUE(chooser.shows(step, name)) << name;
        for (auto const * name : {"part.igs", "stp", "part.stpx", "README"})
            EXPECT_FALSE(chooser.shows(step, name)) << name;
        for (auto const * name : {"part.stp", "PART.IGS", "mesh.stl", "a.brep", "b.STEP"})
            EXPECT_TRUE(chooser.shows(cad, name)) << name;
        for (auto const * name : {"README", "notes.txt"})
            EXPECT_FALSE(chooser.shows(cad, name)) << name;
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

TEST_F(Browse, OpensWhereTheLastInputWasChosen)
{
    std::filesystem::create_directory(folder() / "parts");
    auto dialog = side(1);
    kitModal boxes;
    utString file;
    boxes.expect_file(step_file("parts/a.stp"));
    dialog.input_browse(file);
    look(boxes, [&](wxFileDialog & shown) { expect_folder(shown, folder() / "parts"); });
    dialog.input_browse(file);
    m_list->DeleteAllItems();
    look(boxes, [&](wxFileDialog & shown) { expect_folder(shown, folder() / "parts"); });
    dialog.input_browse(file);
}

TEST_F(Browse, OpensInTheFolderOfTheFileThatIsShown)
{
    std::filesystem::create_directory(folder() / "dropped");
    auto dialog = side(1);
    int failed = 0;
    dialog.set_details(utString(step_file("dropped/a.stp")), failed);
    kitModal boxes;
    utString file;
    look(boxes, [&](wxFileDialog & shown) { expect_folder(shown, folder() / "dropped"); });
    dialog.input_browse(file);
}

TEST_F(Browse, OpensWithoutAFolderThatIsNotThereAnyMore)
{
    std::filesystem::create_directory(folder() / "gone");
    auto dialog = side(1);
    kitModal boxes;
    utString file;
    boxes.expect_file(step_file("gone/a.stp"));
    dialog.input_browse(file);
    std::filesystem::remove_all(folder() / "gone");
    look(boxes, [&](wxFileDialog & shown) { EXPECT_EQ(shown.GetDirectory(), ""); });
    dialog.input_browse(file);
}

TEST_F(Browse, OffersTheOutputThatIsProposed)
{
    auto dialog = side(2);
    sglRow row;
    m_box->SetStringSelection("STL");
    dialog.create_output_details("STEP", utString(folder() / "part.stp"), row);
    kitModal boxes;
    look(boxes, [&](wxFileDialog & shown) {
        expect_folder(shown, folder().path().string());
        EXPECT_EQ(kitFileChooser(shown).name(), "part.stl");
    });
    int edited = 0;
    dialog.output_browse(row, edited);
}

TEST_F(Browse, OpensWhereTheLastOutputWentWhereNoneIsProposed)
{
    std::filesystem::create_directory(folder() / "out");
    auto dialog = side(2);
    sglRow row;
    int edited = 0;
    browse_output(dialog, row, folder() / "out/a.stl", edited);
    m_list->DeleteAllItems();
    kitModal boxes;
    look(boxes, [&](wxFileDialog & shown) {
        expect_folder(shown, folder() / "out");
        EXPECT_EQ(kitFileChooser(shown).name(), "");
    });
    dialog.output_browse(row, edited);
}

TEST_F(Browse, GivesANameTheEndingOfTheFilterThatIsChosen)
{
    EXPECT_EQ(named("STL", "typed", step_filter), "typed.stp");
    EXPECT_EQ(named("STL", "typed", cad_filter), "typed.stl") << "the format of the box";
    EXPECT_EQ(named("STL", "typed", all_filter), "typed");
    EXPECT_EQ(named("STL", "typed.machine", step_filter), "typed.machine");
    EXPECT_EQ(named("STL", "part.stl", step_filter), "part.stp") << "the name that was offered";
    EXPECT_EQ(named("STL", "part.stl", stl_filter), "part.stl");
    EXPECT_EQ(named("STL", "other.igs", step_filter), "other.igs") << "an ending of the user's own";
}
