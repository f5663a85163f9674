#include "controls/sglSaveDialog.h"

#include "windows/kit/kitFileChooser.h"
#include "windows/kit/kitWindowTest.h"
#include "windows/program/kitScreen.h"
#include "wxt/wxtStringConverter.h"

#include <gmock/gmock.h>
#include <unistd.h>

namespace {

using ::testing::ElementsAre;

class SaveDialog : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
        // The test drives the dialog itself, of which the platform's part and the common part tell.
        for (int part = 0; part < 2; ++part)
            m_boxes.expect([](wxDialog *) { return static_cast<int>(wxID_NONE); });
    }

    /// What the toolkit sends when the platform's dialog has taken the choice.
    static void accept(wxDialog & dialog)
    {
        wxCommandEvent event(wxEVT_BUTTON, wxID_OK);
        event.SetEventObject(&dialog);
        dialog.ProcessWindowEvent(event);
    }
    /// Types a name into the dialog and presses Save, as often as `presses` says; gives the path that came
    /// out.
    std::string save_as(std::string const & name, long style, int presses = 1, int filter = 0)
    {
        sglSaveDialog dialog(m_frame, "Save", folder().path().string(), "",
                             "Tables (*.rsc)|*.[rR][sS][cC]|All files (*.*)|*", "rsc", style);
        EXPECT_EQ(dialog.GetWindowStyle() & wxFD_OVERWRITE_PROMPT, style & wxFD_OVERWRITE_PROMPT);
        kitFileChooser const below(dialog);
        std::string const wanted = folder() / name;
        dialog.CallAfter([&] {
            dialog.SetFilterIndex(filter);
            below.type_name(name);
            run_until([&] { return below.path() == wanted; }, 20, "the name");
            for (int press = 0; press < presses; ++press) {
                EXPECT_TRUE(dialog.IsModal());
                accept(dialog);
            }
        });
        EXPECT_EQ(dialog.ShowModal(), static_cast<int>(wxID_OK));
        return dialog.chosen_path().str();
    }

    /// Runs `script` with the keys of the user going to the dialog; gives how the dialog ended.
    int show_with_keys(sglSaveDialog & dialog, std::function<void()> const & script)
    {
        dialog.CallAfter([&] {
            run_until([&] { return m_screen.active_title(getpid()) == "Save"; }, 20, "the dialog");
            settle();
            script();
            run_until([&] { return !dialog.IsModal(); }, 20, "the end of the dialog");
            if (dialog.IsModal())
                dialog.EndModal(wxID_ABORT);
        });
        return dialog.ShowModal();
    }
    /// Types a name with keys, over the one that is there.
    void type_name(sglSaveDialog & dialog, char const * name)
    {
        kitFileChooser const below(dialog);
        type(name);
        run_until([&] { return below.path() == folder() / name; }, 20, "the name");
    }

    wxFrame * m_frame = nullptr;
    kitModal m_boxes;
    kitScreen m_screen;
};

} // namespace

TEST_F(SaveDialog, GivesANameWithoutAnExtensionThatOfItsFilter)
{
    EXPECT_EQ(save_as("mine", wxFD_SAVE | wxFD_OVERWRITE_PROMPT), folder() / "mine.rsc");
}

TEST_F(SaveDialog, LeavesAnExtensionAsItIsTyped)
{
    EXPECT_EQ(save_as("mine.txt", wxFD_SAVE), folder() / "mine.txt");
}

TEST_F(SaveDialog, LeavesTheNameAsItIsTypedWhereAllFilesAreChosen)
{
    EXPECT_EQ(save_as("mine", wxFD_SAVE, 1, 1), folder() / "mine");
}

