#include "sglBatchTranslation.h"

#include "kit/kitFormat.h"
#include "kit/kitProgressRecorder.h"
#include "kit/kitWrapper.h"
#include "s2s/s2sBatchWrapper.h"

namespace {

/// A batch whose job does no work and ends as the test says.
class Batch : public sglBatchTranslation {
public:
    std::vector<kitOutcome> outcomes;

    using sglBatchTranslation::find_input_dlls;
    using sglBatchTranslation::find_output_dlls;
    using sglBatchTranslation::num_input_translators;
    using sglBatchTranslation::num_output_translators;
    using sglBatchTranslation::wrapper;

    void make_own_wrapper() { sglBatchTranslation::create_wrapper(); }

protected:
    void create_wrapper() override
    {
        s2sTranslatorElementscoPageArr inputs;
        inputs.append(input_elements(0));
        set_wrapper(std::make_unique<kitWrapper>(
            channel(), s2sTranslationElements(inputs, output_elements(0)), outcomes));
    }
};

struct BatchTranslation : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        kit_install_format(folder(), "installation", "ALPHA", "alpha");
        kit_install_format(folder(), "installation", "BETA", "beta");
        start();
    }
    void fill(sglTranslation & request, int index)
    {
        std::string const name = std::to_string(index);
        vmrTableInstance table(nullptr);
        request.input_file(utString(folder().write(name + ".alpha", "input")), index);
        request.input_format("ALPHA", index);
        request.input_resource_table(table, index);
        request.output_file(utString(folder().write(name + ".beta", "output")), index);
        request.output_format("BETA", index);
        request.output_resource_table(table, index);
        request.output_document(nullptr, index);
    }
    void fill_up_to(sglTranslation & request, int count)
    {
        for (int i = 0; i < count; ++i)
            fill(request, i);
    }
    std::string input(int index) const { return folder() / (std::to_string(index) + ".alpha"); }
    std::string run(std::vector<kitOutcome> const & outcomes, int entries)
    {
        Batch batch;
        kitProgressRecorder dialog;
        fill_up_to(batch, entries);
        batch.outcomes = outcomes;
        batch.progress(&dialog);
        EXPECT_EQ(batch.execute().value(), sglTranslationResult::started);
        EXPECT_EQ(dialog.told.size(), 1u);
        return dialog.told.empty() ? "" : dialog.told[0];
    }
    /// Whether the outputs of an earlier run are as they were.
    bool older_outputs_are_there(int count) const
    {
        for (int i = 0; i < count; ++i)
            if (folder().read(std::to_string(i) + ".beta") != "output")
                return false;
        return true;
    }
};

} // namespace

TEST_F(BatchTranslation, NeedsAsManyEntriesInEveryListAsInputs)
{
    Batch batch;
    EXPECT_TRUE(batch.invalid());
    fill_up_to(batch, 2);
    EXPECT_FALSE(batch.invalid());
    vmrTableInstance table(nullptr);
    std::function<void(Batch &)> const one_too_many[] = {
        [](Batch & request) { request.input_file("more", 2); },
        [](Batch & request) { request.input_format("ALPHA", 2); },
        [&](Batch & request) { request.input_resource_table(table, 2); },
        [](Batch & request) { request.output_file("more", 2); },
        [](Batch & request) { request.output_format("BETA", 2); },
        [&](Batch & request) { request.output_resource_table(table, 2); },
    };
    for (auto const & add : one_too_many) {
        Batch request;
        fill_up_to(request, 2);
        add(request);
        EXPECT_TRUE(request.invalid());
    }
}

TEST_F(BatchTranslation, OfTwoInputsAndThreeOutputsIsInvalid)
{
    Batch batch;
    fill_up_to(batch, 2);
    vmrTableInstance table(nullptr);
    batch.output_file("more", 2);
    batch.output_format("BETA", 2);
    batch.output_resource_table(table, 2);
    EXPECT_TRUE(batch.invalid());
}

TEST_F(BatchTranslation, TakesAnyNumberOfDocumentsButNone)
{
    Batch batch;
    fill_up_to(batch, 2);
    batch.output_document(nullptr, 4);
    EXPECT_FALSE(batch.invalid());
}

