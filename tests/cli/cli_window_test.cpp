#include "cli_kit.h"

namespace {

using Window = cliTest;

} // namespace

TEST_F(Window, ThatCannotBeOpenedForWantOfADisplayIsToldInOnePlainMessage)
{
    folder.write("part.stl", cli_cube_stl());
    std::vector<std::vector<std::string>> const lines = {
        {}, {"-expert"}, {"-graphics", "part.stl"}, {"part.stl"}, {"part.stl", "part.stl"}};
    for (auto const & words : lines) {
        auto const result = run(words);
        EXPECT_EQ(result.exit_status, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors,
                  "Crosswalk: there is no display to open a window on. Translate from the command line:\n"
                  "    vmr -help\n");
    }
}
