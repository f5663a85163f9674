#include "cli_kit.h"

namespace {

class GoodCommandLine : public cliTest, public testing::WithParamInterface<cliCase> {};

std::string const japanese = "\xE9\x83\xA8\xE5\x93\x81 e\xCC\x81t\xC3\xA9"; // with a combining accent

// One line a case.
// clang-format off
cliCase const cases[] = {
    {"StepToIges", {"part.step", "-t", "IGES", "-o", "out/part.igs"}, 0, {"Finished reading", "Translation(s) complete"}, {"part.igs"}},
    {"StepToBrep", {"part.step", "-t", "BREP", "-o", "out/part.brep"}, 0, {"100%"}, {"part.brep"}},
    {"StepToStl", {"part.step", "-t", "STL", "-o", "out/part.stl"}, 0, {"100%"}, {"part.stl"}},
    {"StlToStep", {"cube.stl", "-t", "STEP", "-o", "out/part.step"}, 0, {"100%"}, {"part.step"}},
    {"StlToBrep", {"cube.stl", "-t", "BREP", "-o", "out/part.brep"}, 0, {"100%"}, {"part.brep"}},
    {"LongSpellings", {"-modeller", "part.step", "-tolerance", "0.5", "-translate", "STL", "-units", "in", "-output", "out/a.stl", "-surface"}, 0, {"Triangulation tolerance 0.500000", "Output length units : in"}, {"a.stl"}},
    {"BlanksInPaths", {"my  own part.step", "-t", "STEP", "-o", "out/the output.step"}, 0, {"File name is out/the output.step"}, {"the output.step"}},
    {"JapaneseAndCombiningLetters", {japanese + ".step", "-t", "IGES", "-o", "out/" + japanese + ".igs"}, 0, {"File name is out/" + japanese + ".igs"}, {japanese + ".igs"}},
    {"QuotesInPaths", {"it's 5\"wide\".step", "-t", "STEP", "-o", "out/x.step"}, 2, {}, {}},
    {"AQuoteWithoutABlank", {"5\"wide.step", "-t", "STEP", "-o", "out/5\"wide.step"}, 0, {"File name is out/5\"wide.step"}, {"5\"wide.step"}},
    {"ALeadingBlankAndAnApostrophe", {" it's.step", "-t", "STEP", "-o", "out/it's.step"}, 0, {}, {"it's.step"}},
    {"ConversionsInAName", {"100%s%n%d.step", "-t", "STEP", "-o", "out/100%s%n%d.step"}, 0, {"File name is out/100%s%n%d.step"}, {"100%s%n%d.step"}},
    {"FormatByContent", {"step.txt", "-t", "IGES", "-o", "out/part.igs"}, 0, {"step.rsc"}, {"part.igs"}},
    {"ResourceFileOfTheInput", {"part.step", "-r", "mine.rsc", "-t", "IGES", "-o", "out/part.igs"}, 0, {"Resource file to be used is mine.rsc"}, {"part.igs"}},
    {"ResourceFileOfTheOutput", {"part.step", "-t", "STL", "-o", "out/part.stl", "text.rsc"}, 0, {"Resource file to be used is text.rsc"}, {"part.stl"}},
    {"ResourceOverride", {"part.step", "-t", "STL", "-o", "out/part.stl", "-res_opt", "stlWriteForm:text"}, 0, {}, {"part.stl"}, {"Unable to modify"}},
    {"IllegalOverride", {"part.step", "-t", "STL", "-o", "out/part.stl", "-res_opt", "stlWriteForm:purple"}, 0, {"Unable to modify resource stlWriteForm with value purple", "The value purple does not fit the option stlWriteForm; binary is used instead"}, {"part.stl"}},
    {"OverrideOutOfItsLimits", {"part.step", "-t", "STL", "-o", "out/part.stl", "-res_opt", "stlAngularDeflection:1000"}, 0, {"Unable to modify resource stlAngularDeflection with value 1000", "The value 1000 of the option stlAngularDeflection is not between 0.1 and 90; 20 is used instead"}, {"part.stl"}},
    {"ToleranceBelowTheLeast", {"part.step", "-tol", "1e-8", "-t", "STL", "-o", "out/part.stl"}, 0, {"The value 1e-08 of the option vmrTolTriangulate3d is less than the least one, 1e-07; 0.1 is used instead"}, {"part.stl"}},
    {"SurfacesOnly", {"part.step", "-t", "STEP", "-o", "out/part.step", "-s"}, 0, {}, {"part.step"}, {"No entities"}},
    {"WireframeOnlyOfASolid", {"part.step", "-t", "STEP", "-o", "out/part.step", "-w"}, 0, {"No entities were translated and no output file produced"}, {}},
    {"VerdictOnTheOutput", {"part.step", "-t", "IGES", "-o", "out/part.igs"}, 0, {"part.igs was read back and agrees with the source\n", "Verified: "}, {"part.igs"}},
    {"VerdictByCounts", {"part.step", "-t", "IGES", "-o", "out/part.igs", "-res_opt", "vmrOptVerify:counts"}, 0, {"Verified by counts: "}, {"part.igs"}},
    {"NoVerdictWanted", {"part.step", "-t", "IGES", "-o", "out/part.igs", "-res_opt", "vmrOptVerify:none"}, 0, {"100%"}, {"part.igs"}, {"erified", "read back"}},
    {"Log", {"part.step", "-t", "STEP", "-o", "out/part.step", "-log", "out/run.log"}, 0, {}, {"part.step", "run.log"}},
    {"UnitsUnknown", {"part.step", "-t", "STEP", "-u", "ells", "-o", "out/part.step"}, 0, {"--> Invalid units string"}, {"part.step"}},
};
// clang-format on

} // namespace

