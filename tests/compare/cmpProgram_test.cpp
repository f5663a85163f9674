#include "kit/kitProgram.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <nlohmann/json.hpp>
#include <poll.h>
#include <set>
#include <sstream>

using nlohmann::json;

namespace {

/// A cube of 10 with its lowest corner at (x, 0, 0), as text STL.
std::string cube_stl(double x)
{
    constexpr std::array<std::array<int, 4>, 6> quads = {
        {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}}};
    std::ostringstream text;
    text << "solid cube\n";
    auto const triangle = [&](int a, int b, int c) {
        text << " facet normal 0 0 0\n  outer loop\n";
        for (int const corner : {a, b, c})
            text << "   vertex " << x + 10 * (corner & 1) << ' ' << 10 * (corner >> 1 & 1) << ' '
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

/// A solid with curved surfaces and a name.
constexpr char const * sample = "/usr/share/opencascade/data/step/screw.step";

/// The program in a folder of its own with nothing in its environment.
class CompareProgram : public testing::Test {
protected:
    kitProgramResult run(std::vector<std::string> const & words,
                         std::map<std::string, std::string> environment = {},
                         std::function<void(pid_t)> meanwhile = nullptr) const
    {
        kitProgram program;
        program.arguments = {COMPARE_PROGRAM};
        program.arguments.insert(program.arguments.end(), words.begin(), words.end());
        program.folder = folder.path().string();
        program.environment = std::move(environment);
        program.meanwhile = std::move(meanwhile);
        return program.run();
    }

    json run_json(std::vector<std::string> words, int status) const
    {
        words.emplace_back("--json");
        auto const result = run(words);
        EXPECT_EQ(result.exit_status, status) << result.output << result.errors;
        EXPECT_EQ(result.errors, "");
        return json::parse(result.output);
    }

    void translate(std::string const & in, std::string const & format, std::string const & out) const
    {
        kitProgram program;
        program.arguments = {VMR_PROGRAM, in, "-t", format, "-o", out};
        program.folder = folder.path().string();
        program.environment = {{"HOME", folder / "home"}, {"PATH", "/usr/bin:/bin"}};
        auto const result = program.run();
        ASSERT_TRUE(folder.exists(out)) << result.output;
    }

    /// An environment in which the module of the odd formats is the user's own, with a file "a.odd" for them.
    std::map<std::string, std::string> with_odd_formats() const
    {
        auto const place = folder / "config/Quorvane/Crosswalk/translators";
        std::filesystem::create_directories(place);
        std::filesystem::path const module = ODD_MODULE;
        std::filesystem::copy(module, place);
        auto manifest = json::parse(kit_read_file(module.parent_path() / "odd.json"));
        for (auto & format : manifest["formats"])
            format.update({{"filter", ""},
                           {"category", "Odd"},
                           {"extensions", json::array()},
                           {"resource_file", "odd.rsc"}});
        folder.write("config/Quorvane/Crosswalk/translators/odd.json", manifest.dump());
        folder.write("a.odd", "odd");
        folder.write("a.stl", cube_stl(0));
        return {{"XDG_CONFIG_HOME", folder / "config"}};
    }

    static bool is_last_line(std::string const & text, std::string const & line)
    {
        return text.ends_with("\n" + line + "\n");
    }

    kitTempFolder folder;
};

} // namespace

TEST_F(CompareProgram, FindsAFileTheSameAsItself)
{
    auto const result = run({sample, sample});
    EXPECT_EQ(result.exit_status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(is_last_line(result.output, "Same")) << result.output;
    EXPECT_NE(result.output.find("volume, mm3  3788.27"), std::string::npos) << result.output;
    std::istringstream lines(result.output);
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(line.size(), 80U) << line;
}

TEST_F(CompareProgram, FindsATranslationTheSameInOtherFormats)
{
    for (auto const & [format, file] :
         {std::pair("IGES", "screw.igs"), {"BREP", "screw.brep"}, {"STEP", "b.stp"}}) {
        translate(sample, format, file);
        auto const report = run_json({sample, file}, 0);
        EXPECT_EQ(report["same"], true);
        EXPECT_EQ(report["verdict"], "verified");
        EXPECT_EQ(report["b"]["format"], format);
        EXPECT_EQ(report["differences"], json::array());
        ASSERT_EQ(report["pairs"].size(), 1U);
        EXPECT_EQ(report["pairs"][0]["kind"], "solid");
    }
}

TEST_F(CompareProgram, TellsHowFarABodyWasMoved)
{
    folder.write("a.stl", cube_stl(0));
    folder.write("b.stl", cube_stl(5));
    folder.write("far.stl", cube_stl(5000));
    for (auto const * name : {"a", "b", "far"})
        translate(std::string(name) + ".stl", "STEP", std::string(name) + ".stp");

    auto const report = run_json({"a.stp", "b.stp"}, 1);
    EXPECT_EQ(report["same"], false);
    ASSERT_EQ(report["differences"].size(), 1U) << report;
    auto const & moved = report["differences"][0];
    EXPECT_EQ(moved["kind"], "centroid");
    EXPECT_NEAR(moved["b"].get<double>(), 5, 1e-6);
    EXPECT_NEAR(report["pairs"][0]["distance"].get<double>(), 5, 1e-6);
    EXPECT_EQ(report["pairs"][0]["same"], false);
    EXPECT_NEAR(report["a"]["box"][3].get<double>(), 10, 1e-6);
    EXPECT_NEAR(report["b"]["box"][3].get<double>(), 15, 1e-6);

    EXPECT_NEAR(run_json({"a.stp", "far.stp"}, 1)["pairs"][0]["distance"].get<double>(), 5000, 1e-3);
    EXPECT_EQ(run({"a.stp", "b.stp", "--absolute", "5.001", "--quiet"}).exit_status, 0);
    EXPECT_EQ(run({"a.stp", "b.stp", "--absolute", "4.9", "--quiet"}).exit_status, 1);

    auto const table = run({"a.stp", "b.stp"});
    EXPECT_TRUE(is_last_line(table.output, "Different: one difference")) << table.output;
    EXPECT_NE(table.output.find("5 mm apart"), std::string::npos) << table.output;
}

TEST_F(CompareProgram, HoldsTrianglesAgainstSurfaces)
{
    translate(sample, "STL", "screw.stl");
    auto const near = run_json({sample, "screw.stl"}, 0);
    EXPECT_EQ(near["same"], true);
    EXPECT_GT(near["b"]["triangles"], 100);
    EXPECT_EQ(run({"screw.stl", sample, "--quiet"}).exit_status, 0);

    auto const far = run_json({sample, "screw.stl", "--deflection", "0.0001"}, 1);
    EXPECT_EQ(far["differences"].back()["kind"], "deviation");
    EXPECT_GT(far["differences"].back()["b"].get<double>(), 0.0001);

    auto const counted = run_json({sample, "screw.stl", "--counts"}, 2);
    EXPECT_EQ(counted["same"], nullptr) << "counts of triangles and of faces say nothing of each other";
    EXPECT_TRUE(counted.contains("error"));
}

TEST_F(CompareProgram, ComparesAttributesOrDoesNot)
{
    // Two transparent plates in a layer, and a hidden pin, which IGES files hold in other ways.
    std::string const source = FAULTS "/attr.step";
    translate(source, "IGES", "attr.igs");
    std::set<std::string> kinds;
    auto const report = run_json({source, "attr.igs"}, 1);
    for (auto const & difference : report["differences"])
        kinds.insert(difference["kind"]);
    EXPECT_EQ(kinds, (std::set<std::string>{"colour", "layer"})) << report;
    EXPECT_EQ(run({source, "attr.igs", "--no-colours", "--quiet"}).exit_status, 1);
    EXPECT_EQ(run({source, "attr.igs", "--no-colours", "--no-layers", "--quiet"}).exit_status, 0);

    // A format without names and assemblies is not blamed for it, unless they are asked for.
    translate(source, "BREP", "attr.brep");
    EXPECT_EQ(run({source, "attr.brep", "--quiet"}).exit_status, 0);
    EXPECT_EQ(run({source, "attr.brep", "--names", "--quiet"}).exit_status, 1);
    EXPECT_EQ(run({source, "attr.brep", "--structure", "--quiet"}).exit_status, 1);

    auto const all = run({source, source, "--all"});
    EXPECT_EQ(all.exit_status, 0);
    EXPECT_NE(all.output.find("hidden pin"), std::string::npos) << all.output;
    EXPECT_EQ(run({source, source}).output.find("hidden pin"), std::string::npos);
    EXPECT_TRUE(is_last_line(run({source, "attr.brep", "--counts"}).output, "Same by counts"));
}

TEST_F(CompareProgram, ReadsAsTheOptionsSay)
{
    folder.write("a.stl", cube_stl(0));
    EXPECT_EQ(run({"a.stl", "a.stl", "--quiet"}).exit_status, 0);
    auto const inches = run_json({"a.stl", "a.stl", "--option-b", "stlReadUnit:in"}, 1);
    EXPECT_NEAR(inches["b"]["box"][3].get<double>(), 254, 1e-3);

    for (auto const & words : std::vector<std::vector<std::string>>{{"--option-b", "stlReadUnit:parsec"},
                                                                    {"--option-a", "stlNothing:1"},
                                                                    {"--option-a", "stlReadUnit"}}) {
        auto all = words;
        all.insert(all.begin(), {"a.stl", "a.stl"});
        auto const result = run(all);
        EXPECT_EQ(result.exit_status, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(result.errors.starts_with("Could not compare: ")) << result.errors;
    }
}

TEST_F(CompareProgram, TakesTheFormatThatIsNamed)
{
    folder.write("cube", cube_stl(0));
    folder.write("a.stl", cube_stl(0));
    EXPECT_EQ(run({"a.stl", "cube", "--format-b", "stl", "--quiet"}).exit_status, 0);
    auto const unknown = run({"a.stl", "cube", "--format-b", "NONE"});
    EXPECT_EQ(unknown.exit_status, 2);
    EXPECT_NE(unknown.errors.find("BREP, IGES, STEP, STL"), std::string::npos) << unknown.errors;
}

TEST_F(CompareProgram, SaysWhyNothingCouldBeCompared)
{
    folder.write("garbage.step", "ISO-10303-21; this is no file of that kind");
    folder.write("noise.xyz", "noise");
    folder.write("a.stl", cube_stl(0));
    folder.write("no\xFFtext.stl", cube_stl(0));
    for (auto const & [words, part] : std::vector<std::pair<std::vector<std::string>, std::string>>{
             {{"a.stl", "absent.step"}, "absent.step"},
             {{"a.stl", "garbage.step"}, "garbage.step"},
             {{"a.stl", "noise.xyz"}, "--format-b"},
             {{"noise.xyz", "a.stl"}, "--format-a"},
             {{"a.stl", "."}, "folder"},
             {{"a.stl", "no\xFFtext.stl"}, "text.stl is not valid"},
             {{"a.stl"}, "B is required"},
             {{"a.stl", "a.stl", "--relative", "much"}, "--relative"},
             {{"a.stl", "a.stl", "--relative", "-1"}, "--relative"},
             {{"a.stl", "a.stl", "--deflection", "1e-9"}, "--deflection"},
             {{"a.stl", "a.stl", "--timeout", "-1"}, "--timeout"},
             {{"a.stl", "a.stl", "--timeout", "soon"}, "--timeout"},
             {{"a.stl", "a.stl", "--timeout", "nan"}, "--timeout"},
             {{"a.stl", "a.stl", "--names", "--no-names"}, "--no-names"},
             {{"a.stl", "a.stl", "--nothing"}, "--nothing"}}) {
        auto const result = run(words);
        EXPECT_EQ(result.exit_status, 2) << part;
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(result.errors.starts_with("Could not compare: ")) << result.errors;
        EXPECT_NE(result.errors.find(part), std::string::npos) << result.errors;
        auto const report = run_json(words, 2);
        EXPECT_NE(report["error"].get<std::string>().find(part), std::string::npos) << report;
    }
}

TEST_F(CompareProgram, OutlivesAReaderThatCrashes)
{
    auto const environment = with_odd_formats();
    auto const box = run({"a.odd", "a.odd", "--format-a", "Box", "--format-b", "Box"}, environment);
    EXPECT_EQ(box.exit_status, 0) << box.output << box.errors;
    auto const crash = run({"a.stl", "a.odd", "--format-b", "Crashes"}, environment);
    EXPECT_EQ(crash.exit_status, 2);
    EXPECT_NE(crash.errors.find("SIGABRT"), std::string::npos) << crash.errors;
    EXPECT_NE(crash.errors.find("a.odd"), std::string::npos) << crash.errors;

    // A reader that would wait for ever is ended with the program, as the host says when it begins with it.
    auto const ended =
        run({"a.odd", "a.odd", "--format-a", "Waits", "--format-b", "Box"}, environment, [](pid_t process) {
            auto const children =
                "/proc/" + std::to_string(process) + "/task/" + std::to_string(process) + "/children";
            for (int tries = 0; tries < 1000 && kit_read_file(children).empty(); ++tries)
                poll(nullptr, 0, 5);
            kill(process, SIGINT);
        });
    EXPECT_EQ(ended.exit_status, 2);
    EXPECT_NE(ended.errors.find("was ended"), std::string::npos) << ended.errors;
}

TEST_F(CompareProgram, EndsAReaderThatHangsWhenItsTimeIsOver)
{
    auto const environment = with_odd_formats();
    // One that listens to a request to stop, and one that does not.
    for (std::string const format : {"Waits", "Stubborn"}) {
        auto const begun = std::chrono::steady_clock::now();
        auto const result = run({"a.stl", "a.odd", "--format-b", format, "--timeout", "0.5"}, environment);
        EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(10)) << format;
        EXPECT_EQ(result.exit_status, 2) << format;
        EXPECT_EQ(result.output, "") << format;
        EXPECT_EQ(result.errors,
                  "Could not compare: It took longer than 0.5 seconds and was ended at the file " +
                      folder / "a.odd" + "; --timeout allows more\n");
    }
    auto const told =
        run({"a.odd", "a.stl", "--format-a", "Waits", "--timeout", "0.2", "--json"}, environment);
    EXPECT_EQ(told.exit_status, 2);
    EXPECT_NE(json::parse(told.output)["error"].get<std::string>().find("took longer than 0.2 seconds"),
              std::string::npos)
        << told.output;
}

TEST_F(CompareProgram, KeepsToTheMemoryOfTheSettings)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "sanitizers reserve more address space than any limit allows";
#endif
    auto const environment = with_odd_formats();
    folder.write("config/Quorvane/Crosswalk/resources/startup.hrk", "translation_memory = 400\n");
    auto const result = run({"a.stl", "a.odd", "--format-b", "Hungry"}, environment);
    EXPECT_EQ(result.exit_status, 2);
    EXPECT_NE(result.errors.find("The memory allowed, 400 MB, does not suffice for " + folder / "a.odd"),
              std::string::npos)
        << result.errors;
}

TEST_F(CompareProgram, TakesTheTimeThatItIsAllowed)
{
    folder.write("a.stl", cube_stl(0));
    EXPECT_EQ(run({"a.stl", "a.stl", "--timeout", "600", "--quiet"}).exit_status, 0);
    EXPECT_EQ(run({"a.stl", "a.stl", "--timeout", "0", "--quiet"}).exit_status, 0);
    EXPECT_EQ(run({"a.stl", "a.stl", "--timeout", "1e9", "--quiet"}).exit_status, 0);
}

TEST_F(CompareProgram, ShowsHelpAndVersion)
{
    auto const help = run({"--help"});
    EXPECT_EQ(help.exit_status, 0);
    for (auto const * option : {"--json", "--relative", "--absolute", "--deflection", "--counts", "--names",
                                "--no-names", "--colours", "--layers", "--structure", "--timeout",
                                "--format-a", "--option-b", "--quiet", "--all"})
        EXPECT_NE(help.output.find(option), std::string::npos) << option;
    auto const version = run({"--version"});
    EXPECT_EQ(version.exit_status, 0);
    EXPECT_TRUE(version.output.starts_with("vmr-compare ")) << version.output;
    EXPECT_TRUE(version.output.ends_with("\n"));
    EXPECT_EQ(run({sample, sample, "--quiet"}).output, "");
}
