#include "sglTranslation.h"

#include "ap/apPosixOperations.h"
#include "kit/kitFormat.h"
#include "kit/kitProgressRecorder.h"
#include "kit/kitRequest.h"

#include <atomic>
#include <thread>

namespace {

struct Driver : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        kit_install_format(folder(), "installation", "ALPHA", "alpha");
        kit_install_format(folder(), "installation", "BETA", "beta");
        start();
        input = folder().write("in.alpha", "input");
        output = folder().write("out.beta", "output"); // of an earlier run
    }
    void fill(sglTranslation & request)
    {
        vmrTableInstance table(nullptr);
        request.input_file(utString(input), 0);
        request.input_format("ALPHA", 0);
        request.input_resource_table(table, 0);
        request.output_file(utString(output), 0);
        request.output_format("BETA", 0);
        request.output_resource_table(table, 0);
        request.output_document(nullptr, 0);
    }
    std::string outcome_of(kitOutcome outcome)
    {
        kitRequest request;
        kitProgressRecorder dialog;
        fill(request);
        request.outcomes = {outcome};
        request.progress(&dialog);
        EXPECT_EQ(request.execute().value(), sglTranslationResult::started);
        EXPECT_EQ(dialog.last_percent, 100);
        EXPECT_EQ(dialog.told.size(), 1u);
        return dialog.told.empty() ? "" : dialog.told[0];
    }
    /// Runs a worker that goes on until it is asked to stop, which the user does at the first tick; gives
    /// what the user is told at the end.
    std::vector<std::string> told_after_a_cancel(kitOutcome outcome)
    {
        kitRequest request;
        kitProgressRecorder dialog;
        fill(request);
        request.outcomes = {outcome};
        request.at_work = [](s2sThreadComm & channel, int) {
            while (!channel.termination_requested())
                std::this_thread::yield();
        };
        dialog.at_first_tick = [&] { dialog.OnCancel(); };
        request.progress(&dialog);
        request.execute();
        return dialog.told;
    }
    bool older_output_is_there() const { return folder().read("out.beta") == "output"; }

    std::string input, output;
};

} // namespace

TEST_F(Driver, IsInvalidWithoutAnyOneOfItsListsAndTakesANullDocument)
{
    vmrTableInstance table(nullptr);
    std::vector<std::function<void(kitRequest &)>> const setters = {
        [](kitRequest & request) { request.input_file("in", 0); },
        [](kitRequest & request) { request.input_format("ALPHA", 0); },
        [&](kitRequest & request) { request.input_resource_table(table, 0); },
        [](kitRequest & request) { request.output_file("out", 0); },
        [](kitRequest & request) { request.output_format("BETA", 0); },
        [&](kitRequest & request) { request.output_resource_table(table, 0); },
        [](kitRequest & request) { request.output_document(nullptr, 0); }};
    for (std::size_t left_out = 0; left_out <= setters.size(); ++left_out) {
        kitRequest request;
        for (std::size_t i = 0; i < setters.size(); ++i)
            if (i != left_out)
                setters[i](request);
        EXPECT_EQ(request.invalid() != 0, left_out < setters.size()) << left_out;
    }
}

TEST_F(Driver, LooksForTheTranslatorsOfTheInputsFirst)
{
    kitRequest request;
    kitProgressRecorder dialog;
    fill(request);
    request.input_format("GAMMA", 0);
    request.output_format("GAMMA", 0);
    request.progress(&dialog);
    EXPECT_EQ(request.execute().value(), sglTranslationResult::no_input_translator);
    EXPECT_TRUE(dialog.told.empty());
}

