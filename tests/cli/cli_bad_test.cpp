#include "cli_kit.h"

#include <sys/mount.h>

namespace {

class BadCommandLine : public cliTest, public testing::WithParamInterface<cliCase> {};

// One line a case. A translation that was run and failed ends with 0: the status tells whether it
// could be ordered.
// clang-format off
cliCase const cases[] = {
    {"NoArgumentsAfterTheFile", {"part.step", "-t"}, 2, {"Invalid arguments specified on the command line", "Usage :"}, {}},
    {"Help", {"-help"}, 2, {"Usage :"}, {}},
    {"TranslateFirst", {"-t", "IGES"}, 2, {"-t[ranslate] found in unexpected place in command line"}, {}},
    {"NoFile", {"nothing.step", "-t", "IGES", "-o", "out/a.igs"}, 2, {"The input file nothing.step does not exist"}, {}},
    {"NoOutput", {"part.step", "-t", "IGES"}, 2, {"Invalid arguments"}, {}},
    {"NoOutputWord", {"part.step", "-t", "IGES", "out/a.igs"}, 2, {"-output is not specified on the command line"}, {}},
    {"UnknownFormat", {"part.step", "-t", "PARASOL", "-o", "out/a.x"}, 2, {"Requested output format PARASOL not recognised"}, {}},
    {"UnknownInput", {"unknown.xyz", "-t", "IGES", "-o", "out/a.igs"}, 2, {"Can not determine the format of file unknown.xyz"}, {}},
    {"RefusedDecryption", {"-d", "a", "b"}, 2, {"no longer supported"}, {}},
    {"EmptyFile", {"empty.step", "-t", "IGES", "-o", "out/a.igs"}, 0, {"Unable to read input file", "empty.step is empty"}, {}},
    {"TextFileNamedStep", {"text.step", "-t", "IGES", "-o", "out/a.igs"}, 0, {"Unable to read input file", "text.step is not a STEP file"}, {}},
    {"TruncatedStep", {"truncated.step", "-t", "IGES", "-o", "out/a.igs"}, 0, {"Unable to read input file", "truncated.step is cut off", "\nNot verified: a.igs was not written\n"}, {}},
    {"RandomBytesAfterARightHeader", {"random.step", "-t", "IGES", "-o", "out/a.igs"}, 0, {"Unable to read input file", "/random.step"}, {}},
    {"StepWithoutGeometry", {"nogeometry.step", "-t", "IGES", "-o", "out/a.igs"}, 0, {"Not verified: a.igs was not written\n"}, {}, {"ended unexpectedly"}},
    {"IgesNamedStep", {"iges.step", "-t", "BREP", "-o", "out/a.brep"}, 0, {"iges.rsc"}, {"a.brep"}},
    {"RandomBytesNamedStl", {"random.stl", "-t", "STEP", "-o", "out/a.step"}, 0, {"Unable to read input file", "/random.stl "}, {}},
    {"RandomBytesNamedBrep", {"random.brep", "-t", "STEP", "-o", "out/a.step"}, 0, {"Unable to read input file", "/random.brep "}, {}},
    {"RandomBytesNamedIges", {"random.igs", "-t", "STEP", "-o", "out/a.step"}, 0, {"Unable to read input file", "/random.igs "}, {}},
    {"NoOutputFolder", {"part.step", "-t", "IGES", "-o", "out/none/a.igs"}, 0, {"Fatal error writing to output file", "out/none", "Not verified: a.igs was not written\n"}, {}},
    {"OutputWithoutAName", {"part.step", "-t", "IGES", "-o", ""}, 0, {"There is no name for the output file."}, {}},
    {"OutputAmongTheFilesOfTheKernel", {"part.step", "-t", "IGES", "-o", "/proc/a.igs"}, 0, {"The output folder /proc cannot be written to."}, {}},
    {"LogIsTheInput", {"part.step", "-t", "IGES", "-o", "out/a.igs", "-log", "out/../part.step"}, 2, {"The log file out/../part.step is also named as another file"}, {}},
    {"LogIsTheOutput", {"part.step", "-t", "IGES", "-o", "out/a.igs", "-log", "out/a.igs"}, 2, {"The log file out/a.igs is also named as another file"}, {}},
    {"NoVerdictWanted", {"truncated.step", "-t", "IGES", "-o", "out/a.igs", "-res_opt", "vmrOptVerify:none"}, 0, {"truncated.step is cut off"}, {}, {"erified", "was not written"}},
    {"OutputIsTheInput", {"part.step", "-t", "STEP", "-o", "part.step"}, 0, {"is also an input file"}, {}},
    {"OutputIsTheInputByAnotherPath", {"part.step", "-t", "STEP", "-o", "out/../part.step"}, 0, {"is also an input file"}, {}},
    {"DamagedOptionsFile", {"part.step", "-t", "IGES", "-o", "out/a.igs", "damaged.rsc"}, 0, {"The options file damaged.rsc, line 1", "banana", "line 2"}, {"a.igs"}},
    {"FolderAsInput", {"out", "-t", "STEP", "-o", "a.step"}, 2, {"The input file out does not exist"}, {}},
};
// clang-format on

} // namespace

