#include "cli_kit.h"

#include <array>
#include <sstream>

std::string cli_cube_stl()
{
    // Each quad of the cube as its four corners, counter-clockwise seen from outside; bit 0 is x, 1 is y, 2
    // is z.
    constexpr std::array<std::array<int, 4>, 6> quads = {
        {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}}};
    std::ostringstream text;
    text << "solid cube\n";
    auto const triangle = [&](int a, int b, int c) {
        text << " facet normal 0 0 0\n  outer loop\n";
        for (int const corner : {a, b, c})
            text << "   vertex " << 10 * (corner & 1) << ' ' << 10 * (corner >> 1 & 1) << ' '
                 << 10 * (corner >> 2 & 1) << '\n';
        text << "  endloop\n endfacet\n";
    };
    for (auto const & quad : quads) {
        triangle(quad[0], quad[1], quad[2]);
        triangle(quad[0], quad[2], quad[3]);
    }
    text << "endsolid cube\n";
    return text.str();
}

cliTest::cliTest()
{
    std::filesystem::create_directories(folder / "out");
    std::filesystem::create_directories(folder / "home");
    // An ordinary user has to be able to enter and to write here when a test runs as one.
    for (auto const * name : {".", "out", "home"})
        std::filesystem::permissions(folder / name, std::filesystem::perms::all);
    folder.write("cube.stl", cli_cube_stl());
}

kitProgramResult cliTest::run(std::vector<std::string> const & words, bool as_nobody,
                              std::function<void(pid_t)> meanwhile) const
{
    kitProgram program;
    program.arguments = {VMR_PROGRAM};
    program.arguments.insert(program.arguments.end(), words.begin(), words.end());
    program.folder = folder.path().string();
    program.environment = {{"HOME", folder / "home"}, {"PATH", "/usr/bin:/bin"}};
    program.as_nobody = as_nobody;
    program.meanwhile = std::move(meanwhile);
    return program.run();
}

std::set<std::string> cliTest::files_in(std::string const & name) const
{
    std::set<std::string> names;
    for (auto const & entry : std::filesystem::directory_iterator(folder / name))
        names.insert(entry.path().filename().string());
    return names;
}

void cliTest::check(cliCase const & one) const
{
    auto const result = run(one.words);
    EXPECT_EQ(result.exit_status, one.exit_status) << result.output << result.errors;
    EXPECT_EQ(result.errors, "");
    for (auto const & text : one.says)
        EXPECT_NE(result.output.find(text), std::string::npos) << "does not say: " << text << "\n"
                                                               << result.output;
    for (auto const & text : one.says_not)
        EXPECT_EQ(result.output.find(text), std::string::npos) << "says: " << text << "\n" << result.output;
    EXPECT_EQ(files_in("out"), one.files_in_out) << result.output;
}

std::string const & cliTest::cube_step()
{
    static std::string const text = [] {
        struct Maker : cliTest {
            void TestBody() override {}
            std::string make() const
            {
                auto const result = run({"cube.stl", "-t", "STEP", "-o", "out/cube.step"});
                EXPECT_EQ(result.exit_status, 0) << result.output << result.errors;
                return kit_read_file(folder / "out/cube.step");
            }
        } const maker;
        return maker.make();
    }();
    return text;
}