TEST_F(Driver, MakesItsStepsInOrder)
{
    struct Steps : kitProgressRecorder {
        std::vector<std::string> * all = nullptr;
        void fileLabel(utString const & file) override { all->push_back("file " + file.str()); }
        int progress(int percent) override
        {
            all->push_back("progress " + std::to_string(percent) + ", translating " +
                           std::to_string(getNlsHelp()->translating()));
            return 1;
        }
        void operationLabel(utString const & label) override { all->push_back(label.str()); }
        void translation_ended_ok() override
        {
            all->push_back("ok");
            kitProgressRecorder::translation_ended_ok();
        }
    } dialog;
    struct Request : kitRequest {
        std::vector<std::string> * all = nullptr;
        void thread_has_died() override
        {
            EXPECT_NE(communicator().threadHasDied(), 0);
            all->push_back("the worker has ended");
        }
    } request;
    std::vector<std::string> steps;
    dialog.all = request.all = &steps;
    fill(request);
    request.progress(&dialog);
    request.execute();
    ASSERT_GE(steps.size(), 4u);
    EXPECT_EQ(steps.front(), "file " + input) << "before the worker has said anything";
    EXPECT_EQ(std::vector<std::string>(steps.end() - 3, steps.end()),
              (std::vector<std::string>{"the worker has ended", "progress 100, translating 0", "ok"}));
    for (std::size_t i = 1; i + 3 < steps.size(); i += 3) {
        EXPECT_EQ(steps[i], "file " + input);
        EXPECT_EQ(steps[i + 1], "progress 0, translating 1");
        EXPECT_EQ(steps[i + 2], "Reading :");
    }
}

TEST_F(Driver, GivesAnEmptyFileNameWhileThereIsNone)
{
    kitRequest request;
    EXPECT_EQ(request.input_file(0), utString());
    request.input_file("third", 2);
    EXPECT_EQ(request.num_input_files(), 3);
    EXPECT_EQ(request.input_file(2), utString("third"));
}

TEST_F(Driver, NeedsAFormatForEveryInput)
{
    kitRequest request;
    kitProgressRecorder dialog;
    fill(request);
    request.input_file("b", 1);
    request.input_file("c", 2);
    request.progress(&dialog);
    EXPECT_EQ(request.execute().value(), sglTranslationResult::no_input_translator);
    EXPECT_EQ(request.num_input_formats(), 2);
}

TEST_F(Driver, TellsOfAnOutputFormatThatIsUnknown)
{
    kitRequest request;
    fill(request);
    request.output_format("GAMMA", 0);
    EXPECT_EQ(request.execute().value(), sglTranslationResult::no_output_translator);
}

TEST_F(Driver, FailsWithoutADialogAndTellsNobody)
{
    kitRequest request;
    fill(request);
    EXPECT_EQ(request.execute().value(), sglTranslationResult::failed);
    EXPECT_TRUE(older_output_is_there());
}

TEST_F(Driver, RunsOnceOnly)
{
    kitRequest request;
    kitProgressRecorder dialog;
    fill(request);
    request.progress(&dialog);
    EXPECT_EQ(request.execute().value(), sglTranslationResult::started);
    EXPECT_EQ(request.execute().value(), sglTranslationResult::failed);
}

TEST_F(Driver, KeepsTheOutputOfATranslationThatProducedSomething)
{
    EXPECT_EQ(outcome_of({s2sThreadCompleted, 3, 0}), "ok");
    EXPECT_TRUE(older_output_is_there());
    EXPECT_EQ(getNlsHelp()->translating(), 0);
}

TEST_F(Driver, TakesACompletedTranslationWithoutEntitiesForAnErrorAndLeavesTheOlderOutput)
{
    EXPECT_EQ(outcome_of({s2sThreadCompleted, 0, 0}),
              "error: No entities were translated and no output file produced");
    EXPECT_TRUE(older_output_is_there());
}

