#include <gmock/gmock.h>
#include <sys/wait.h>

#include "batchKit.h"
#include "s2s/s2sBatchAhead.h"
#include "s2s/s2sBatchMarker.h"
#include "s2s/s2sHostProgram.h"

namespace fs = std::filesystem;

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class BatchAhead : public BatchTest {
protected:
    BatchAhead() { context.set_hosts(3); }

    std::vector<std::string> outputs() const
    {
        auto names = names_in(folder / "out");
        std::erase_if(names, [](std::string const & name) { return name[0] == '.'; });
        return names;
    }
    std::vector<int> statuses(int count) const
    {
        std::vector<int> all;
        for (int i = 0; i < count; ++i)
            all.push_back(comm.translation_details(i).status());
        return all;
    }

    s2sEngineParts const parts{context, info, comm, &loader, &output_stream, &error_stream};
    std::vector<fs::path> const no_inputs;
    s2sHostLink current{-1}; // of the entry whose turn it is, and which says nothing
};

TEST_F(BatchAhead, TranslatesSeveralAtTheSameTime)
{
    auto const pipe = fifo("pipe");
    EXPECT_GT(run_batch({entry("a", "await " + pipe + "\nchief 1\nend completed 1 0"),
                         entry("b", "tell " + pipe + "\nchief 2\nend completed 1 0")}),
              0);
    EXPECT_EQ(read_text(folder / "out/a"), "1");
    EXPECT_EQ(read_text(folder / "out/b"), "2");
    EXPECT_THAT(left_behind(), IsEmpty());
}

TEST_F(BatchAhead, ShowsEverythingInTheOrderOfTheQueue)
{
    struct Moment {
        std::string key;
        int begun;
        std::string file;
        std::vector<std::string> outputs;
        bool operator==(Moment const &) const = default;
    };
    std::vector<Moment> moments;
    output_stream.on_message = [&](Message const & message) {
        if (message.domain == "d")
            moments.push_back({message.key, comm.num_translations(), comm.currentFile().str(), outputs()});
    };
    auto const one = fifo("one");
    auto const two = fifo("two");
    EXPECT_GT(run_batch({entry("a", "await " + one + "\nawait " + two + "\n" + say("output", "1") +
                                        say("error", "first") + "chief 1\nend completed 1 0"),
                         entry("b", "hold " + one + "\n" + say("output", "2") + "chief 2\nend completed 2 0"),
                         entry("c", "hold " + two + "\n" + say("output", "3") + say("error", "third") +
                                        "chief 3\nend completed 3 0")}),
              0);
    std::vector<Moment> const expected = {
        {"1", 1, folder / "a", {}}, {"2", 2, folder / "b", {"a"}}, {"3", 3, folder / "c", {"a", "b"}}};
    EXPECT_EQ(moments, expected);
    auto output = output_stream.text();
    auto errors = error_stream.text();
    for (auto const * section : {"1\n", "2\n", "3"})
        EXPECT_EQ(cut_section(output), section);
    for (auto const * section : {"first\n", "", "third"})
        EXPECT_EQ(cut_section(errors), section);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(comm.translation_details(i).num_processed(), i + 1);
        EXPECT_EQ(comm.translation_details(i).elements().first_input_file(),
                  utString(folder / std::string(1, static_cast<char>('a' + i))));
    }
    EXPECT_THAT(outputs(), ElementsAre("a", "b", "c"));
}

TEST_F(BatchAhead, GivesTheProgressOfEachFromItsBeginning)
{
    std::vector<std::pair<int, int>> seen;
    output_stream.on_message = [&](Message const & message) {
        if (message.key == "ready" || message.domain == "DO_NOT_TRANSLATE")
            seen.emplace_back(comm.num_translations(), comm.progress());
    };
    auto const pipe = fifo("pipe");
    run_batch({entry("a", say_progress(40) + "await " + pipe + "\nready\nend completed 0 0"),
               entry("b", "hold " + pipe + "\n" + say_progress(60) + "ready\n" + say_progress(90) +
                              "ready\nend completed 0 0")});
    std::vector<std::pair<int, int>> const expected = {{1, 0}, {1, 0},  {1, 40}, {2, 0},
                                                       {2, 0}, {2, 60}, {2, 90}};
    EXPECT_EQ(seen, expected);
}

TEST_F(BatchAhead, LosesNoneOfManyMessages)
{
    auto const pipe = fifo("pipe");
    EXPECT_GT(
        run_batch({entry("a", "await " + pipe + "\n" + say("output", "done") + "chief x\nend completed 1 0"),
                   entry("b", "tell " + pipe + "\nflood 100000\nchief x\nend completed 100000 0")}),
        0);
    EXPECT_EQ(comm.translation_details(1).num_processed(), 100000);
    int next = 0;
    for (auto const & message : output_stream.messages())
        if (message.domain == "test") {
            EXPECT_EQ(message.arguments[0], utTextArgument(next));
            next += next % 10 == 8 ? 2 : 1;
        }
    EXPECT_EQ(next, 100000);
    auto text = output_stream.text();
    EXPECT_EQ(cut_section(text), "done\n");
}

