#include "windows/pages/kitBatchPage.h"

#include <glib.h>
#include <gmock/gmock.h>

namespace {

constexpr auto & ids = kit_batch_page;

class BatchPage : public kitBatchPageTest {};

} // namespace

TEST_F(BatchPage, StartsWithAnEmptyQueueAndNothingToPressButBrowse)
{
    EXPECT_EQ(m_batch->caption(), utString("Batch Files"));
    EXPECT_EQ(queued(), 0);
    for (char const * off : {"IDC_BATCH_ADD_BUTTON", "IDC_BATCH_SAVE_BUTTON", "IDC_BATCH_REMOVE_BUTTON",
                             ids.translate, ids.input_resources, ids.output_resources})
        EXPECT_FALSE(enabled(off)) << off;
    EXPECT_TRUE(enabled(ids.input_browse));
    EXPECT_TRUE(enabled(ids.output_browse));
    EXPECT_EQ(input_format(), unknown());
}

TEST_F(BatchPage, QueuesTheFileThatIsBrowsedFor)
{
    browse_input(step_file("part.stp"));
    EXPECT_EQ(output_file(), folder() / "part.igs");
    EXPECT_TRUE(enabled(ids.input_resources));
    EXPECT_TRUE(enabled(ids.output_resources));
    EXPECT_TRUE(can_add());
    EXPECT_FALSE(can_save());
    EXPECT_FALSE(can_translate());
    add();
    EXPECT_EQ(queued(), 1);
    EXPECT_EQ(line(0), folder() / "part.stp");
    EXPECT_THAT(chosen(), testing::ElementsAre(0));
    EXPECT_EQ(queued_output(0), folder() / "part.igs");
    EXPECT_FALSE(can_add());
    EXPECT_FALSE(can_save());
    EXPECT_TRUE(can_remove());
    EXPECT_TRUE(can_translate());
}

TEST_F(BatchPage, TakesTheFirstOfTheFilesDroppedOnItsInput)
{
    drop({step_file("a.stp"), step_file("b.stp")});
    EXPECT_EQ(input_file(), folder() / "a.stp");
    EXPECT_TRUE(can_add());
    EXPECT_EQ(queued(), 0);
    drop({});
    drop({""});
    EXPECT_EQ(input_file(), folder() / "a.stp");
}

TEST_F(BatchPage, QueuesEveryFileDroppedOnTheQueueAndTellsOfTheOthers)
{
    auto const text = folder().write("notes.txt", "text");
    std::filesystem::create_directory(folder() / "parts");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    drop_on_queue({step_file("a.stp"), text, step_file("b.stp"), folder() / "parts"});
    EXPECT_EQ(boxes.said()[0], "The following files could not be added to the batch:\n\n  " + text + "\n  " +
                                   (folder() / "parts"));
    EXPECT_EQ(queued(), 2);
    EXPECT_THAT(chosen(), testing::ElementsAre(1));
    EXPECT_FALSE(can_add());
    EXPECT_FALSE(can_save());
    EXPECT_TRUE(can_translate());
}

TEST_F(BatchPage, CountsARefusedOverwriteAsAFileThatWasNotAdded)
{
    folder().write("a.igs", "old");
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    boxes.expect_message(wxID_OK);
    drop_on_queue({step_file("a.stp")});
    EXPECT_EQ(boxes.said()[0],
              "The file " + (folder() / "a.igs") + " already exists. Do you want to overwrite it?");
    EXPECT_TRUE(boxes.styles()[0] & wxNO_DEFAULT);
    EXPECT_THAT(boxes.said()[1], testing::EndsWith("\n\n  " + (folder() / "a.stp")));
    EXPECT_EQ(queued(), 0);
    EXPECT_THAT(chosen(), testing::ElementsAre());
}

TEST_F(BatchPage, SavesAnItemAgainstItselfButAsksAboutItsExistingOutput)
{
    drop({step_file("a.stp")});
    add();
    choose(ids.input_format, "STEP");
    EXPECT_TRUE(can_save());
    save();
    EXPECT_EQ(queued(), 1);
    EXPECT_FALSE(can_save());
    EXPECT_FALSE(can_add());

    folder().write("a.igs", "old");
    choose(ids.input_format, "STEP");
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    save();
    EXPECT_EQ(boxes.said().size(), 1u);
    EXPECT_TRUE(can_save());
}

TEST_F(BatchPage, AcceptsAnOutputThatIsTheInputOfAnotherItemAndNotOnTheDisk)
{
    drop({step_file("later.stp")});
    add();
    std::filesystem::remove(folder() / "later.stp");
    queue_pair(step_file("b.stp"), folder() / "later.stp");
    EXPECT_EQ(queued(), 2);
    EXPECT_EQ(queued_output(1), folder() / "later.stp");
}