TEST_F(Driver, TellsOfEachKindOfFailureAndLeavesTheOlderOutput)
{
    struct {
        s2sThreadStatus status;
        std::string text;
    } const failures[] = {{s2sThreadFileTooBig, "error: Input file too big"},
                          {s2sThreadReadError, "error: Unable to read input file " + input},
                          {s2sThreadWriteError, "error: Fatal error writing to output file"},
                          {s2sThreadCancelled, "cancelled"},
                          {static_cast<s2sThreadStatus>(5), "error: Unknown translation error"}};
    for (auto const & failure : failures) {
        EXPECT_EQ(outcome_of({failure.status, 1, 0}), failure.text);
        EXPECT_TRUE(older_output_is_there()) << failure.text;
    }
}

TEST_F(Driver, RepeatsACancelUntilTheWorkerStops)
{
    EXPECT_EQ(told_after_a_cancel({s2sThreadCancelled, 0, 0}), std::vector<std::string>{"cancelled"});
    EXPECT_TRUE(older_output_is_there());
}

TEST_F(Driver, GoesByTheOutcomeAndNotByACancelThatCameTooLate)
{
    // The worker has seen the request to stop and completes nevertheless.
    EXPECT_EQ(told_after_a_cancel({}), std::vector<std::string>{"ok"});
    EXPECT_TRUE(older_output_is_there());
    struct CancelledAtTheEnd : kitProgressRecorder {
        int progress(int percent) override
        {
            if (percent == 100)
                OnCancel();
            return kitProgressRecorder::progress(percent);
        }
    } dialog;
    kitRequest request;
    fill(request);
    request.progress(&dialog);
    request.execute();
    EXPECT_TRUE(dialog.cancelled());
    EXPECT_EQ(dialog.told, std::vector<std::string>{"ok"});
    EXPECT_TRUE(older_output_is_there());
}

TEST_F(Driver, ShowsFileAndDirectionWhileTheWorkerRuns)
{
    kitRequest request;
    kitProgressRecorder dialog;
    fill(request);
    std::atomic<bool> seen = false;
    request.at_work = [&](s2sThreadComm & channel, int) {
        channel.currentFile("written.beta", s2sReadWriteWriting);
        while (!seen)
            std::this_thread::yield();
    };
    struct Watcher : kitProgressRecorder {
        std::atomic<bool> * seen = nullptr;
        void operationLabel(utString const & label) override
        {
            kitProgressRecorder::operationLabel(label);
            if (label == "Writing :" && last_file == "written.beta")
                *seen = true;
        }
    } watcher;
    watcher.seen = &seen;
    request.progress(&watcher);
    request.execute();
    EXPECT_EQ(watcher.last_label, utString("Writing :"));
    EXPECT_EQ(watcher.last_file, utString("written.beta"));
}

TEST_F(Driver, AnswersWithTheDetailsAfterTheDialogIsClosed)
{
    kitRequest request;
    kitProgressRecorder dialog;
    fill(request);
    request.outcomes = {{s2sThreadCompleted, 7, 2}};
    request.progress(&dialog);
    request.execute();
    ASSERT_EQ(request.communicator().num_translations(), 1);
    EXPECT_EQ(request.communicator().translation_details(0).num_processed(), 7);
    EXPECT_EQ(request.communicator().translation_details(0).num_failed(), 2);
}

TEST_F(Driver, NeverDeletesAnInputThatIsAlsoTheOutput)
{
    sglTranslation real;
    kitProgressRecorder dialog;
    fill(real);
    real.output_file(utString(input), 0);
    real.progress(&dialog);
    EXPECT_EQ(real.execute().value(), sglTranslationResult::started);
    EXPECT_EQ(dialog.told.size(), 1u);
    EXPECT_NE(dialog.told[0], "ok");
    EXPECT_EQ(kit_read_file(input), "input");
}

