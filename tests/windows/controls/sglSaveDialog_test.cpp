#include "controls/sglSaveDialog.h"

#include "windows/kit/kitFileChooser.h"
#include "windows/kit/kitWindowTest.h"
#include "wxt/wxtStringConverter.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

/// Presses the platform's own Save as soon as the dialog has the name, so many times. Does so out of the
/// event loop of the dialog: within another one the platform's part does not answer.
class PressesSave {
public:
    PressesSave(wxDialog & dialog, std::string const & name, std::string path, int presses)
        : m_dialog(dialog), m_chooser(dialog), m_path(std::move(path)), m_presses(presses),
          m_timer(g_timeout_add(20, &PressesSave::look, this))
    {
        m_chooser.type_name(name);
    }
    ~PressesSave()
    {
        if (m_timer)
            g_source_remove(m_timer);
    }
    PressesSave(PressesSave const &) = delete;
    PressesSave & operator=(PressesSave const &) = delete;

    int left() const { return m_presses; }

private:
    static int look(void * data)
    {
        auto & self = *static_cast<PressesSave *>(data);
        if (self.m_dialog.IsModal() && --self.m_looks == 0)
            self.m_dialog.EndModal(wxID_ABORT);
        else if (self.m_dialog.IsModal() && self.m_presses > 0 && self.m_chooser.path() == self.m_path) {
            --self.m_presses;
            self.m_chooser.accept();
        }
        return 1;
    }

    wxDialog & m_dialog;
    kitFileChooser m_chooser;
    std::string m_path;
    int m_presses;
    int m_looks = 1000;
    unsigned int m_timer;
};

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

    wxFrame * m_frame = nullptr;
    kitModal m_boxes;
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

TEST_F(SaveDialog, EndsWithThePlatformsOwnSave)
{
    sglSaveDialog dialog(m_frame, "Save", folder().path().string(), "", "Tables|*.rsc", "rsc",
                         wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    PressesSave const user(dialog, "mine", folder() / "mine", 1);
    EXPECT_EQ(dialog.ShowModal(), static_cast<int>(wxID_OK));
    EXPECT_EQ(dialog.chosen_path().str(), folder() / "mine.rsc");
}

TEST_F(SaveDialog, StaysOpenForANoAfterThePlatformsOwnSave)
{
    folder().write("mine.rsc", "old");
    m_boxes.expect_message(wxID_NO);
    m_boxes.expect_message(wxID_YES);
    sglSaveDialog dialog(m_frame, "Save", folder().path().string(), "", "Tables|*.rsc", "rsc",
                         wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    PressesSave const user(dialog, "mine", folder() / "mine", 2);
    EXPECT_EQ(dialog.ShowModal(), static_cast<int>(wxID_OK));
    EXPECT_EQ(user.left(), 0);
    EXPECT_EQ(m_boxes.said().size(), 2u);
}