TEST_F(BatchPage, RefusesAnOutputThatIsAnInputOfTheQueueAndOnTheDisk)
{
    drop({step_file("a.stp")});
    add();
    drop({step_file("b.stp")});
    browse_output(folder() / "a.stp");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    add();
    EXPECT_EQ(boxes.said()[0], "The output file " + (folder() / "a.stp") +
                                   " clashes with an input file in the batch.\nThis translation has not "
                                   "been added to the batch.");
    EXPECT_TRUE(boxes.styles()[0] & wxICON_ERROR);
    EXPECT_EQ(queued(), 1);
}

TEST_F(BatchPage, RefusesAnOutputOfTheQueue)
{
    drop({step_file("a.stp")});
    add();
    drop({step_file("a.step")});
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    add();
    EXPECT_EQ(boxes.said()[0], "The output file " + (folder() / "a.igs") +
                                   " clashes with an output file in the batch.\nThis translation has not "
                                   "been added to the batch.");
    EXPECT_EQ(queued(), 1);
    EXPECT_TRUE(can_add());
}

TEST_F(BatchPage, TellsNamesApartThatDifferInCaseOnly)
{
    drop({step_file("part.stp")});
    add();
    drop({step_file("PART.stp")});
    add();
    EXPECT_EQ(queued(), 2);
}

TEST_F(BatchPage, MakesAnEmptyRowOfAFormatChosenWithoutAFile)
{
    choose(ids.input_format, "STEP");
    choose(ids.output_format, "IGES");
    EXPECT_FALSE(enabled(ids.input_resources));
    EXPECT_FALSE(enabled(ids.output_resources));
    EXPECT_FALSE(can_add());
    EXPECT_FALSE(can_save());
    EXPECT_FALSE(can_translate());
}

TEST_F(BatchPage, KeepsTheDetailsOfAnItemThatIsRemoved)
{
    drop({step_file("a.stp")});
    add();
    press(*m_page, "IDC_BATCH_REMOVE_BUTTON");
    EXPECT_EQ(queued(), 0);
    EXPECT_EQ(queue().GetItemCount(), 0);
    EXPECT_EQ(input_file(), folder() / "a.stp");
    EXPECT_EQ(output_file(), folder() / "a.igs");
    EXPECT_TRUE(can_add());
    EXPECT_FALSE(can_save());
    EXPECT_FALSE(can_remove());
    EXPECT_FALSE(can_translate());
    add();
    EXPECT_EQ(queued(), 1);
}

TEST_F(BatchPage, NeverOffersToSaveIntoAnEmptyQueue)
{
    drop({step_file("a.stp")});
    browse_output(folder() / "mine.igs");
    EXPECT_TRUE(can_add());
    EXPECT_FALSE(can_save());
    EXPECT_FALSE(can_translate());
}

TEST_F(BatchPage, LeavesAddOffAfterAnOutputOfTheUsersOwnUntilTheNextOne)
{
    browse_output(folder() / "mine.igs");
    browse_input(step_file("a.stp"));
    EXPECT_EQ(output_file(), folder() / "mine.igs");
    EXPECT_FALSE(can_add());
    browse_output(folder() / "mine.igs");
    EXPECT_TRUE(can_add());
}

TEST_F(BatchPage, BringsAnItemBackForEditingAndChangesItOnlyWithSave)
{
    drop_on_queue({step_file("a.stp"), folder().write("b.stl", "solid b\nendsolid b\n")});
    ASSERT_EQ(queued(), 2);
    click_line(0);
    EXPECT_EQ(input_file(), folder() / "a.stp");
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_EQ(input_resource(), "step.rsc");
    EXPECT_EQ(output_file(), queued_output(0));
    EXPECT_FALSE(can_add());
    EXPECT_FALSE(can_save());
    EXPECT_TRUE(can_remove());

    auto const before = queued_output(0);
    browse_output(folder() / "other.brep");
    EXPECT_TRUE(can_save());
    EXPECT_EQ(queued_output(0), before);
    save();
    EXPECT_EQ(queued_output(0), folder() / "other.brep");
    EXPECT_EQ(queued(), 2);
}

TEST_F(BatchPage, BringsTheItemBackThatTheArrowKeysSelect)
{
    drop_on_queue({step_file("a.stp"), step_file("b.stp")});
    focus(queue());
    key(WXK_UP);
    run_until([&] { return input_file() == folder() / "a.stp"; }, 20, "the details of the first item");
    EXPECT_THAT(chosen(), testing::ElementsAre(0));
    EXPECT_FALSE(can_add());
}

TEST_F(BatchPage, LeavesTheLineOfASavedItemAsItWas)
{
    drop_on_queue({step_file("a.stp")});
    drop({step_file("b.stp")});
    browse_output(folder() / "b.igs");
    save();
    EXPECT_EQ(m_batch->input_row(0).filename(), utString(folder() / "b.stp"));
    EXPECT_EQ(line(0), folder() / "a.stp");
}

