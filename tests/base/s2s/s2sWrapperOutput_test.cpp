#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ap/apMarkedFolder.h"
#include "engineKit.h"
#include "kit/kitOrdinaryUser.h"
#include "sdu/sduFileFunctions.h"

namespace fs = std::filesystem;

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class WrapperOutput : public EngineTest {};

TEST_F(WrapperOutput, ReplacesAnOldOutputAndKeepsItsPermissions)
{
    auto const out = folder / "out/part.cad";
    write_text(out, "old");
    fs::permissions(out, static_cast<fs::perms>(0640));
    run_script("chief new\nend completed 1 0");
    EXPECT_EQ(read_text(out), "new");
    EXPECT_EQ(fs::status(out).permissions(), static_cast<fs::perms>(0640));
}

TEST_F(WrapperOutput, MovesTheFilesThatGoWithTheOutputToo)
{
    run_script("chief mesh\nwrite part.mtl colours\nwrite textures/a.png pixels\nend completed 1 0");
    EXPECT_EQ(read_text(folder / "out/part.cad"), "mesh");
    EXPECT_EQ(read_text(folder / "out/part.mtl"), "colours");
    EXPECT_EQ(read_text(folder / "out/textures/a.png"), "pixels");
    EXPECT_THAT(left_behind(), IsEmpty());
}

TEST_F(WrapperOutput, TidiesUpAfterARunThatWasKilled)
{
    auto const child = fork();
    if (child == 0)
        _exit(0);
    waitpid(child, nullptr, 0);
    std::string staging;
    output_stream.on_message = [&](Message const &) { staging = left_behind().at(0); };
    run_script("ready\nend completed 0 0");
    auto const own = "-" + std::to_string(getpid()) + "-";
    staging.replace(staging.find(own), own.size(), "-" + std::to_string(child) + "-");
    apMarkedFolder::make(apFolder::open(folder / "out"), staging);
    write_text(folder.path() / "out" / staging / "half.cad", "half");
    comm.reset();
    output_stream.on_message = nullptr;
    run_script("chief x\nend completed 1 0");
    EXPECT_THAT(names_in(folder / "out"), ElementsAre("part.cad"));
}

TEST_F(WrapperOutput, KeepsTheOldOutputWhenTheHostFails)
{
    write_text(folder / "out/part.cad", "old");
    run_script("chief half\nend write_error 1 0");
    EXPECT_EQ(read_text(folder / "out/part.cad"), "old");
    EXPECT_THAT(left_behind(), IsEmpty());
}

TEST_F(WrapperOutput, PutsNothingInPlaceWhenNoEntityWasTranslated)
{
    EXPECT_GT(run_script("chief empty\nend completed 0 4"), 0);
    EXPECT_EQ(details().status(), s2sThreadCompleted);
    EXPECT_EQ(details().num_processed(), 0);
    EXPECT_THAT(names_in(folder / "out"), IsEmpty());
}

TEST_F(WrapperOutput, TakesALinkAsNameOfWhatItPointsTo)
{
    fs::create_directory(folder / "elsewhere");
    write_text(folder / "elsewhere/real.cad", "old");
    fs::create_symlink("../elsewhere/real.cad", folder / "out/part.cad");
    run_script("chief new\nend completed 1 0");
    EXPECT_TRUE(fs::is_symlink(folder / "out/part.cad"));
    EXPECT_EQ(read_text(folder / "elsewhere/real.cad"), "new");
}

TEST_F(WrapperOutput, IsAWriteErrorWhenTheHostLeftNoOutput)
{
    EXPECT_EQ(run_script("end completed 5 0"), 0);
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_THAT(error_stream.text(), HasSubstr("left no output file " + folder / "out/part.cad"));
}

TEST_F(WrapperOutput, RefusesAnOutputThatIsItsInput)
{
    auto const in = make_input();
    EXPECT_EQ(run(translation(in, in, "chief x\nend completed 1 0")), 0);
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_EQ(error_stream.text(), "The output file " + in.native() +
                                       " is also an input file. Choose another name for the output.\n");
    EXPECT_EQ(error_stream.messages()[0].key,
              "engine::The output file %s is also an input file. Choose another "
              "name for the output.\n");
    EXPECT_EQ(read_text(in), "input");
}

TEST_F(WrapperOutput, RefusesAnotherNameOfAnInput)
{
    auto const in = make_input();
    fs::create_symlink(in, folder / "out/soft.cad");
    fs::create_hard_link(in, folder / "out/hard.cad");
    for (auto const & name : {folder / "out/soft.cad", folder / "out/hard.cad", folder / "out/../in.cad"}) {
        comm.reset();
        EXPECT_EQ(run(translation(in, name, "chief x\nend completed 1 0")), 0);
        EXPECT_EQ(details().status(), s2sThreadWriteError) << name;
        EXPECT_EQ(read_text(in), "input");
    }
    EXPECT_EQ(error_stream.messages().size(), 3u);
}

