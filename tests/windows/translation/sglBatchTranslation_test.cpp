#include "sglBatchTranslation.h"

#include "s2s/s2sBatchMarker.h"
#include "windows/translation/kitProgress.h"

#include <gmock/gmock.h>

namespace {

/// A batch whose job does no work and ends as the test says.
class IdleBatch : public sglBatchTranslation {
public:
    std::vector<kitOutcome> outcomes;
    std::function<void()> at_work;

protected:
    void create_wrapper() override
    {
        s2sTranslatorElementscoPageArr input;
        input.append(input_elements(0));
        auto job = std::make_unique<kitWrapper>(channel(), s2sTranslationElements(input, output_elements(0)),
                                                outcomes);
        job->while_running = at_work;
        set_wrapper(std::move(job));
    }
};

class BatchBehindItsDialog : public kitProgressTest {};

} // namespace

TEST_F(BatchBehindItsDialog, ListsACompletedEntryWithoutEntitiesAsSuccessfulAndDeletesItsOutput)
{
    IdleBatch batch;
    fill(batch, 0);
    fill(batch, 1);
    batch.outcomes = {{s2sThreadCompleted, 2, 0}, {s2sThreadCompleted, 0, 0}};
    kitBatchDialog dialog(info(), frame());
    batch.at_work = [&] {
        for (auto const * pane : {"IDC_PROGRESS_OUTPUT", "IDC_PROGRESS_ERROR"})
            say(dialog, pane, s2s_batch_marker().str() + "\nheader\n" + s2s_batch_marker().str() + "\n");
    };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run_to_end(batch, dialog);
    std::string const summary = boxes.said().front();
    EXPECT_THAT(summary, testing::StartsWith("The following files were successfully"));
    EXPECT_THAT(summary, testing::HasSubstr(" :\n"));
    EXPECT_EQ(summary.find(" :\n"), summary.rfind(" :\n")) << "one list, and none of failures";
    EXPECT_THAT(summary, testing::HasSubstr(folder() / "0.step\n"));
    EXPECT_THAT(summary, testing::HasSubstr(folder() / "1.step\n"));
    EXPECT_EQ(last_record().type(), sdbTranslationBatch);
    EXPECT_TRUE(folder().exists("0.igs"));
    EXPECT_TRUE(folder().exists("1.igs")) << "of an earlier run";
}

TEST_F(BatchBehindItsDialog, TranslatesEachInputIntoItsOwnOutput)
{
    std::filesystem::path const samples = "/usr/share/opencascade/data/step";
    if (!std::filesystem::exists(samples))
        GTEST_SKIP() << "no sample files are installed";
    sglBatchTranslation batch;
    for (int i = 0; i < 3; ++i) {
        auto const name = folder() / std::to_string(i);
        if (i == 1)
            folder().write("1.step", "ISO-10303-21;\nHEADER;\n");
        else
            std::filesystem::copy_file(samples / "screw.step", name + ".step");
        fill(batch, i, name + ".step", folder().write(std::to_string(i) + ".igs", "old"));
    }
    kitBatchDialog dialog(info(), frame());
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run_to_end(batch, dialog);
    EXPECT_EQ(batch.communicator().num_translations(), 3);
    EXPECT_GT(kit_read_file(folder() / "0.igs").size(), 10'000u);
    EXPECT_EQ(folder().read("1.igs"), "old");
    EXPECT_GT(kit_read_file(folder() / "2.igs").size(), 10'000u);
}