TEST_F(BatchPage, RenamesTheOutputAfterItsFormat)
{
    drop({step_file("a.stp")});
    choose(ids.output_format, "STL");
    EXPECT_EQ(output_file(), folder() / "a.stl");
    EXPECT_TRUE(can_add());
}

TEST_F(BatchPage, StaysAsItIsWhenTheOptionsAreCancelled)
{
    drop({step_file("a.stp")});
    in_next_dialog([](wxDialog & dialog) { dialog.EndModal(wxID_CANCEL); });
    press(*m_page, ids.input_resources);
    EXPECT_TRUE(can_add());
    EXPECT_EQ(input_resource(), "step.rsc");
}

TEST_F(BatchPage, ShowsTheFileAgainWhoseEditedOptionsTheUserKeeps)
{
    drop_on_queue({step_file("a.stp")});
    auto & options = const_cast<sglRow &>(m_batch->input_row(0)).resource_table();
    ASSERT_TRUE(options.add_resource("stepReadNames", "false"));
    choose_lines({});
    click_line(0);
    {
        kitModal boxes;
        boxes.expect_message(wxID_NO);
        choose(ids.input_format, "STL");
    }
    EXPECT_EQ(input_file(), folder() / "a.stp");
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_EQ(input_resource(), "step.rsc");
    EXPECT_TRUE(enabled(ids.input_resources));
    {
        kitModal boxes;
        boxes.expect_message(wxID_YES);
        choose(ids.input_format, "STL");
    }
    EXPECT_EQ(input_format(), "STL");
    EXPECT_TRUE(options.modified());
    EXPECT_EQ(m_batch->input_row(0).file_type(), utString("STEP"));
}