TEST_F(BatchAhead, DoesAgainInItsTurnWhatCrashedInCompany)
{
    // The third begins when the second has ended.
    context.set_hosts(2);
    auto const pipe = fifo("pipe");
    auto const mark = folder / "mark";
    EXPECT_GT(run_batch({entry("a", "await " + pipe + "\nend completed 0 0"),
                         entry("b", "crash-once " + mark + "\nchief 2\nend completed 2 0"),
                         entry("c", "tell " + pipe + "\nchief 3\nend completed 3 0")}),
              0);
    EXPECT_TRUE(fs::exists(mark));
    EXPECT_EQ(read_text(folder / "out/b"), "2");
    auto errors = error_stream.text();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(cut_section(errors), "");
}

TEST_F(BatchAhead, TellsOnceOfOneThatCrashesAlways)
{
    // The third begins when the second has ended.
    context.set_hosts(2);
    auto const pipe = fifo("pipe");
    auto const mark = folder / "mark";
    EXPECT_EQ(run_batch({entry("a", "await " + pipe + "\nend completed 0 0"),
                         entry("b", "crash-once " + mark + "\nsignal 11"),
                         entry("c", "tell " + pipe + "\nchief 3\nend completed 3 0")}),
              0);
    EXPECT_THAT(statuses(3), ElementsAre(s2sThreadCompleted, s2sThreadReadError, s2sThreadCompleted));
    auto errors = error_stream.text();
    EXPECT_EQ(cut_section(errors), "");
    auto const section = cut_section(errors);
    EXPECT_THAT(section, HasSubstr("SIGSEGV"));
    EXPECT_EQ(section.find("SIGSEGV"), section.rfind("SIGSEGV"));
    EXPECT_EQ(cut_section(errors), "");
    EXPECT_EQ(read_text(folder / "out/c"), "3");
}

TEST_F(BatchAhead, LeavesRoomForTheHostOfAnEntryThatEndedBadly)
{
    context.set_hosts(2);
    auto const third = folder / "third";
    s2sTranslationElementscoPageArr entries;
    entries.append(entry("a", ""));
    entries.append(entry("b", "exit 1"));
    entries.append(entry("c", "make " + third + "\ndeaf"));
    entries.append(entry("d", "deaf"));
    s2sBatchAhead ahead(parts, entries, no_inputs);
    EXPECT_EQ(ahead.take(0), nullptr);
    while (!fs::exists(third)) {
        auto const soon = ahead.attend(current, true);
        s2s_wait_for(ahead.links(), -1, soon);
    }
    EXPECT_EQ(ahead.links().size(), 1U);
    for (int i = 0; i < 3; ++i)
        ahead.attend(current, false);
    EXPECT_EQ(ahead.links().size(), 1U) << "the second starts its own";
    EXPECT_EQ(ahead.take(1), nullptr);
}

TEST_F(BatchAhead, TakesABadEndForOneThoughTheHostIsStillThere)
{
    context.set_hosts(2);
    s2sTranslationElementscoPageArr entries;
    entries.append(entry("a", ""));
    entries.append(entry("b", "end write_error 0 1\ndeaf"));
    entries.append(entry("c", "end completed 1 0\ndeaf"));
    s2sBatchAhead ahead(parts, entries, no_inputs);
    auto const run_ahead_until_it_ends = [&](int turn) {
        EXPECT_EQ(ahead.take(turn), nullptr);
        ahead.attend(current, true);
        ASSERT_EQ(ahead.links().size(), 1U);
        while (!ahead.links().front()->has_line())
            s2s_wait_for(ahead.links(), -1, std::nullopt);
    };
    run_ahead_until_it_ends(0);
    run_ahead_until_it_ends(1);
    EXPECT_NE(ahead.take(2), nullptr);
}

TEST_F(BatchAhead, KeepsWhatCouldNotBeReadAheadEither)
{
    auto const pipe = fifo("pipe");
    run_batch({entry("a", "await " + pipe + "\nend completed 0 0"),
               entry("b", "hold " + pipe + "\n" + say("error", "bad") + "end read_error 0 1")});
    EXPECT_EQ(comm.translation_details(1).status(), s2sThreadReadError);
    auto errors = error_stream.text();
    cut_section(errors);
    EXPECT_EQ(cut_section(errors), "bad");
}

