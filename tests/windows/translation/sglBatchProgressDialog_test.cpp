#include "windows/translation/kitProgress.h"

#include "nls/sglLongMessageDialog.h"
#include "s2s/s2sBatchMarker.h"

#include <gmock/gmock.h>
#include <wx/gauge.h>
#include <wx/notebook.h>

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class BatchProgressDialog : public kitProgressTest {
protected:
    /// Runs a batch with these outcomes and gives what the summary said.
    std::string summary_of(std::vector<kitOutcome> const & outcomes, int entries = 0,
                           std::function<void(wxDialog *)> const & look = {})
    {
        kitRequest request;
        request.outcomes = outcomes;
        for (int i = 0; i < std::max(entries, static_cast<int>(outcomes.size())); ++i)
            fill(request, i);
        kitBatchDialog dialog(info(), frame());
        request.at_work = [&](s2sThreadComm &, int index) {
            for (auto const * pane : {"IDC_PROGRESS_OUTPUT", "IDC_PROGRESS_ERROR"})
                say(dialog, pane, s2s_batch_marker().str() + "\nheader\n" + s2s_batch_marker().str() + "\n");
            if (at_work)
                at_work(dialog, index);
        };
        kitModal boxes;
        boxes.expect([&](wxDialog * box) {
            if (look)
                look(box);
            return static_cast<int>(wxID_OK);
        });
        run_to_end(request, dialog, [&] {
            page = find<wxNotebook>(dialog, "IDC_PROGRESS_TAB")->GetSelection();
            gauge = find<wxGauge>(dialog, "IDC_PROGRESS_PROGRESS")->GetValue();
        });
        result = dialog.GetReturnCode();
        EXPECT_EQ(boxes.said().size(), 1u);
        return boxes.said().empty() ? "" : boxes.said()[0];
    }
    std::string line(int index, char const * extension) const
    {
        return "  " + folder() / (std::to_string(index) + extension) + "\n";
    }

    std::function<void(sglGUIProgressDialog &, int)> at_work;
    int page = -1;
    int gauge = -1;
    int result = 0;
};

} // namespace

TEST_F(BatchProgressDialog, ShowsTheProgressOfTheWholeBatch)
{
    kitRequest request;
    for (int i = 0; i < 3; ++i)
        fill(request, i);
    kitBatchDialog dialog(info(), frame());
    dialog.communicator(&request.channel());
    dialog.start_translation_data(&request);
    auto * const bar = find<wxGauge>(dialog, "IDC_PROGRESS_PROGRESS");
    bar->SetRange(100);
    // Nothing has begun: the value would lie below the bar.
    EXPECT_FALSE(dialog.progress(0));
    EXPECT_EQ(bar->GetValue(), 0);
    s2sTranslationElements const elements({}, {"", nullptr, "", nullptr, 0, "IGES"});
    request.channel().begin_translation(elements);
    request.channel().begin_translation(elements);
    EXPECT_TRUE(dialog.progress(50));
    EXPECT_EQ(bar->GetValue(), 50);
    EXPECT_FALSE(dialog.progress(50));
    request.channel().begin_translation(elements);
    request.channel().begin_translation(elements);
    dialog.progress(100);
    EXPECT_EQ(bar->GetValue(), 100);
}

TEST_F(BatchProgressDialog, ListsTheFilesOfEachOutcomeInOrder)
{
    auto const said = summary_of({{s2sThreadCompleted, 1, 0},
                                  {static_cast<s2sThreadStatus>(5), 0, 0},
                                  {s2sThreadWriteError, 0, 0},
                                  {s2sThreadReadError, 0, 0},
                                  {s2sThreadFileTooBig, 0, 0},
                                  {s2sThreadCancelled, 0, 0},
                                  {s2sThreadCompleted, 0, 0}});
    EXPECT_EQ(said,
              "The following files were successfully translated :\n\n" + line(0, ".step") + line(6, ".step") +
                  "\n\n" + "The translation of the following files were cancelled :\n\n" + line(5, ".step") +
                  "\n\n" + "The following files were too large to be translated :\n\n" + line(4, ".step") +
                  "\n\n" + "The following input files could not be read :\n\n" + line(3, ".step") + "\n\n" +
                  "A fatal error occurred writing the following output files :\n\n" + line(2, ".igs") +
                  "\n\n" +
                  "An unknown error occurred when translating the following files.\nThese translations "
                  "were abandoned :\n\n" +
                  line(1, ".step") + "\n\n");
    EXPECT_EQ(gauge, 100);
    auto const & record = last_record();
    EXPECT_EQ(record.type(), sdbTranslationBatch);
    std::vector<sdbProgressFinish> statuses;
    for (int i = 0; i < record.num_output_files(); ++i)
        statuses.push_back(record.status(i));
    EXPECT_THAT(statuses,
                ElementsAre(sdbProgressCompleted, sdbProgressUnknown, sdbProgressFailed, sdbProgressFailed,
                            sdbProgressFailed, sdbProgressCancelled, sdbProgressCompleted));
}