TEST_P(GoodCommandLine, DoesWhatItSays)
{
    for (auto const & name : {std::string("part.step"), std::string("my  own part.step"), japanese + ".step",
                              std::string("5\"wide.step"), std::string(" it's.step"), std::string("step.txt"),
                              std::string("100%s%n%d.step"), std::string("it's 5\"wide\".step")})
        folder.write(name, cube_step());
    folder.write("mine.rsc", "stepReadHealing = false\n");
    folder.write("text.rsc", "stlWriteForm = text\n");
    if (GetParam().name == std::string("QuotesInPaths")) {
        auto const result = run(GetParam().words);
        EXPECT_EQ(result.exit_status, 2);
        EXPECT_NE(result.errors.find("holds both a blank and a double quote"), std::string::npos)
            << result.errors;
        EXPECT_TRUE(files_in("out").empty());
        return;
    }
    check(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Table, GoodCommandLine, testing::ValuesIn(cases),
                         [](auto const & one) { return one.param.name; });

using Program = cliTest;

namespace Cli {

TEST_F(Program, WritesTextStlWhenTheResourceFileSaysSo)
{
    folder.write("text.rsc", "stlWriteForm = text\n");
    run({"cube.stl", "-t", "STL", "-o", "out/part.stl", "text.rsc"});
    EXPECT_EQ(kit_read_file(folder / "out/part.stl").rfind("solid", 0), 0u);
}

TEST_F(Program, SaysTheSameInItsLogAsOnStandardOutput)
{
    auto const result = run({"cube.stl", "-t", "BREP", "-o", "out/part.brep", "-log", "run.log"});
    EXPECT_EQ(kit_read_file(folder / "run.log"), result.output);
}

TEST_F(Program, WritesItsUnitsIntoTheFile)
{
    run({"cube.stl", "-t", "STEP", "-u", "in", "-o", "out/part.step"});
    EXPECT_NE(kit_read_file(folder / "out/part.step").find("INCH"), std::string::npos);
}

TEST_F(Program, LeavesFilesOnlyBelowTheUsersConfiguration)
{
    auto const result = run({"cube.stl", "-t", "BREP", "-o", "out/part.brep"}, true);
    EXPECT_EQ(result.exit_status, 0) << result.output << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(files_in("home"), std::set<std::string>{".config"});
    EXPECT_EQ(files_in("home/.config"), std::set<std::string>{"Quorvane"});
    EXPECT_EQ(files_in("out"), std::set<std::string>{"part.brep"});
}

TEST_F(Program, WorksForAUserWithoutAHomeThatCanBeWritten)
{
    std::filesystem::permissions(folder / "home",
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    auto const result = run({"cube.stl", "-t", "BREP", "-o", "out/part.brep"}, true);
    EXPECT_EQ(result.exit_status, 0) << result.output << result.errors;
    EXPECT_NE(result.errors.find("Could not find a writable location for user configuration file."),
              std::string::npos);
    EXPECT_EQ(files_in("out"), std::set<std::string>{"part.brep"});
}

TEST_F(Program, StartsFromItsCacheTheSecondTime)
{
    run({"-help"});
    auto const cache = folder / "home/.config/Quorvane/Crosswalk/cache/translators.lst";
    ASSERT_TRUE(std::filesystem::exists(cache));
    auto const written = std::filesystem::last_write_time(cache);
    run({"-help"});
    EXPECT_EQ(std::filesystem::last_write_time(cache), written);
    std::filesystem::resize_file(cache, 10);
    auto const result = run({"cube.stl", "-t", "BREP", "-o", "out/part.brep"});
    EXPECT_EQ(result.exit_status, 0) << result.output;
    EXPECT_GT(std::filesystem::file_size(cache), 10u);
}

TEST_F(Program, SaysNothingOfADamagedConfigurationFile)
{
    std::string const damaged = "[abc\nfoo\n=bar\n[x]y\n[x]\n";
    folder.write("home/.config/Crosswalk.conf", damaged);
    auto const result = run({"cube.stl", "-t", "BREP", "-o", "out/part.brep"});
    EXPECT_EQ(result.exit_status, 0) << result.output;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(folder.read("home/.config/Crosswalk.conf"), damaged);
    EXPECT_FALSE(folder.exists("home/.config/Crosswalk.conf.damaged"));
}

TEST_F(Program, WorksForAUserWithoutAHome)
{
    kitProgram program;
    program.arguments = {VMR_PROGRAM, "cube.stl", "-t", "BREP", "-o", "out/part.brep"};
    program.folder = folder.path().string();
    program.environment = {{"HOME", folder / "no/home"}, {"PATH", "/usr/bin:/bin"}};
    // Root too, which could make one anywhere.
    for (bool const as_nobody : {true, false}) {
        program.as_nobody = as_nobody;
        auto const result = program.run();
        EXPECT_EQ(result.exit_status, 0) << result.output;
        EXPECT_EQ(result.errors,
                  "Crosswalk: Could not find a writable location for user configuration file.\n");
        EXPECT_EQ(files_in("out"), std::set<std::string>{"part.brep"});
        EXPECT_FALSE(folder.exists("no"));
        EXPECT_TRUE(files_in("home").empty());
    }
}

class ProgramInALanguage : public cliTest {
protected:
    kitProgramResult run_in(char const * locale, std::string const & input) const
    {
        kitProgram program;
        program.arguments = {VMR_PROGRAM, input, "-t", "IGES", "-o", "out/x.igs"};
        program.folder = folder.path().string();
        program.environment = {{"HOME", folder / "home"}, {"LANG", locale}};
        return program.run();
    }
};

class GermanProgram : public ProgramInALanguage {
protected:
    kitProgramResult run_in_german(std::string const & input) const { return run_in("de_DE.UTF-8", input); }
};

TEST_F(ProgramInALanguage, SpeaksEachThatIsThereAndOtherwiseEnglish)
{
    struct {
        char const * locale;
        char const * said;
    } const languages[] = {
        {"de_AT.UTF-8", "Die Eingabedatei nothing.step ist nicht vorhanden\n"},
        {"fr_FR.UTF-8", "Le fichier d’entrée nothing.step n’existe pas\n"},
        {"ja_JP.UTF-8", "入力ファイル nothing.step がありません\n"},
        {"tlh_XX.UTF-8", "The input file nothing.step does not exist\n"},
    };
    for (auto const & [locale, said] : languages) {
        auto const result = run_in(locale, "nothing.step");
        EXPECT_EQ(result.exit_status, 2) << locale;
        EXPECT_NE(result.output.find(said), std::string::npos) << locale << result.output;
        EXPECT_EQ(result.errors, "") << locale;
    }
}

TEST_F(GermanProgram, SpeaksTheLanguageOfTheUser)
{
    auto const result = run_in_german("nothing.step");
    EXPECT_EQ(result.exit_status, 2);
    EXPECT_NE(result.output.find("Die Eingabedatei nothing.step ist nicht vorhanden\n"), std::string::npos)
        << result.output;
    EXPECT_EQ(result.errors, "");
}

TEST_F(GermanProgram, PutsTheMessagesOfTranslatorsIntoTheLanguageOfTheUser)
{
    folder.write("cube.step", cube_step());
    auto const good = run_in_german("cube.step");
    EXPECT_EQ(good.exit_status, 0);
    EXPECT_NE(good.output.find("\nLängeneinheit der Ausgabe: "), std::string::npos) << good.output;
    EXPECT_EQ(good.output.find("Length unit"), std::string::npos) << good.output;

    folder.write("cut off.step", "ISO-10303-21;\nHEADER;\n");
    auto const bad = run_in_german("cut off.step");
    EXPECT_NE(bad.output.find(" ist abgeschnitten: Nach 22 Bytes fehlt das Ende der Daten; "),
              std::string::npos)
        << bad.output;
}

TEST_F(GermanProgram, PutsTheMessagesOfTheEngineIntoTheLanguageOfTheUser)
{
    folder.write("cube.step", cube_step());
    std::filesystem::remove(folder / "out");
    auto const result = run_in_german("cube.step");
    EXPECT_NE(result.output.find(" ist nicht vorhanden. Legen Sie es an oder wählen Sie ein anderes.\n"),
              std::string::npos)
        << result.output;
}

} // namespace Cli
