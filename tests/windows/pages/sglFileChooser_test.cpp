#include "sglFileChooser.h"

#include "sglDialogFilterIndexSet.h"
#include "windows/kit/kitFileChooser.h"
#include "windows/kit/kitWindowTest.h"

#include <wx/dirdlg.h>
#include <wx/filedlg.h>

namespace {

class FileChooser : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
    }
    wxFrame * m_frame = nullptr;
    kitModal m_boxes;
};

} // namespace

TEST_F(FileChooser, GivesAnInputFileThatWasChosen)
{
    sglWxFileChooser const chooser(m_frame);
    auto const path = folder().write("in.txt", "");
    utString file;
    m_boxes.expect_file(path);
    EXPECT_EQ(chooser.choose_input_file("Texts (*.txt)|*.txt||", file), 1);
    EXPECT_EQ(file, utString(path));
    m_boxes.expect_file_cancelled();
    EXPECT_EQ(chooser.choose_input_file("Texts (*.txt)|*.txt||", file), 0);
    EXPECT_EQ(file, utString());
}

TEST_F(FileChooser, AsksBeforeOverwritingOnlyWhereItIsToldTo)
{
    sglIFileChooser const & chooser = sglWxFileChooser(m_frame);
    utString file;
    for (int const confirm : {0, 1}) {
        m_boxes.expect([&](wxDialog * dialog) {
            auto & files = dynamic_cast<wxFileDialog &>(*dialog);
            EXPECT_EQ(files.GetMessage(), "Output File");
            EXPECT_TRUE(files.HasFlag(wxFD_SAVE));
            EXPECT_EQ(files.HasFlag(wxFD_OVERWRITE_PROMPT), confirm != 0);
            return static_cast<int>(wxID_CANCEL);
        });
        EXPECT_EQ(chooser.choose_output_file("Texts|*.txt", confirm, file), 0);
    }
}

TEST_F(FileChooser, GivesADirectoryThatWasChosen)
{
    sglWxFileChooser const chooser(m_frame);
    utString directory("before");
    m_boxes.expect([&](wxDialog * dialog) {
        auto & directories = dynamic_cast<wxDirDialog &>(*dialog);
        EXPECT_EQ(directories.GetMessage(), "Select a directory");
        directories.SetPath(folder().path().string());
        kitFileChooser const below(directories);
        run_until([&] { return below.path() == folder().path().string(); }, 20, "the directory");
        below.accept();
        return static_cast<int>(wxID_OK);
    });
    EXPECT_EQ(chooser.choose_output_directory(directory), 1);
    EXPECT_EQ(directory, utString(folder().path().string()));
    m_boxes.expect([](wxDialog *) { return static_cast<int>(wxID_CANCEL); });
    EXPECT_EQ(sglBrowseDialog(m_frame, directory), 0);
    EXPECT_EQ(directory, utString());
}

TEST_F(FileChooser, OpensOnTheLastFilterWhereThatOfAnIndexIsMissing)
{
    wxFileDialog dialog(m_frame, "Files", "", "", "A|*.a|B|*.b|All|*", wxFD_OPEN);
    sglDialogFilterIndexSet const index(&dialog);
    for (auto const & [asked, label] : {std::pair{0, "A"}, std::pair{1, "B"}, std::pair{2, "All"},
                                        std::pair{3, "All"}, std::pair{-2, "All"}}) {
        index.set_filter_index(asked);
        EXPECT_EQ(kitFileChooser(dialog).label(), label) << asked;
    }
}
