// The question before an output that exists is overwritten: whatever the way by which it got its name.

#include "sglMergeFiles.h"
#include "sglSingleFile.h"
#include "windows/pages/kitOpenPage.h"

#include <gmock/gmock.h>

namespace {

class ExistingOutput : public kitOpenPageTest {
protected:
    /// Presses Translate and answers No to the question about the file, which stays as it is.
    void expect_question_about(std::string const & name)
    {
        kitModal boxes;
        boxes.expect_message(wxID_NO);
        m_frame->CallAfter([] {
            if (!progress_dialog())
                return;
            ADD_FAILURE() << "it translates without a question";
            run_until([] { return find<wxWindow>(*progress_dialog(), "IDC_PROGRESS_OK")->IsEnabled(); }, 60,
                      "the end of the translation");
            press(*progress_dialog(), "IDC_PROGRESS_OK");
        });
        press(*m_page, m_ids.translate);
        settle();
        EXPECT_THAT(boxes.said(), testing::ElementsAre("The file " + (folder() / name) +
                                                       " already exists. Do you want to overwrite it?"));
        ASSERT_EQ(boxes.styles().size(), 1u);
        EXPECT_TRUE(boxes.styles()[0] & wxNO_DEFAULT) << "Enter alone would overwrite the file";
        EXPECT_EQ(folder().read(name), "precious");
        EXPECT_FALSE(progress_dialog());
    }
    /// Presses Translate and gives what is said, which is how the translation ended.
    std::string translated()
    {
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        translate();
        return boxes.said().empty() ? "" : boxes.said()[0];
    }
    std::string precious(std::string const & name) { return folder().write(name, "precious"); }
};

} // namespace

TEST_F(ExistingOutput, OfAChangedFormatIsAskedAbout)
{
    open<sglSingleFile>(kit_single_page);
    precious("mine.stl");
    drop({step_file("part.stp")});
    browse_output(folder() / "mine.igs");
    choose(m_ids.output_format, "STL");
    ASSERT_EQ(output_file(), folder() / "mine.stl");
    expect_question_about("mine.stl");
}

TEST_F(ExistingOutput, ProposedForAMergeIsAskedAbout)
{
    open<sglMergeFiles>(kit_merge_page);
    precious("a.igs");
    drop({step_file("a.stp"), step_file("b.stp")});
    ASSERT_EQ(output_file(), folder() / "a.igs");
    expect_question_about("a.igs");
}

TEST_F(ExistingOutput, ThatCameAfterItsNameWasChosenIsAskedAbout)
{
    open<sglSingleFile>(kit_single_page);
    drop({step_file("part.stp")});
    browse_output(folder() / "mine.igs");
    precious("mine.igs");
    expect_question_about("mine.igs");
}

TEST_F(ExistingOutput, ConfirmedInTheFileDialogIsNotAskedAboutAgain)
{
    open<sglSingleFile>(kit_single_page);
    precious("mine.igs");
    drop({step_file("part.stp")});
    browse_output(folder() / "mine.igs");
    EXPECT_THAT(translated(), testing::HasSubstr("Unable to read input file"));
}

TEST_F(ExistingOutput, ConfirmedForOneTranslationIsAskedAboutInTheNext)
{
    open<sglSingleFile>(kit_single_page);
    precious("mine.igs");
    drop({step_file("part.stp")});
    browse_output(folder() / "mine.igs");
    translated();
    precious("mine.igs");
    expect_question_about("mine.igs");
}

TEST_F(ExistingOutput, ConfirmedUnderAnotherNameIsAskedAbout)
{
    open<sglSingleFile>(kit_single_page);
    precious("first.igs");
    precious("second.igs");
    drop({step_file("part.stp")});
    browse_output(folder() / "first.igs");
    {
        kitModal boxes;
        boxes.expect_file_cancelled();
        press(*m_page, m_ids.output_browse);
    }
    choose(m_ids.output_format, "STL");
    browse_output(folder() / "other.stl");
    choose(m_ids.output_format, "IGES");
    ASSERT_EQ(output_file(), folder() / "other.igs");
    precious("other.igs");
    expect_question_about("other.igs");
}