TEST_F(BatchPage, RunsEveryItemAndLosesNothingToABrokenFile)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    drop_on_queue({sample("step/screw.step", "one.step"), step_file("broken.stp"),
                   sample("step/screw.step", "two.step")});
    ASSERT_EQ(queued(), 3);
    auto const records = app().num_translations();
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    EXPECT_GT(std::filesystem::file_size(folder() / "one.igs"), 10'000u);
    EXPECT_GT(std::filesystem::file_size(folder() / "two.igs"), 10'000u);
    EXPECT_FALSE(folder().exists("broken.igs"));
    EXPECT_TRUE(folder().exists("broken.stp"));
    EXPECT_EQ(app().num_translations(), records + 1);
    EXPECT_EQ(last_record().status(0), sdbProgressCompleted);
    EXPECT_EQ(last_record().status(1), sdbProgressFailed);
    EXPECT_EQ(last_record().status(2), sdbProgressCompleted);
    EXPECT_THAT(boxes.said().back(), testing::HasSubstr(folder() / "broken.stp"));
    EXPECT_EQ(queued(), 3);
    EXPECT_TRUE(can_translate());
}

TEST_F(BatchPage, SharesTheRowsOfCopiedItems)
{
    sglBatchItem const item(std::make_shared<sglRow>(), std::make_shared<sglRow>());
    sglBatchItem const copy = item;
    EXPECT_EQ(copy.input_row(), item.input_row());
    EXPECT_EQ(copy.output_row(), item.output_row());
    EXPECT_FALSE(copy.invalid());
    EXPECT_TRUE(sglBatchItem(nullptr, item.output_row()).invalid());
    EXPECT_TRUE(sglBatchItem(item.input_row(), nullptr).invalid());
}

TEST_F(BatchPage, TakesNoFilesForItsQueueWhileADialogIsOpenInFrontOfIt)
{
    auto * const target = dynamic_cast<sglBatchDropFiles *>(queue().GetDropTarget());
    ASSERT_TRUE(target);
    wxArrayString files;
    files.Add(wxtStringConverter::path_to_wx(utString(step_file("a.stp"))));
    wxDialog dialog(m_frame, wxID_ANY, "a dialog");
    bool taken = true;
    show_modal(dialog, [&] {
        taken = target->OnDropFiles(1, 1, files);
        dialog.EndModal(wxID_OK);
    });
    EXPECT_FALSE(taken);
    EXPECT_EQ(queued(), 0);
    EXPECT_TRUE(target->OnDropFiles(1, 1, files));
    EXPECT_EQ(queued(), 1);
}

TEST_F(BatchPage, TakesNoInputWhileItQueuesSeveralFiles)
{
    kitModal const no_boxes;
    focus(queue());
    struct Seen {
        wxListCtrl & queue;
        int times = 0;
        bool enabled = true;
    } seen{queue()};
    g_idle_add(
        [](void * data) -> gboolean {
            auto & what = *static_cast<Seen *>(data);
            ++what.times;
            what.enabled = what.queue.IsEnabled();
            return G_SOURCE_REMOVE;
        },
        &seen);
    drop_on_queue({step_file("a.stp"), step_file("b.stp")});
    EXPECT_EQ(seen.times, 1);
    EXPECT_FALSE(seen.enabled);
    EXPECT_TRUE(queue().IsEnabled());
    EXPECT_EQ(queued(), 2);
    run_until([&] { return queue().IsDescendant(wxWindow::FindFocus()); }, 20, "the focus to come back");
}

TEST_F(BatchPage, QueuesNoFileThatItNoLongerShows)
{
    auto const text = folder().write("notes.txt", "text");
    browse_input(step_file("a.stp"));
    EXPECT_TRUE(can_add());
    browse_input(text);
    EXPECT_EQ(input_file(), text);
    EXPECT_FALSE(can_add());
    EXPECT_FALSE(enabled(ids.input_resources));
    drop({folder() / "a.stp"});
    EXPECT_TRUE(can_add());
    drop({text});
    EXPECT_EQ(input_file(), text);
    EXPECT_FALSE(can_add());
    EXPECT_FALSE(enabled(ids.input_resources));
    drop({folder() / "a.stp"});
    EXPECT_TRUE(can_add());
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    drop_on_queue({text});
    EXPECT_FALSE(can_add());
}

TEST_F(BatchPage, AsksAboutAnOutputThatDiffersFromAnInputInCaseOnly)
{
    drop({step_file("part.stp")});
    add();
    drop({folder().write("b.stl", "solid b\nendsolid b\n")});
    browse_output(step_file("PART.stp"));
    kitModal boxes;
    boxes.expect_message(wxID_YES);
    add();
    EXPECT_EQ(boxes.said()[0],
              "The file " + (folder() / "PART.stp") + " already exists. Do you want to overwrite it?");
    EXPECT_EQ(queued(), 2);
}

TEST_F(BatchPage, LeavesAddOffAfterARemovalWhereTheDetailsAreIncomplete)
{
    kitModal boxes;
    drop({step_file("a.stp")});
    add();
    boxes.expect_file(folder() / "mine.igs");
    press(*m_page, ids.output_browse);
    boxes.expect_message(wxID_NO); // to the question about the new output of the first
    boxes.expect_file(step_file("b.stp"));
    press(*m_page, ids.input_browse);
    EXPECT_FALSE(can_add());
    press(*m_page, "IDC_BATCH_REMOVE_BUTTON");
    EXPECT_EQ(queued(), 0);
    EXPECT_FALSE(can_add());
}

TEST_F(BatchPage, SelectsNothingAfterARemovalFromSeveral)
{
    kitModal const no_boxes;
    drop_on_queue({step_file("a.stp"), step_file("b.stp"), step_file("c.stp")});
    click_line(1);
    press(*m_page, "IDC_BATCH_REMOVE_BUTTON");
    ASSERT_EQ(queued(), 2);
    EXPECT_EQ(line(0), folder() / "a.stp");
    EXPECT_EQ(line(1), folder() / "c.stp");
    EXPECT_THAT(chosen(), testing::ElementsAre());
    EXPECT_FALSE(can_remove());
}

TEST_F(BatchPage, RefusesToSaveAnItemOverItsOwnInput)
{
    drop({step_file("a.stp")});
    add();
    browse_output(folder() / "a.stp");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    save();
    EXPECT_THAT(boxes.said()[0], testing::HasSubstr(" clashes with an input file in the batch."));
    EXPECT_EQ(queued_output(0), folder() / "a.igs");
    EXPECT_TRUE(can_save());
}

TEST_F(BatchPage, TakesAnOutputWithAnExtensionOfNoFormat)
{
    drop({step_file("a.stp")});
    browse_output(folder() / "a.xyz");
    EXPECT_EQ(output_file(), folder() / "a.xyz");
    EXPECT_EQ(output_format(), "IGES");
    kitModal const no_boxes;
    add();
    ASSERT_EQ(queued(), 1);
    EXPECT_EQ(queued_output(0), folder() / "a.xyz");
    EXPECT_EQ(m_batch->output_row(0).file_type(), utString("IGES"));
}

TEST_F(BatchPage, RunsItsQueueAgainWithoutAQuestion)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    kitModal boxes;
    drop_on_queue({sample("step/screw.step", "one.step")});
    for (int run = 0; run < 2; ++run) {
        boxes.expect_message(wxID_OK); // of the end of the run
        translate();
        EXPECT_EQ(last_record().status(0), sdbProgressCompleted);
    }
    EXPECT_THAT(boxes.said(), testing::Each(testing::Not(testing::HasSubstr("overwrite"))));
    EXPECT_EQ(queued(), 1);
}
