#include <csignal>

#include <gmock/gmock.h>

#include "engineKit.h"
#include "s2s/s2sHostProgram.h"

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string const writing = R"(say {"event":"file","path":"p","direction":"writing"})"
                            "\n";

class WrapperFailure : public EngineTest {
protected:
    void expect_failed(s2sThreadStatus status) const
    {
        EXPECT_EQ(details().status(), status);
        EXPECT_NE(comm.threadHasDied(), 0);
        EXPECT_EQ(comm.num_translations(), 1);
        EXPECT_THAT(names_in(folder / "out"), IsEmpty());
    }
};

TEST_F(WrapperFailure, PassesOnWhatTheHostReports)
{
    std::pair<char const *, s2sThreadStatus> const cases[] = {{"read_error", s2sThreadReadError},
                                                              {"write_error", s2sThreadWriteError},
                                                              {"too_big", s2sThreadFileTooBig},
                                                              {"cancelled", s2sThreadCancelled}};
    for (auto const & [name, status] : cases) {
        comm.reset();
        EXPECT_EQ(run_script(std::string("chief half\nend ") + name + " 0 2"), 0);
        expect_failed(status);
        EXPECT_EQ(details().num_failed(), 2);
    }
}

TEST_F(WrapperFailure, NamesTheFileAndTheSignalWhenTheHostCrashesWhileReading)
{
    EXPECT_EQ(run_script("chief half\nsignal " + std::to_string(SIGSEGV)), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_EQ(error_stream.text(),
              "The translator ended unexpectedly (SIGSEGV) while reading " + folder / "in.cad" +
                  ". The file may be damaged; try to save it again in the program that made "
                  "it.\n");
}

TEST_F(WrapperFailure, NamesTheOutputWhenTheHostCrashesWhileWriting)
{
    EXPECT_EQ(run_script(writing + "chief half\nsignal " + std::to_string(SIGABRT)), 0);
    expect_failed(s2sThreadWriteError);
    EXPECT_THAT(error_stream.text(), HasSubstr("(SIGABRT) while writing " + folder / "out/part.cad"));
}

TEST_F(WrapperFailure, BlamesTheMemoryAndNotTheFileWhenTheHostIsKilled)
{
    EXPECT_EQ(run_script("signal " + std::to_string(SIGKILL)), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_THAT(error_stream.text(), HasSubstr("was killed (SIGKILL) while reading " + folder / "in.cad"));
    EXPECT_THAT(error_stream.text(), HasSubstr("lower the setting translation_memory."));
    comm.reset();
    EXPECT_EQ(run_script(writing + "signal " + std::to_string(SIGKILL)), 0);
    expect_failed(s2sThreadWriteError);
    EXPECT_THAT(error_stream.text(),
                HasSubstr("was killed (SIGKILL) while writing " + folder / "out/part.cad"));
}

TEST_F(WrapperFailure, BlamesTheTimeAllowedWhenTheHostHasUsedItUp)
{
    EXPECT_EQ(run_script("signal " + std::to_string(SIGXCPU)), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_THAT(error_stream.text(), HasSubstr("ended (SIGXCPU) while reading " + folder / "in.cad"));
    comm.reset();
    EXPECT_EQ(run_script(writing + "signal " + std::to_string(SIGXCPU)), 0);
    expect_failed(s2sThreadWriteError);
    EXPECT_THAT(error_stream.text(), HasSubstr("(SIGXCPU) while writing " + folder / "out/part.cad"));
    EXPECT_THAT(error_stream.text(), HasSubstr("(ulimit -t)"));
}

TEST_F(WrapperFailure, NamesTheExitStatusWhenTheHostLeavesWithoutALastWord)
{
    EXPECT_EQ(run_script("exit 3"), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_THAT(error_stream.text(), HasSubstr("(exit status 3)"));
}

TEST_F(WrapperFailure, KeepsTheMessagesThatCameBeforeACrash)
{
    run_script("flood 1000\nsignal 9");
    EXPECT_EQ(output_stream.messages().size(), 901u) << "with the verdict";
    EXPECT_THAT(error_stream.text(), HasSubstr("SIGKILL"));
}

TEST_F(WrapperFailure, EndsWhenTheHostClosesTheSocketAndStays)
{
    EXPECT_EQ(run_script("close\ndeaf"), 0);
    expect_failed(s2sThreadReadError);
}

TEST_F(WrapperFailure, GoesByTheLastWordOfAHostThatThenStays)
{
    EXPECT_GT(run_script("chief x\nend completed 1 0\ndeaf"), 0);
    EXPECT_EQ(details().status(), s2sThreadCompleted);
    EXPECT_EQ(read_text(folder / "out/part.cad"), "x");
}

TEST_F(WrapperFailure, NamesAMissingInput)
{
    EXPECT_EQ(run(translation(folder / "gone.cad", folder / "out/part.cad", "end completed 1 0")), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_THAT(error_stream.text(), HasSubstr(folder / "gone.cad" + " could not be opened"));
    EXPECT_EQ(comm.currentFile(), utString(folder / "gone.cad"));
}

TEST_F(WrapperFailure, NamesTheMissingOneOfSeveralInputs)
{
    s2sTranslatorElementscoPageArr inputs;
    inputs.append(input(make_input(), "end completed 1 0"));
    inputs.append(input(folder / "gone.cad"));
    EXPECT_EQ(run({inputs, output(folder / "out/part.cad")}), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_EQ(comm.currentFile(), utString(folder / "gone.cad"));
}

TEST_F(WrapperFailure, RefusesAFolderAsInput)
{
    EXPECT_EQ(run(translation(folder.path(), folder / "out/part.cad", "end completed 1 0")), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_THAT(error_stream.text(), HasSubstr("is a folder"));
}

TEST_F(WrapperFailure, RefusesATranslationWithoutInput)
{
    EXPECT_EQ(run({{}, output(folder / "out/part.cad")}), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_THAT(error_stream.text(), HasSubstr("no input file"));
}

TEST_F(WrapperFailure, RefusesANameThatIsNoText)
{
    EXPECT_EQ(run(translation(make_input("bad\xFFname.cad"), folder / "out/part.cad", "end completed 1 0")),
              0);
    expect_failed(s2sThreadReadError);
    EXPECT_THAT(error_stream.text(), HasSubstr("not valid UTF-8"));
}

TEST_F(WrapperFailure, NamesAMissingHost)
{
    info.set_info(s2sHOSTPROGRAM, "/nowhere/vmr-host");
    EXPECT_EQ(run_script("end completed 1 0"), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_EQ(error_stream.text(), "The translator program /nowhere/vmr-host is missing. Repair the "
                                   "installation.\n");
}

TEST_F(WrapperFailure, NamesAHostThatIsNoProgram)
{
    info.set_info(s2sHOSTPROGRAM, make_input("no-program").native());
    EXPECT_EQ(run_script("end completed 1 0"), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_THAT(error_stream.text(), HasSubstr("no-program could not be started"));
}

TEST_F(WrapperFailure, ChecksTheModulesBeforeTheStart)
{
    write_text(folder / "module.json", R"({"interface": 2})");
    EXPECT_EQ(run_script("chief x\nend completed 1 0"), 0);
    expect_failed(s2sThreadReadError);
    EXPECT_THAT(error_stream.text(), HasSubstr("module.so was made for another version"));
}

TEST(HostProgram, LiesBesideTheFolderOfTheRunningProgram)
{
    vmrabsAppInfo const info("test", "test", "test", "test", "");
    auto const self = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_EQ(s2s_host_program(info).str(), self.parent_path().parent_path() / "libexec/vmr/vmr-host");
}

} // namespace
