#include <csignal>
#include <thread>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sys/wait.h>

#include "ap/apThread.h"
#include "engineKit.h"
#include "s2s/s2sTranslate.h"

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class Wrapper : public EngineTest {};

TEST_F(Wrapper, TranslatesAFileAndPutsTheOutputInItsPlace)
{
    EXPECT_GT(run_script("chief translated\nend completed 3 1"), 0);
    EXPECT_EQ(read_text(folder / "out/part.cad"), "translated");
    EXPECT_EQ(details().status(), s2sThreadCompleted);
    EXPECT_EQ(details().num_processed(), 3);
    EXPECT_EQ(details().num_failed(), 1);
    EXPECT_EQ(comm.num_translations(), 1);
    EXPECT_EQ(comm.progress(), 100);
    EXPECT_NE(comm.threadHasDied(), 0);
    EXPECT_EQ(error_stream.text(), "");
    EXPECT_THAT(left_behind(), ::testing::IsEmpty());
}

TEST_F(Wrapper, TellsTheDetailsWhatWasTranslated)
{
    auto const in = make_input();
    run(translation(in, folder / "out/part.cad", "chief x\nend completed 1 0"));
    auto const found = comm.translation_details(0);
    EXPECT_EQ(found.elements().first_input_file(), utString(in.native()));
    EXPECT_EQ(found.elements().output_elements().file(), utString(folder / "out/part.cad"));
}

TEST_F(Wrapper, CopiesTheElementsThatItIsGiven)
{
    auto elements = std::make_unique<s2sTranslationElements>(
        translation(make_input(), folder / "out/part.cad", "chief x\nend completed 1 0"));
    auto const wrapper = make_wrapper(*elements);
    elements.reset();
    EXPECT_GT(wrapper->run(), 0);
    EXPECT_EQ(read_text(folder / "out/part.cad"), "x");
}

TEST_F(Wrapper, PassesMessagesToTheTwoStreamsWithTheirArguments)
{
    run_script(
        R"(say {"event":"message","stream":"output","domain":"d","key":"k::%d %g %s","args":[7,0.5,"ä"]})"
        "\n"
        R"(say {"event":"message","stream":"error","domain":"e","key":"bad","args":[]})"
        "\nchief x\nend completed 1 0");
    ASSERT_EQ(output_stream.messages().size(), 1u);
    auto const message = output_stream.messages()[0];
    EXPECT_EQ(message.domain, "d");
    EXPECT_EQ(message.key, "k::%d %g %s");
    EXPECT_EQ(message.arguments, ut_text_arguments(7, 0.5, "ä"));
    ASSERT_EQ(error_stream.messages().size(), 1u);
    EXPECT_EQ(error_stream.messages()[0].key, "bad");
}

TEST_F(Wrapper, TellsWhichLinesOfAnOptionsFileHaveNoEffect)
{
    auto const options = folder / "options.rsc";
    write_text(options, "# options\nno option at all\n");
    run_script("chief x\nend completed 1 0");
    ASSERT_EQ(error_stream.messages().size(), 1u);
    EXPECT_EQ(error_stream.text(),
              "The options file " + options +
                  ", line 2: there is no \"=\". The default value of the option is used.\n");
}

TEST_F(Wrapper, LosesNoneOfManyMessagesAndKeepsTheirOrder)
{
    run_script("flood 50000\nchief x\nend completed 1 0");
    auto const outputs = output_stream.messages();
    auto const errors = error_stream.messages();
    ASSERT_EQ(outputs.size(), 45000u);
    ASSERT_EQ(errors.size(), 5000u);
    for (std::size_t i = 0; i < outputs.size(); ++i)
        ASSERT_EQ(outputs[i].arguments[0], utTextArgument(static_cast<std::int64_t>(i / 9 * 10 + i % 9)));
    for (std::size_t i = 0; i < errors.size(); ++i)
        ASSERT_EQ(errors[i].arguments[0], utTextArgument(static_cast<std::int64_t>(i * 10 + 9)));
}

TEST_F(Wrapper, FollowsTheFileTheDirectionAndTheProgress)
{
    auto const out = folder / "out/part.cad";
    std::vector<std::string> seen;
    output_stream.on_message = [&](Message const &) {
        seen.push_back(comm.currentFile().str() + (comm.writing() ? " w " : " r ") +
                       std::to_string(comm.progress()));
    };
    run_script("ready\n"
               R"(say {"event":"file","path":"/in/detail.cad","direction":"reading"})"
               "\n"
               R"(say {"event":"progress","percent":40})"
               "\nready\n"
               R"(say {"event":"progress","percent":30})"
               "\n"
               R"(say {"event":"file","path":"/out/.vmr-1/part.cad","direction":"writing"})"
               "\nready\nchief x\nend completed 1 0");
    std::vector<std::string> const expected = {folder / "in.cad" + " r 0", "/in/detail.cad r 40",
                                               out + " w 40"};
    EXPECT_EQ(seen, expected);
}