TEST_F(BatchAhead, SaysTheSameHoweverManyAreAtWork)
{
    auto const everything = [&](int hosts) {
        context.set_hosts(hosts);
        fs::remove_all(folder / "out");
        fs::create_directory(folder / "out");
        write_text(folder / "out/protected", "old");
        fs::permissions(folder / "out/protected", fs::perms::owner_read);
        Recorder output;
        Recorder errors;
        s2sThreadComm channel(nullptr);
        auto const input = make_input("in");
        auto const good = say("output", "said") + "chief x\nend completed 1 0";
        s2sBatchWrapper const batch(
            context, info, channel, &loader, &output, &errors,
            {entry("a", "flood 1000\n" + good), translation(folder / "missing", folder / "out/b", good),
             translation(input, folder / "nowhere/c", good),
             translation(input, folder / "out/protected", good), entry("e", say("error", "bad") + "exit 3"),
             translation(input, input, good), entry("g", "say nonsense\n" + good),
             translation(folder.path(), folder / "out/h", good), entry("i", "end write_error 0 1"),
             entry("j", "end too_big 0 0"), entry("k", good), entry("l", "end completed 0 0")});
        EXPECT_EQ(batch.run(), 0);
        std::string all = output.text() + errors.text();
        for (int i = 0; i < 13; ++i) {
            auto const details = channel.translation_details(i);
            all += std::to_string(details.status()) + ' ' + std::to_string(details.num_processed()) + ' ';
        }
        for (auto const & name : names_in(folder / "out"))
            all += name + '=' + read_text(folder / ("out/" + name)) + ' ';
        return all;
    };
    auto const alone = everything(1);
    EXPECT_THAT(alone, HasSubstr("a=x g=x k=x "));
    EXPECT_EQ(everything(2), alone);
    EXPECT_EQ(everything(5), alone);
}

TEST_F(BatchAhead, SaysForEachThatTheHostIsMissing)
{
    info.set_info(s2sHOSTPROGRAM, folder / "nowhere");
    EXPECT_EQ(run_batch({entry("a", ""), entry("b", "")}), 0);
    EXPECT_THAT(statuses(2), ElementsAre(s2sThreadReadError, s2sThreadReadError));
    auto errors = error_stream.text();
    EXPECT_THAT(cut_section(errors), HasSubstr("nowhere"));
    EXPECT_THAT(cut_section(errors), HasSubstr("nowhere"));
    EXPECT_THAT(left_behind(), IsEmpty());
}

TEST_F(BatchAhead, BeginsNothingAheadWithOneHost)
{
    context.set_hosts(1);
    auto const script = "lock " + folder / "lock" + "\nflood 1000\nchief x\nend completed 1 0";
    EXPECT_GT(run_batch({entry("a", script), entry("b", script), entry("c", script)}), 0);
    EXPECT_THAT(outputs(), ElementsAre("a", "b", "c"));
}

TEST_F(BatchAhead, LetsNoneOvertakeAnotherWithTheSameOutput)
{
    context.set_hosts(2);
    auto const pipe = fifo("pipe");
    auto const lock = "lock " + folder / "lock" + "\n";
    EXPECT_GT(
        run_batch({translation(make_input("a"), folder / "out/same",
                               lock + "await " + pipe + "\nchief 1\nend completed 1 0"),
                   translation(make_input("b"), folder / "out/same", lock + "chief 2\nend completed 1 0"),
                   entry("c", "tell " + pipe + "\nend completed 0 0")}),
        0);
    EXPECT_EQ(read_text(folder / "out/same"), "2");
}

TEST_F(BatchAhead, ReadsWhatAnEarlierEntryHasWritten)
{
    auto const pipe = fifo("pipe");
    fs::create_symlink(folder / "out/new", folder / "link");
    EXPECT_GT(run_batch({translation(make_input("a"), folder / "out/new",
                                     "await " + pipe + "\nchief fresh\nend completed 1 0"),
                         translation(folder / "link", folder / "out/b",
                                     "copy " + folder / "link" + "\nend completed 1 0"),
                         entry("c", "tell " + pipe + "\nend completed 0 0")}),
              0);
    EXPECT_EQ(read_text(folder / "out/b"), "fresh");
}

TEST_F(BatchAhead, ReadsAgainWhatBelongsToAnInputAndHasChanged)
{
    auto const pipe = fifo("pipe");
    auto const mark = folder / "mark";
    auto const input = folder / "out/mesh.in";
    write_text(input, "");
    write_text(folder / "out/mesh.lib", "old");
    EXPECT_GT(run_batch({translation(make_input("a"), folder / "out/a",
                                     "await " + pipe + "\nchief 1\nwrite mesh.lib new\nend completed 1 0"),
                         translation(input, folder / "out/b",
                                     "unless " + mark + " hold " + pipe + "\nmake " + mark + "\ncopy " +
                                         folder / "out/mesh.lib" + "\nend completed 1 0")}),
              0);
    EXPECT_EQ(read_text(folder / "out/b"), "new");
    EXPECT_THAT(left_behind(), IsEmpty());
}

TEST_F(BatchAhead, LeavesNoDescriptorsAndNoProcesses)
{
    s2sTranslationElementscoPageArr entries;
    for (int i = 0; i < 60; ++i)
        entries.append(entry(std::to_string(i), i % 7 == 3 ? "exit 1" : "chief x\nend completed 1 0"));
    int const before = open_descriptors();
    run_batch(entries);
    EXPECT_EQ(open_descriptors(), before);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
    EXPECT_EQ(comm.num_translations(), 60);
    EXPECT_THAT(left_behind(), IsEmpty());
}

} // namespace
