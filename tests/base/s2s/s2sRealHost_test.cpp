#include <chrono>
#include <csignal>
#include <regex>
#include <sstream>
#include <thread>

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "engineKit.h"
#include "s2s/s2sHostProgram.h"

namespace fs = std::filesystem;

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// The engine with the translator host and the format modules of this build.
class RealHost : public EngineTest {
protected:
    RealHost() { info.set_info(s2sHOSTPROGRAM, REAL_HOST); }

    s2sTranslationElements step_to_iges(fs::path const & in, std::string const & out = "part.igs") const
    {
        auto const modules = fs::path(REAL_MODULES);
        return {{{in.native(), nullptr, (modules / "step.so").native(), 0, "STEP"}},
                {(folder / "out/" + out), nullptr, (modules / "iges.so").native(), nullptr, 0, "IGES"}};
    }

    /// The staging folders that hold a finished file of that name while only one host is left.
    bool waits_for_its_turn(std::string const & name, pid_t engine) const
    {
        std::istringstream hosts(children_of(engine));
        std::string one;
        std::string two;
        if (!(hosts >> one) || hosts >> two)
            return false;
        for (auto const & staging : left_behind())
            if (fs::exists(folder / ("out/" + staging + "/" + name)))
                return true;
        return false;
    }

    static std::string children_of(pid_t process)
    {
        std::string all;
        std::error_code error;
        fs::path const tasks = "/proc/" + std::to_string(process) + "/task";
        for (auto const & task : fs::directory_iterator(tasks, error))
            all += read_text(task.path() / "children");
        return all;
    }

    fs::path const sample = "/usr/share/opencascade/data/step/screw.step";
};

TEST_F(RealHost, TranslatesAFile)
{
    if (!fs::exists(sample))
        GTEST_SKIP() << "no sample files are installed";
    EXPECT_GT(run(step_to_iges(sample)), 0) << error_stream.text();
    EXPECT_EQ(details().status(), s2sThreadCompleted);
    EXPECT_GT(details().num_processed(), 0);
    EXPECT_EQ(comm.currentFile(), utString(folder / "out/part.igs"));
    EXPECT_THAT(names_in(folder / "out"), ::testing::ElementsAre("part.igs"));
    EXPECT_THAT(read_text(folder / "out/part.igs"), Not(HasSubstr(".vmr-")));
}

TEST_F(RealHost, ReportsADamagedFile)
{
    run(step_to_iges(make_input("bad.step", "ISO-10303-21;\nHEADER;\n")));
    EXPECT_EQ(details().status(), s2sThreadReadError);
    EXPECT_THAT(error_stream.messages(), Not(IsEmpty()));
    EXPECT_THAT(names_in(folder / "out"), IsEmpty());
}

TEST_F(RealHost, StopsWhenAsked)
{
    if (!fs::exists(sample))
        GTEST_SKIP() << "no sample files are installed";
    comm.requestTermination();
    EXPECT_EQ(run(step_to_iges(sample)), 0);
    EXPECT_EQ(details().status(), s2sThreadCancelled);
    EXPECT_THAT(names_in(folder / "out"), IsEmpty());
}

TEST_F(RealHost, LeavesNothingOfABatchWhenTheProgramIsKilled)
{
    if (!fs::exists(sample))
        GTEST_SKIP() << "no sample files are installed";
    using Clock = std::chrono::steady_clock;
    for (int const number : {SIGTERM, SIGINT, SIGKILL}) {
        // Nobody writes into the pipe, so the first entry is read for ever.
        auto const endless = folder / ("pipe" + std::to_string(number));
        ASSERT_EQ(mkfifo(endless.c_str(), 0600), 0);
        auto const engine = fork();
        if (engine == 0) {
            context.set_hosts(2);
            run_batch({step_to_iges(endless, "a.igs"), step_to_iges(sample, "b.igs")});
            _exit(0);
        }
        auto const deadline = Clock::now() + std::chrono::seconds(60);
        while (!waits_for_its_turn("b.igs", engine) && Clock::now() < deadline)
            std::this_thread::yield();
        ASSERT_TRUE(waits_for_its_turn("b.igs", engine));
        EXPECT_FALSE(fs::exists(folder / "out/b.igs"));
        kill(engine, number);
        waitpid(engine, nullptr, 0);
        while (!names_in(folder / "out").empty() && Clock::now() < deadline)
            std::this_thread::yield();
        EXPECT_THAT(names_in(folder / "out"), IsEmpty());
    }
}

TEST_F(RealHost, TranslatesABatchAsOneByOne)
{
    fs::path const samples = sample.parent_path();
    if (!fs::exists(samples))
        GTEST_SKIP() << "no sample files are installed";
    std::vector<std::string> texts[2];
    for (int const hosts : {1, 4}) {
        context.set_hosts(hosts);
        comm.reset();
        s2sTranslationElementscoPageArr entries;
        for (auto const & file : {"linkrods.step", "screw.step", "screw.step", "linkrods.step"})
            entries.append(step_to_iges(samples / file, std::to_string(entries.count()) + ".igs"));
        EXPECT_GT(run_batch(entries), 0) << error_stream.text();
        for (int i = 0; i < entries.count(); ++i) {
            auto text = read_text(folder / ("out/" + std::to_string(i) + ".igs"));
            // The time at which the file was made stands at two places of the global section.
            static std::regex const time("15H[0-9]{8}\\.[0-9]{6}");
            texts[hosts == 1 ? 0 : 1].push_back(std::regex_replace(text, time, ""));
        }
    }
    EXPECT_EQ(texts[0], texts[1]);
    EXPECT_GT(texts[0][0].size(), 100000u);
}

} // namespace