TEST_F(Wrapper, MergesSeveralInputsIntoOneOutput)
{
    s2sTranslatorElementscoPageArr inputs;
    inputs.append(input(make_input("a.cad"), "keep-job " + folder / "job\nchief x\nend completed 2 0"));
    inputs.append(input(make_input("b.cad")));
    EXPECT_GT(run({inputs, output(folder / "out/part.cad")}), 0);
    auto const job = nlohmann::json::parse(read_text(folder / "job"));
    ASSERT_EQ(job["inputs"].size(), 2u);
    EXPECT_EQ(job["inputs"][0]["file"], folder / "a.cad");
    EXPECT_EQ(job["inputs"][1]["file"], folder / "b.cad");
    EXPECT_EQ(comm.num_translations(), 1);
}

TEST_F(Wrapper, SaysOnceThatALineWasNotUnderstoodAndGoesOn)
{
    EXPECT_GT(run_script("say garbage\nsay {\"event\":\"dance\"}\nsay []\nchief x\nend completed 1 0"), 0);
    EXPECT_EQ(error_stream.messages().size(), 1u);
    EXPECT_THAT(error_stream.text(), HasSubstr("not understood: garbage"));
    EXPECT_EQ(read_text(folder / "out/part.cad"), "x");
}

TEST_F(Wrapper, TakesTextThatIsCutInTheMiddleOfACharacter)
{
    // {"event":"message","stream":"output","domain":"d","key":"\xC3"} and a line end
    std::string hex;
    for (unsigned char const c :
         std::string("{\"event\":\"message\",\"stream\":\"output\",\"domain\":\"d\",\"key\":\"a\xC3\"}\n")) {
        char const digits[] = "0123456789abcdef";
        hex += {digits[c / 16], digits[c % 16]};
    }
    run_script("bytes " + hex + "\nchief x\nend completed 1 0");
    ASSERT_EQ(output_stream.messages().size(), 1u);
    EXPECT_EQ(output_stream.messages()[0].key, "a\xEF\xBF\xBD");
}

TEST_F(Wrapper, SendsAJobThatIsLargerThanTheSocketHolds)
{
    std::string script = "chief x\nend completed 1 0\nexit 0\n";
    script.append(2000000, '#');
    EXPECT_GT(run_script(script), 0);
}

TEST_F(Wrapper, LeavesNoDescriptorAndNoChildProcess)
{
    run_script("chief x\nend completed 1 0");
    int const before = open_descriptors();
    for (auto const script : {"chief x\nend completed 1 0", "signal 9", "exit 3", "end read_error 0 0"}) {
        comm.reset();
        run_script(script);
    }
    EXPECT_EQ(open_descriptors(), before);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(Wrapper, RunsOnAThreadThatWaitsForTheLockOfTheChannel)
{
    auto const wrapper =
        make_wrapper(translation(make_input(), folder / "out/part.cad", "ready\nend completed 1 0"));
    comm.getLock()->enter();
    auto const task = std::make_shared<s2sTranslate>(wrapper.get(), &info);
    apThread thread(task, nullptr);
    EXPECT_EQ(comm.threadHasDied(), 0);
    EXPECT_EQ(comm.num_translations(), 0);
    EXPECT_TRUE(output_stream.messages().empty());
    comm.getLock()->leave();
    output_stream.wait_for("ready");
    thread.join();
    EXPECT_NE(comm.threadHasDied(), 0);
}

TEST_F(Wrapper, GivesTheResultOfTheJobAsTheResultOfTheTask)
{
    auto const wrapper =
        make_wrapper(translation(make_input(), folder / "out/part.cad", "chief x\nend completed 1 0"));
    s2sTranslate task(wrapper.get(), &info);
    EXPECT_EQ(task.result(), 0);
    task.run();
    EXPECT_GT(task.result(), 0);
}

TEST_F(Wrapper, SurvivesAStreamThatThrows)
{
    output_stream.on_message = [](Message const &) { throw std::runtime_error("pane is gone"); };
    EXPECT_EQ(run_script("ready\nchief x\nend completed 1 0"), 0);
    EXPECT_NE(comm.threadHasDied(), 0);
    EXPECT_EQ(details().status(), s2sThreadReadError);
    EXPECT_THAT(error_stream.text(), HasSubstr("pane is gone"));
    EXPECT_EQ(read_text(folder / "out/part.cad"), "(none)");
    EXPECT_THAT(left_behind(), ::testing::IsEmpty());
}

TEST_F(Wrapper, SurvivesAStreamThatThrowsWhatIsNoException)
{
    output_stream.on_message = [](Message const &) { throw 5; };
    EXPECT_EQ(run_script("ready\nend completed 1 0"), 0);
    EXPECT_NE(comm.threadHasDied(), 0);
    EXPECT_EQ(details().status(), s2sThreadReadError);
}

} // namespace