TEST_P(BadCommandLine, GetsAClearAnswerAndLosesNothing)
{
    std::string const step = cube_step();
    auto const data = step.find("DATA;");
    std::string noise;
    for (unsigned state = 1; noise.size() < 4000; state = state * 1103515245u + 12345u)
        noise += static_cast<char>(state >> 16);
    folder.write("part.step", step);
    folder.write("empty.step", "");
    folder.write("text.step", "Dear customer,\nthis is not a part.\n");
    folder.write("truncated.step", step.substr(0, step.size() * 2 / 3));
    folder.write("random.step", step.substr(0, data + 5) + noise);
    folder.write("nogeometry.step", step.substr(0, data + 5) + "\nENDSEC;\nEND-ISO-10303-21;\n");
    folder.write("damaged.rsc", "igesWriteSolids = banana\nno option at all\n");
    folder.write("unknown.xyz", "what is this?");
    folder.write("random.stl", "solid" + noise);
    folder.write("random.brep", "DBRep_DrawableShape\n\nCASCADE Topology V1, (c) Matra-Datavision\n" + noise);
    folder.write("random.igs", noise);
    if (GetParam().name == std::string("IgesNamedStep")) {
        run({"part.step", "-t", "IGES", "-o", "iges.igs"});
        std::filesystem::rename(folder / "iges.igs", folder / "iges.step");
    }
    check(GetParam());
    EXPECT_EQ(kit_read_file(folder / "part.step"), step);
}

INSTANTIATE_TEST_SUITE_P(Table, BadCommandLine, testing::ValuesIn(cases),
                         [](auto const & one) { return one.param.name; });

namespace {

using BadPlace = cliTest;

} // namespace

TEST_F(BadPlace, AFileThatMayNotBeReadIsRefused)
{
    folder.write("part.step", cube_step());
    std::filesystem::permissions(folder / "part.step", std::filesystem::perms::none);
    auto const result = run({"part.step", "-t", "IGES", "-o", "out/a.igs"}, true);
    EXPECT_NE(result.output.find("part.step"), std::string::npos);
    EXPECT_NE(result.output.find("ermission"), std::string::npos) << result.output;
    EXPECT_TRUE(files_in("out").empty());
}

TEST_F(BadPlace, AFolderThatMayNotBeWrittenIsNamed)
{
    std::filesystem::permissions(
        folder / "out", std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec |
                            std::filesystem::perms::others_read | std::filesystem::perms::others_exec);
    auto const result = run({"cube.stl", "-t", "BREP", "-o", "out/a.brep"}, true);
    EXPECT_NE(result.output.find("Fatal error writing to output file"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("ermission"), std::string::npos) << result.output;
    EXPECT_TRUE(files_in("out").empty());
}

TEST_F(BadPlace, AFullDiskLeavesTheOlderOutputAndNothingElse)
{
    if (getuid() != 0 || mount("vmr-test", (folder / "out").c_str(), "tmpfs", 0, "size=16k") != 0)
        GTEST_SKIP() << "a small disk can only be made by root";
    std::string big;
    for (int i = 0; i < 40; ++i)
        big += cli_cube_stl();
    folder.write("big.stl", big);
    folder.write("out/a.stl", "the user's old output");
    auto const result = run({"big.stl", "-t", "STL", "-o", "out/a.stl", "-res_opt", "stlWriteForm:text"});
    auto const left = files_in("out");
    auto const older = folder.read("out/a.stl");
    umount((folder / "out").c_str());
    EXPECT_NE(result.output.find("Fatal error writing to output file"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("No space left on device"), std::string::npos) << result.output;
    EXPECT_EQ(left, std::set<std::string>{"a.stl"});
    EXPECT_EQ(older, "the user's old output");
}

TEST_F(BadPlace, APathOfFourThousandBytesWorksOrIsRefusedInWords)
{
    std::string path = "out";
    while (path.size() < 3900)
        path += "/" + std::string(100, 'd');
    auto const result = run({path + "/part.step", "-t", "IGES", "-o", path + "/a.igs"});
    EXPECT_EQ(result.exit_status, 2);
    EXPECT_NE(result.output.find("does not exist"), std::string::npos);

    auto const written = run({"cube.stl", "-t", "BREP", "-o", path + "/a.brep"});
    EXPECT_EQ(written.exit_status, 0);
    EXPECT_NE(written.output.find("Fatal error writing to output file"), std::string::npos) << written.output;
    EXPECT_EQ(written.errors, "");
    EXPECT_TRUE(files_in("out").empty());
}

TEST_F(BadPlace, ALineThatCannotBeUnderstoodLeavesAnExistingOutputAsItWas)
{
    folder.write("out/a.igs", "the user's own");
    run({"cube.stl", "-t", "IGES", "out/a.igs"});
    EXPECT_EQ(kit_read_file(folder / "out/a.igs"), "the user's own");
}
