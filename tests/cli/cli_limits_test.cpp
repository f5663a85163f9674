// What limits of the shell and of the settings make of a translation.

#include "cli_kit.h"

namespace {

struct Limited : cliTest {
    /// The program under a shell that has set a limit.
    kitProgramResult run_under(std::string const & limit) const
    {
        kitProgram program;
        program.arguments = {"/bin/sh", "-c", limit + R"( && exec "$@")", "sh", VMR_PROGRAM};
        program.arguments.insert(program.arguments.end(), words.begin(), words.end());
        program.folder = folder.path().string();
        program.environment = {{"HOME", folder / "home"}, {"PATH", "/usr/bin:/bin"}};
        return program.run();
    }
    std::vector<std::string> const words = {"cube.stl", "-t", "STEP", "-o", "out/cube.step"};
};

} // namespace

TEST_F(Limited, TranslatesWithASmallStack)
{
    auto const result = run_under("ulimit -s 64");
    EXPECT_EQ(result.exit_status, 0) << result.signal;
    EXPECT_NE(result.output.find("Verified: cube.step"), std::string::npos) << result.output;
    EXPECT_EQ(files_in("out"), std::set<std::string>{"cube.step"});
}

TEST_F(Limited, BlamesTheOutputThatIsLargerThanTheShellAllows)
{
    auto const result = run_under("ulimit -f 8");
    EXPECT_EQ(result.exit_status, 0);
    EXPECT_NE(result.output.find("out/cube.step could not be written, because it is larger than the 0.0"),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find("Fatal error writing to output file"), std::string::npos);
    EXPECT_EQ(files_in("out"), std::set<std::string>{});
}

TEST_F(Limited, NamesTheFileAndTheSettingWhereTheMemoryDoesNotSuffice)
{
    auto const result = run_under("ulimit -d 9000");
    EXPECT_EQ(result.exit_status, 0);
    EXPECT_NE(result.output.find("The memory allowed, 8 MB, does not suffice for " + folder / "cube.stl;"),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find("translation_memory"), std::string::npos);
    EXPECT_NE(result.output.find("Input file too big"), std::string::npos);
}
