#include "sglCLTranslation.h"

#include "kit/kitFormat.h"
#include "kit/kitProgressRecorder.h"
#include "kit/kitWrapper.h"

#include <atomic>
#include <memory>

namespace {

/// A request of a command line whose job does no work.
class Request : public sglCLTranslation {
public:
    kitOutcome outcome;
    std::function<void()> at_work;
    int result_of_start = -1;

protected:
    void create_wrapper() override
    {
        s2sTranslatorElementscoPageArr inputs;
        inputs.append(input_elements(0));
        auto job = std::make_unique<kitWrapper>(channel(), s2sTranslationElements(inputs, output_elements(0)),
                                                std::vector{outcome});
        job->while_running = at_work;
        set_wrapper(std::move(job));
    }
    int start_translation() override { return result_of_start = sglCLTranslation::start_translation(); }
};

struct Recorder : kitProgressRecorder {
    std::atomic<int> ticks = 0;
    int progress(int percent) override
    {
        ++ticks;
        return kitProgressRecorder::progress(percent);
    }
};

struct CommandLineTranslation : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        kit_install_format(folder(), "installation", "ALPHA", "alpha");
        kit_install_format(folder(), "installation", "BETA", "beta");
        start();
    }
    void run(Request & request)
    {
        vmrTableInstance table(nullptr);
        request.input_file(utString(folder().write("in.alpha", "input")), 0);
        request.input_format("ALPHA", 0);
        request.input_resource_table(table, 0);
        request.output_file(utString(folder() / "out.beta"), 0);
        request.output_format("BETA", 0);
        request.output_resource_table(table, 0);
        request.output_document(nullptr, 0);
        dialog = std::make_unique<Recorder>();
        request.progress(dialog.get());
        EXPECT_EQ(request.execute().value(), sglTranslationResult::started);
    }

    void TearDown() override
    {
        dialog.reset();
        kitAppTest::TearDown();
    }

    std::unique_ptr<Recorder> dialog;
};

} // namespace

TEST_F(CommandLineTranslation, StartsWithAResultThatSaysWhatBecameOfTheWork)
{
    struct {
        kitOutcome outcome;
        int result;
        std::string told;
    } const rows[] = {
        {{s2sThreadCompleted, 3, 0}, wxID_OK, "ok"},
        {{s2sThreadWriteError, 3, 0}, wxID_CANCEL, "error: Fatal error writing to output file"},
        {{s2sThreadCompleted, 0, 0}, 9, "error: No entities were translated and no output file produced"},
        {{s2sThreadReadError, 0, 0}, 9, "error: Unable to read input file " + (folder() / "in.alpha")}};
    for (auto const & row : rows) {
        Request request;
        request.outcome = row.outcome;
        run(request);
        EXPECT_EQ(request.result_of_start, row.result) << row.told;
        EXPECT_EQ(dialog->told, std::vector<std::string>{row.told});
    }
    EXPECT_EQ(static_cast<int>(wxID_OK), 5100);
    EXPECT_EQ(static_cast<int>(wxID_CANCEL), 5101);
}

TEST_F(CommandLineTranslation, HasOneTickWithAllTheStepsAtTheEndHoweverShortItIs)
{
    Request request;
    int translating = -1;
    request.at_work = [&] { translating = getNlsHelp()->translating(); };
    run(request);
    EXPECT_EQ(translating, 1) << "the language must not change meanwhile";
    EXPECT_EQ(getNlsHelp()->translating(), 0);
    EXPECT_EQ(dialog->ticks, 1);
    EXPECT_EQ(dialog->last_percent, 100);
    EXPECT_EQ(dialog->told, std::vector<std::string>{"ok"});
}

TEST_F(CommandLineTranslation, IsTickedWhileTheWorkGoesOn)
{
    Request request;
    request.at_work = [&] {
        while (dialog->ticks < 2)
            std::this_thread::yield();
    };
    run(request);
    EXPECT_GE(dialog->ticks, 3);
    EXPECT_EQ(dialog->last_label, utString("Reading :"));
}