TEST_F(SaveDialog, AsksAboutTheFileThatIsReallyMeantAndStaysOpenForNo)
{
    folder().write("mine.rsc", "old");
    m_boxes.expect_message(wxID_NO);
    m_boxes.expect_message(wxID_YES);
    EXPECT_EQ(save_as("mine", wxFD_SAVE | wxFD_OVERWRITE_PROMPT, 2), folder() / "mine.rsc");
    std::string const question =
        "The file " + folder() / "mine.rsc" + " already exists. Do you want to overwrite it?";
    EXPECT_THAT(m_boxes.said(), ElementsAre(question, question));
    EXPECT_TRUE(m_boxes.styles()[0] & wxYES_NO);
}

TEST_F(SaveDialog, AsksNothingAboutANameThatIsCompletedToANewFile)
{
    folder().write("mine", "of another kind");
    EXPECT_EQ(save_as("mine", wxFD_SAVE | wxFD_OVERWRITE_PROMPT), folder() / "mine.rsc");
    EXPECT_THAT(m_boxes.said(), ElementsAre());
}

TEST_F(SaveDialog, AsksNothingWhereItIsNotToldTo)
{
    folder().write("mine.rsc", "old");
    EXPECT_EQ(save_as("mine", wxFD_SAVE), folder() / "mine.rsc");
    EXPECT_THAT(m_boxes.said(), ElementsAre());
}

TEST_F(SaveDialog, MakesNoNameOutOfAPathThatTheToolkitDoesNotGive)
{
    std::string const place = folder() / "part \xff";
    std::filesystem::create_directory(place);
    sglSaveDialog dialog(m_frame, "Save", wxtStringConverter::path_to_wx(utString(place)), "", "Tables|*.rsc",
                         "rsc", wxFD_SAVE);
    dialog.CallAfter([&] {
        kitFileChooser const below(dialog);
        below.type_name("mine");
        run_until([&] { return below.path() == place + "/mine"; }, 20, "the path");
        accept(dialog);
    });
    EXPECT_EQ(dialog.ShowModal(), static_cast<int>(wxID_OK));
    std::string const path = dialog.chosen_path().str();
    EXPECT_TRUE(path == place + "/mine.rsc" || path.empty()) << path;
}

TEST_F(SaveDialog, EndsWithANameThatIsTypedAndEnter)
{
    sglSaveDialog dialog(m_frame, "Save", folder().path().string(), "", "Tables|*.rsc", "rsc",
                         wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    EXPECT_EQ(show_with_keys(dialog,
                             [&] {
                                 type_name(dialog, "mine");
                                 key(WXK_RETURN);
                             }),
              static_cast<int>(wxID_OK));
    EXPECT_EQ(dialog.chosen_path().str(), folder() / "mine.rsc");
}

TEST_F(SaveDialog, EndsWithTheKeyOfItsButton)
{
    sglSaveDialog dialog(m_frame, "Save", folder().path().string(), "", "Tables|*.rsc", "rsc", wxFD_SAVE);
    EXPECT_EQ(show_with_keys(dialog,
                             [&] {
                                 type_name(dialog, "mine");
                                 key('S', wxMOD_ALT);
                             }),
              static_cast<int>(wxID_OK));
    EXPECT_EQ(dialog.chosen_path().str(), folder() / "mine.rsc");
}

TEST_F(SaveDialog, StaysForANoAfterEnterUntilItIsCancelled)
{
    folder().write("mine.rsc", "old");
    m_boxes.expect_message(wxID_NO);
    sglSaveDialog dialog(m_frame, "Save", folder().path().string(), "", "Tables|*.rsc", "rsc",
                         wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    EXPECT_EQ(show_with_keys(dialog,
                             [&] {
                                 type_name(dialog, "mine");
                                 key(WXK_RETURN);
                                 run_until([&] { return !m_boxes.said().empty(); }, 20, "the question");
                                 settle();
                                 EXPECT_TRUE(dialog.IsModal());
                                 key(WXK_ESCAPE);
                             }),
              static_cast<int>(wxID_CANCEL));
    EXPECT_THAT(m_boxes.said(), ElementsAre("The file " + folder() / "mine.rsc" +
                                            " already exists. Do you want to overwrite it?"));
}