TEST_F(BatchProgressDialog, EndsWellEvenAfterAnError)
{
    EXPECT_THAT(summary_of({{s2sThreadReadError, 0, 0}}), HasSubstr("could not be read"));
    EXPECT_EQ(result, static_cast<int>(wxID_OK));
}

TEST_F(BatchProgressDialog, CountsEntriesThatNeverBeganAmongTheCancelled)
{
    auto const said = summary_of({{s2sThreadCompleted, 1, 0}, {s2sThreadCancelled, 0, 0}}, 3);
    EXPECT_THAT(said, HasSubstr("cancelled :\n\n" + line(1, ".step") + line(2, ".step")));
    EXPECT_EQ(last_record().status(2), sdbProgressCancelled);
}

TEST_F(BatchProgressDialog, RecordsTheVerdictOnEachEntry)
{
    s2sVerification lossy{sdbVerdictLosses, {}};
    lossy.findings.add({sdbWeightLoss, "not-translated", "", "#12", {}, {}, "#12 is lost"});
    auto const said = summary_of(
        {{s2sThreadCompleted, 1, 0, lossy}, {s2sThreadCompleted, 1, 0, {sdbVerdictVerified, {}}}}, 3);
    EXPECT_THAT(said, Not(HasSubstr("#12")));
    auto const & record = last_record();
    EXPECT_EQ(record.verdict(0), sdbVerdictLosses);
    ASSERT_EQ(record.findings(0).kept().size(), 1u);
    EXPECT_EQ(record.findings(0).kept()[0].text, utString("#12 is lost"));
    EXPECT_EQ(record.verdict(1), sdbVerdictVerified);
    EXPECT_TRUE(record.findings(1).empty());
    EXPECT_EQ(record.verdict(2), sdbVerdictNone) << "it never began";
}

TEST_F(BatchProgressDialog, CutsTheStreamsApart)
{
    at_work = [](sglGUIProgressDialog & dialog, int index) {
        say(dialog, "IDC_PROGRESS_OUTPUT", "entry " + std::to_string(index) + " is done\n");
        if (index == 1)
            say(dialog, "IDC_PROGRESS_ERROR", "but not well\n");
    };
    auto const said = summary_of({{}, {}, {}});
    EXPECT_THAT(said, HasSubstr("Some non-fatal problems were detected"));
    EXPECT_EQ(page, 1);
    auto const & record = last_record();
    EXPECT_EQ(record.output_messages(0), utString("entry 0 is done\r\n"));
    EXPECT_EQ(record.output_messages(1), utString("entry 1 is done\r\n"));
    EXPECT_EQ(record.output_messages(2), utString("entry 2 is done\r\n"));
    EXPECT_EQ(record.error_messages(0), utString(""));
    EXPECT_EQ(record.error_messages(1), utString("but not well\r\n"));
    EXPECT_EQ(record.error_messages(2), utString(""));
}

TEST_F(BatchProgressDialog, TellsOfFailedEntitiesAheadOfWarnings)
{
    at_work = [](sglGUIProgressDialog & dialog, int) { say(dialog, "IDC_PROGRESS_ERROR", "a warning\n"); };
    auto const said = summary_of({{s2sThreadCompleted, 4, 1}, {}});
    EXPECT_THAT(said, HasSubstr("\nSome entities failed to translate\n"));
    EXPECT_THAT(said, Not(HasSubstr("non-fatal")));
}

TEST_F(BatchProgressDialog, SaysNothingOfWarningsWhenThereAreNone)
{
    auto const said = summary_of({{}, {}});
    EXPECT_EQ(said, "The following files were successfully translated :\n\n" + line(0, ".step") +
                        line(1, ".step") + "\n\n");
    EXPECT_EQ(page, 0);
}

TEST_F(BatchProgressDialog, SummaryOfVeryManyEntriesIsAWindowThatScrolls)
{
    bool scrolls = false;
    auto const look = [&](wxDialog * dialog) { scrolls = dynamic_cast<sglLongMessageDialog *>(dialog); };
    auto const said = summary_of(std::vector<kitOutcome>(200, {s2sThreadCompleted, 1, 0}), 0, look);
    EXPECT_TRUE(scrolls);
    EXPECT_THAT(said, HasSubstr(line(0, ".step")));
    EXPECT_THAT(said, HasSubstr(line(199, ".step")));
}