TEST_F(Driver, RecordsTheUseOfFormatsThatAreNoViewers)
{
    auto const place = folder() / "usage";
    app().analytics_reporter()->initialise(app().application_information(), utString(place), "", "text");
    ASSERT_TRUE(app().analytics_reporter()->usage_record().choose(true));
    outcome_of({s2sThreadCompleted, 3, 0});
    auto const reporter = app().analytics_reporter();
    EXPECT_EQ(reporter->num_read(apString(L"ALPHA")), 1);
    EXPECT_EQ(reporter->num_written(apString(L"BETA")), 1);
}

TEST_F(Driver, RecordsNoUseOfViewers)
{
    kit_install_format(folder(), "installation", "GLASS", "glass", true);
    start();
    auto const place = folder() / "usage";
    app().analytics_reporter()->initialise(app().application_information(), utString(place), "", "text");
    ASSERT_TRUE(app().analytics_reporter()->usage_record().choose(true));
    for (auto const & [from, to] : {std::pair("GLASS", "BETA"), {"ALPHA", "GLASS"}}) {
        kitRequest request;
        kitProgressRecorder dialog;
        fill(request);
        request.input_format(from, 0);
        request.output_format(to, 0);
        request.progress(&dialog);
        ASSERT_EQ(request.execute().value(), sglTranslationResult::started);
    }
    auto const reporter = app().analytics_reporter();
    EXPECT_EQ(reporter->num_read(apString(L"GLASS")), 0);
    EXPECT_EQ(reporter->num_written(apString(L"GLASS")), 0);
    EXPECT_EQ(reporter->num_read(apString(L"ALPHA")), 1);
    EXPECT_EQ(reporter->num_written(apString(L"BETA")), 1);
}

TEST_F(Driver, KeepsTheTranslatorOfAnEarlierLookUpWhereAFormatIsUnknown)
{
    kitRequest request;
    fill(request);
    EXPECT_EQ(request.find_input_dlls(), 0);
    EXPECT_EQ(request.find_output_dlls(), 0);
    request.input_format("GAMMA", 0);
    request.output_format("GAMMA", 0);
    EXPECT_EQ(request.find_input_dlls(), 0);
    EXPECT_EQ(request.find_output_dlls(), 0);
    request.input_file("b", 1);
    EXPECT_EQ(request.find_input_dlls(), 1) << "the second has never had one";
}

TEST_F(Driver, FindsTheTranslatorsOfNoFilesAtAll)
{
    kitRequest request;
    EXPECT_EQ(request.find_input_dlls(), 0);
    EXPECT_EQ(request.find_output_dlls(), 0);
}

TEST_F(Driver, EndsTheProgramOnAnExceptionInATick)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    struct Broken : kitProgressRecorder {
        int progress(int) override { throw std::runtime_error("the bar is broken"); }
    } dialog;
    kitRequest request;
    fill(request);
    request.progress(&dialog);
    EXPECT_DEATH(request.execute(), "unexpected error: the bar is broken");
}

TEST_F(Driver, NamesTheTranslatorsThatDoNotLoadInOneText)
{
    struct Request : kitRequest {
        using kitRequest::display_dll_load_error;
    } const request;
    auto const told = [&](sdbTranslatorLoadStatus const & status) {
        testing::internal::CaptureStderr();
        request.display_dll_load_error(status);
        return testing::internal::GetCapturedStderr();
    };
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    EXPECT_EQ(told(status), "");
    status.add_file_failure(apPathName::from_utf8("/lib/a.so"), "it is broken");
    status.add_file_failure(apPathName::from_utf8("/lib/b.so"), "it is not there");
    EXPECT_EQ(told(status), "Tester: Error : unable to load /lib/a.so\nError : unable to load /lib/b.so\n");
}

TEST_F(Driver, GivesTheEngineTheLimitsOfTheSettings)
{
    struct Request : kitRequest {
        using kitRequest::context;
    };
    EXPECT_EQ(Request().context().limits().patience, std::chrono::seconds(120));
    app().startup_info().add_field_without_saving("translation_patience", "17");
    EXPECT_EQ(Request().context().limits().patience, std::chrono::seconds(17));
}
