// What is changed in the details of a queued translation and not saved: nothing of it goes without a
// question.

#include "windows/pages/kitBatchPage.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class BatchChanges : public kitBatchPageTest {
protected:
    void SetUp() override
    {
        kitBatchPageTest::SetUp();
        drop_on_queue({step_file("a.stp"), step_file("b.stp")});
        click_line(0);
        choose(m_ids.output_format, "STL");
        EXPECT_EQ(line(0, 3), "Not saved");
    }
    /// Presses Translate, with an answer to the question about the changes.
    void translate_and_answer(int answer)
    {
        kitModal boxes;
        boxes.expect_message(answer);
        boxes.expect_message(wxID_OK); // of the end
        translate();
        EXPECT_EQ(boxes.said()[0], "The changes to the translation of " + (folder() / "a.stp") +
                                       " have not been saved.\nDo you want to save them?");
    }
};

} // namespace

TEST_F(BatchChanges, AreSavedAndRunWhereTheUserWantsThat)
{
    translate_and_answer(wxID_YES);
    EXPECT_EQ(last_record().output_file(0), utString(folder() / "a.stl"));
    EXPECT_EQ(last_record().output_format(0), utString("STL"));
    EXPECT_EQ(queued_output(0), folder() / "a.stl");
    EXPECT_EQ(line(0, 1), "a.stl");
}

TEST_F(BatchChanges, AreGivenUpWhereTheUserWantsThatAndTheQueueIsShownAsItRuns)
{
    translate_and_answer(wxID_NO);
    EXPECT_EQ(last_record().output_file(0), utString(folder() / "a.igs"));
    EXPECT_EQ(output_file(), folder() / "a.igs");
    EXPECT_EQ(output_format(), "IGES");
}

TEST_F(BatchChanges, KeepTheBatchFromRunningWhereTheUserCancels)
{
    auto const records = app().num_translations();
    kitModal boxes;
    boxes.expect_message(wxID_CANCEL);
    press(*m_page, m_ids.translate);
    EXPECT_EQ(app().num_translations(), records);
    EXPECT_EQ(output_format(), "STL");
    EXPECT_EQ(line(0, 3), "Not saved");
    EXPECT_TRUE(can_save());
}

TEST_F(BatchChanges, KeepTheBatchFromRunningWhereTheyCannotBeSaved)
{
    folder().write("a.stl", "precious");
    auto const records = app().num_translations();
    kitModal boxes;
    boxes.expect_message(wxID_YES);
    boxes.expect_message(wxID_NO); // to the question about the old file
    press(*m_page, m_ids.translate);
    EXPECT_THAT(boxes.said()[1], HasSubstr("overwrite"));
    EXPECT_EQ(app().num_translations(), records);
    EXPECT_EQ(line(0, 3), "Not saved");
    EXPECT_EQ(queued_output(0), folder() / "a.igs");
}

TEST_F(BatchChanges, AreAskedAboutWhenAnotherTranslationIsChosen)
{
    kitModal boxes;
    boxes.expect_message(wxID_YES);
    click_line(1);
    EXPECT_EQ(queued_output(0), folder() / "a.stl");
    EXPECT_EQ(input_file(), folder() / "b.stp");
    EXPECT_THAT(chosen(), ElementsAre(1));
}

TEST_F(BatchChanges, StayWithTheirTranslationWhereTheUserCancelsTheChoiceOfAnother)
{
    kitModal boxes;
    boxes.expect_message(wxID_CANCEL);
    click_line(1);
    EXPECT_THAT(chosen(), ElementsAre(0));
    EXPECT_EQ(input_file(), folder() / "a.stp");
    EXPECT_EQ(output_format(), "STL");
    EXPECT_TRUE(can_save());
}

TEST_F(BatchChanges, AreAskedAboutWhenAnInputIsDroppedOrBrowsedFor)
{
    kitModal boxes;
    boxes.expect_message(wxID_CANCEL);
    drop({step_file("c.stp")});
    EXPECT_EQ(input_file(), folder() / "a.stp");
    boxes.expect_message(wxID_CANCEL);
    press(*m_page, m_ids.input_browse);
    boxes.expect_message(wxID_CANCEL);
    drop_on_queue({folder() / "c.stp"});
    EXPECT_EQ(queued(), 2);
    EXPECT_EQ(output_format(), "STL");
    boxes.expect_message(wxID_NO);
    drop({folder() / "c.stp"});
    EXPECT_EQ(input_file(), folder() / "c.stp");
    EXPECT_EQ(line(0, 3), "Waiting");
    EXPECT_EQ(queued_output(0), folder() / "a.igs");
}

TEST_F(BatchChanges, GoWithTheTranslationThatIsRemoved)
{
    press(*m_page, "IDC_BATCH_REMOVE_BUTTON");
    EXPECT_EQ(queued(), 1);
    click_line(0);
    EXPECT_EQ(input_file(), folder() / "b.stp");
}

TEST_F(BatchChanges, BecomeATranslationOfTheirOwnWithAdd)
{
    add();
    ASSERT_EQ(queued(), 3);
    EXPECT_EQ(queued_output(0), folder() / "a.igs");
    EXPECT_EQ(queued_output(2), folder() / "a.stl");
    EXPECT_EQ(line(0, 3), "Waiting");
    click_line(1);
    EXPECT_EQ(input_file(), folder() / "b.stp");
}

TEST_F(BatchChanges, AreNoneWhereAFormatBoxIsClosedOnTheSameFormat)
{
    save();
    choose(m_ids.output_format, "STL");
    choose(m_ids.input_format, "STEP");
    EXPECT_EQ(line(0, 3), "Waiting");
    click_line(1);
    EXPECT_EQ(input_file(), folder() / "b.stp");
}

TEST_F(BatchChanges, AreNoneWhileANewTranslationIsSetUp)
{
    save();
    drop({step_file("c.stp")});
    choose(m_ids.output_format, "BREP");
    EXPECT_EQ(line(0, 3), "Waiting");
    click_line(1);
    EXPECT_EQ(input_file(), folder() / "b.stp");
    EXPECT_EQ(queued_output(0), folder() / "a.stl");
}