TEST_F(BatchTranslation, TakesAnEntryOutOfEveryList)
{
    Batch batch;
    fill_up_to(batch, 3);
    batch.find_input_dlls();
    batch.find_output_dlls();
    batch.remove_translation(1);
    EXPECT_EQ(batch.input_file(0), utString(input(0)));
    EXPECT_EQ(batch.input_file(1), utString(input(2)));
    EXPECT_EQ(batch.output_file(1), utString(folder() / "2.beta"));
    for (int const count :
         {batch.num_input_files(), batch.num_input_formats(), batch.num_input_resource_tables(),
          batch.num_output_files(), batch.num_output_formats(), batch.num_output_resource_tables(),
          batch.num_input_translators(), batch.num_output_translators()})
        EXPECT_EQ(count, 2);
    EXPECT_FALSE(batch.invalid());
}

TEST_F(BatchTranslation, MovesNothingWhenTheLastEntryGoes)
{
    Batch batch;
    fill_up_to(batch, 3);
    batch.remove_translation(2);
    ASSERT_EQ(batch.num_input_files(), 2);
    EXPECT_EQ(batch.input_file(0), utString(input(0)));
    EXPECT_EQ(batch.input_file(1), utString(input(1)));
    EXPECT_EQ(batch.output_file(0), utString(folder() / "0.beta"));
    EXPECT_EQ(batch.output_file(1), utString(folder() / "1.beta"));
    EXPECT_FALSE(batch.invalid());
}

TEST_F(BatchTranslation, HasNoTranslatorsAfterARemovalBeforeTheyAreLookedUp)
{
    Batch batch;
    fill_up_to(batch, 3);
    batch.remove_translation(0);
    EXPECT_EQ(batch.num_input_translators(), 0);
    EXPECT_EQ(batch.num_output_translators(), 0);
}

TEST_F(BatchTranslation, LeavesTheEntriesWhereThereIsNoneToRemove)
{
    Batch batch;
    batch.remove_translation(0);
    fill_up_to(batch, 2);
    batch.remove_translation(2);
    batch.remove_translation(-1);
    EXPECT_EQ(batch.num_input_files(), 2);
}

TEST_F(BatchTranslation, StillRunsAfterARemovalWithADocumentToSpare)
{
    Batch batch;
    kitProgressRecorder dialog;
    fill_up_to(batch, 3);
    batch.remove_translation(0);
    batch.outcomes = {{}, {s2sThreadReadError, 0, 0}};
    batch.progress(&dialog);
    EXPECT_EQ(batch.execute().value(), sglTranslationResult::started);
    EXPECT_TRUE(older_outputs_are_there(3));
}

TEST_F(BatchTranslation, IsAJobOfTheEngineForBatches)
{
    Batch batch;
    fill_up_to(batch, 2);
    batch.find_input_dlls();
    batch.find_output_dlls();
    batch.make_own_wrapper();
    EXPECT_TRUE(dynamic_cast<s2sBatchWrapper *>(batch.wrapper()));
}

TEST_F(BatchTranslation, LeavesTheOlderOutputsOfEntriesThatFailed)
{
    run({{s2sThreadCompleted, 2, 0}, {s2sThreadWriteError, 0, 1}, {s2sThreadCompleted, 1, 0}}, 3);
    EXPECT_TRUE(older_outputs_are_there(3));
}

TEST_F(BatchTranslation, LeavesTheOlderOutputOfACompletedEntryWithoutEntities)
{
    EXPECT_EQ(run({{s2sThreadCompleted, 2, 0}, {s2sThreadCompleted, 0, 0}, {s2sThreadCompleted, 1, 0}}, 3),
              "ok");
    EXPECT_TRUE(older_outputs_are_there(3));
}

TEST_F(BatchTranslation, LeavesAllOutputsAtACancel)
{
    EXPECT_EQ(run({{s2sThreadCompleted, 2, 0}, {s2sThreadCancelled, 0, 0}}, 3), "cancelled");
    EXPECT_TRUE(older_outputs_are_there(3));
}

TEST_F(BatchTranslation, TellsTheDialogTheEndOfItsLastEntryAndOnce)
{
    EXPECT_EQ(run({{s2sThreadReadError, 0, 0}, {s2sThreadCompleted, 1, 0}}, 2), "ok");
    EXPECT_EQ(run({{s2sThreadCompleted, 1, 0}, {s2sThreadFileTooBig, 0, 0}}, 2), "error: Input file too big");
}