TEST_F(WrapperOutput, RefusesTheNameOfAnInputThatIsMissingToo)
{
    auto const in = folder / "gone.cad";
    EXPECT_EQ(run(translation(in, folder / "out/../gone.cad", "end completed 1 0")), 0);
    EXPECT_EQ(details().status(), s2sThreadWriteError);
}

TEST_F(WrapperOutput, KeepsItsInputsFromBeingDeleted)
{
    auto const in = make_input();
    {
        auto const wrapper = make_wrapper(translation(in, in, "end completed 1 0"));
        wrapper->run();
        EXPECT_EQ(sdu_remove_file(in.native()), sduFileProtected);
        EXPECT_EQ(read_text(in), "input");
    }
    EXPECT_EQ(sdu_remove_file(in.native()), sduFileDone);
}

TEST_F(WrapperOutput, RefusesToReplaceAnInputWithAFileThatGoesWithTheOutput)
{
    auto const in = folder / "out/part.bin";
    write_text(in, "input");
    EXPECT_EQ(run(translation(in, folder / "out/part.gltf", "chief x\nwrite part.bin y\nend completed 1 0")),
              0);
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_EQ(read_text(in), "input");
    EXPECT_THAT(names_in(folder / "out"), ElementsAre("part.bin"));
    EXPECT_THAT(error_stream.text(), HasSubstr("would replace the input file " + in));
}

TEST_F(WrapperOutput, RefusesWhatIsNoOrdinaryFileAndKeepsIt)
{
    mkfifo((folder / "out/pipe").c_str(), 0600);
    EXPECT_EQ(run(translation(make_input(), folder / "out/pipe", "chief x\nend completed 1 0")), 0);
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_THAT(error_stream.text(), HasSubstr("is not an ordinary file"));
    EXPECT_THAT(names_in(folder / "out"), ElementsAre("pipe"));
}

TEST_F(WrapperOutput, NamesAMissingFolder)
{
    EXPECT_EQ(run(translation(make_input(), folder / "none/part.cad", "chief x\nend completed 1 0")), 0);
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_EQ(error_stream.text(), "The output folder " + folder / "none" +
                                       " does not exist. Create the folder or choose another one.\n");
}

TEST_F(WrapperOutput, NamesAFolderThatCannotBeWrittenTo)
{
    fs::permissions(folder / "out", fs::perms::owner_read | fs::perms::owner_exec);
    give_to_ordinary_user(folder / "out");
    give_to_ordinary_user(folder.path().string());
    EXPECT_TRUE(as_ordinary_user([&] {
        int const result = run_script("chief x\nend completed 1 0");
        EXPECT_THAT(error_stream.text(), HasSubstr("folder " + folder / "out" + " cannot be written to"));
        return result == 0 && details().status() == s2sThreadWriteError && !HasFailure();
    }));
}

TEST_F(WrapperOutput, NamesAFolderInWhichNobodyCanWrite)
{
    EXPECT_EQ(run(translation(make_input(), "/proc/part.cad", "chief x\nend completed 1 0")), 0);
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_THAT(error_stream.text(), HasSubstr("folder /proc cannot be written to"));
}

TEST_F(WrapperOutput, SaysThatTheOutputHasNoName)
{
    EXPECT_EQ(run(translation(make_input(), "", "chief x\nend completed 1 0")), 0);
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_EQ(error_stream.text(), "There is no name for the output file. Give one.\n");
}

TEST_F(WrapperOutput, NamesANameThatIsTooLong)
{
    EXPECT_EQ(run(translation(make_input(), folder / "out/" + std::string(300, 'n'), "end completed 1 0")),
              0);
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_THAT(error_stream.text(), HasSubstr("too long"));
}

TEST_F(WrapperOutput, KeepsAWriteProtectedFile)
{
    auto const out = folder / "out/part.cad";
    write_text(out, "old");
    fs::permissions(out, fs::perms::owner_read);
    auto const job = translation(make_input(), out, "chief x\nend completed 1 0");
    give_to_ordinary_user(out);
    give_to_ordinary_user(folder / "out");
    give_to_ordinary_user(folder.path().string());
    EXPECT_TRUE(as_ordinary_user([&] { return run(job) == 0 && details().status() == s2sThreadWriteError; }));
    EXPECT_EQ(read_text(out), "old");
}

TEST_F(WrapperOutput, TakesPathsRelativeToTheCurrentFolder)
{
    auto const before = fs::current_path();
    fs::current_path(folder.path());
    make_input();
    EXPECT_GT(run(translation("in.cad", "part.cad", "chief x\nend completed 1 0")), 0);
    fs::current_path(before);
    EXPECT_EQ(read_text(folder / "part.cad"), "x");
}

} // namespace
