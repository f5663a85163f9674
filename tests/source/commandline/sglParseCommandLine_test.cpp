#include "sglParseCommandLine.h"

#include "kit/kitFormat.h"

#include <cstring>
#include <functional>
#include <iostream>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Parser : public sglParseCommandLine {
public:
    using sglParseCommandLine::handle_translator_error;
    using sglParseCommandLine::input_resource_file;
    using sglParseCommandLine::output_resource_file;
    using sglParseCommandLine::pre_process_settings;
    using sglParseCommandLine::sglParseCommandLine;
    using sglParseCommandLine::translation;
};

/// Parses lines with the formats ALPHA and BETA, from a folder with the file in.alpha, whose name stands in a
/// line as IN; OUT is a file that is not there.
struct CommandLine : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        kit_install_format(folder(), "installation", "ALPHA", "alpha");
        kit_install_format(folder(), "installation", "BETA", "beta");
        start();
        folder().write("in.alpha", "input");
    }
    void TearDown() override
    {
        parser.reset();
        kitAppTest::TearDown();
    }

    std::string with_paths(std::string line) const
    {
        for (auto const & [name, path] :
             {std::pair{"IN", folder() / "in.alpha"}, {"OUT", folder() / "out.beta"}})
            for (auto at = line.find(name); at != std::string::npos; at = line.find(name, at + path.size()))
                if ((at == 0 || line[at - 1] == ' ') &&
                    (at + std::strlen(name) == line.size() || line[at + std::strlen(name)] == ' '))
                    line.replace(at, std::strlen(name), path);
        return line;
    }
    int parse(std::string const & line)
    {
        parser.reset();
        testing::internal::CaptureStdout();
        parser = std::make_unique<Parser>(*app().application_information(), with_paths(line).c_str());
        int const result = parser->parse();
        std::cout.flush();
        said = testing::internal::GetCapturedStdout();
        return result;
    }
    bool says(std::string const & text) const { return said.find(text) != std::string::npos; }
    utString input_value(char const * name)
    {
        return parser->translation().input_resource_table(0).effective_value(name);
    }
    utString output_value(char const * name)
    {
        return parser->translation().output_resource_table(0).effective_value(name);
    }
    int captured(std::function<int()> const & action)
    {
        testing::internal::CaptureStdout();
        int const result = action();
        std::cout.flush();
        said = testing::internal::GetCapturedStdout();
        return result;
    }
    void settle()
    {
        captured([this] {
            parser->pre_process_settings();
            return 0;
        });
    }
    int translate()
    {
        return captured([this] { return parser->translate(); });
    }

    std::unique_ptr<Parser> parser;
    std::string said;
};

} // namespace

TEST_F(CommandLine, MakesATranslationOfTheShortestForm)
{
    EXPECT_EQ(parse("IN -t BETA -o OUT"), 1) << said;
    EXPECT_EQ(parser->translation().input_file(0), utString(folder() / "in.alpha"));
    EXPECT_EQ(parser->translation().input_format(0), utString("ALPHA"));
    EXPECT_EQ(parser->translation().output_file(0), utString(folder() / "out.beta"));
    EXPECT_EQ(parser->translation().output_format(0), utString("BETA"));
    EXPECT_EQ(parser->input_resource_file(), utString(installation() + "/share/vmr/resources/alpha.rsc"));
    EXPECT_TRUE(says("Resource file to be used is " + installation() + "/share/vmr/resources/beta.rsc\n"));
}

TEST_F(CommandLine, StartsWithWhoItIsAndWhatItWasGiven)
{
    parse("IN -t BETA -o OUT");
    EXPECT_EQ(said.find("Testing Company"), 0u) << said;
    EXPECT_TRUE(says("Project Build (No Status File)\n\n"));
    EXPECT_TRUE(says("The command line was " + with_paths("IN -t BETA -o OUT") + "\n\n"));
}

TEST_F(CommandLine, ShowsTheUsageOnHelp)
{
    EXPECT_EQ(parse("-help"), 0);
    EXPECT_TRUE(says("\nUsage : \n\nStandard Translation :\n\nvmr [-h[elp]] [-m[odeller]] \n"
                     "     infile [-tol[erance] tol] [-in.rsc] [-r in_resource]\n"
                     "     -t[ranslate] output_format [-u[units] output_length_units]\n"
                     "     [-res_opt inresource1:value1 [inresource2:value2]]"
                     "     -o[utput] output_file [-out.rsc]  [-r out_resource_file]\n"
                     "     [-w[ire] -s[urface]]\n"
                     "     [-res_opt outresource1:value1 [outresource2:value2]]\n"
                     "     [-log log_file]\n\n\n"
                     "Decrypting Pro/Engineer files :\n\nvmr [-m[odeller]] -d[ecrypt_proe] infile outfile\n\n"
                     "Extracting CATIA fic files :\n\nvmr -e[xport2fic] infile outfile\n\n"
                     "Start Tester in Expert mode :\n\nvmr -expert\n\n"
                     "Start Tester in Graphics mode :\n\nvmr.exe [-graphics] file1 [file2]\n\n"))
        << said;
}

TEST_F(CommandLine, RefusesTranslateAsTheFirstWord)
{
    EXPECT_EQ(parse("-t BETA -o OUT"), 0);
    EXPECT_TRUE(says("-t[ranslate] found in unexpected place in command line\n"));
    EXPECT_TRUE(says("Usage : "));
}

TEST_F(CommandLine, RefusesALineThatEndsAfterTranslate)
{
    EXPECT_EQ(parse("IN -t"), 0);
    EXPECT_TRUE(says("Invalid arguments specified on the command line\n"));
    EXPECT_TRUE(says("Usage : "));
}

TEST_F(CommandLine, RefusesTranslateInThePlaceOfTheTolerance)
{
    EXPECT_EQ(parse("IN -tol -t BETA -o OUT"), 0);
    EXPECT_TRUE(says("-t[ranslate] found in unexpected place in command line\n"));
}

TEST_F(CommandLine, GoesOnWithAnInvalidToleranceAndAddsNoToleranceResources)
{
    EXPECT_EQ(parse("IN -tol 0 -t BETA -o OUT"), 1);
    EXPECT_TRUE(says("---> Invalid Tolerance\n\n"));
    EXPECT_FALSE(says("Triangulation tolerance"));
    settle();
    EXPECT_TRUE(
        parser->translation().input_resource_table(0).table()->value("vmrTolTriangulate3d").invalid());
}

TEST_F(CommandLine, PutsTheToleranceIntoBothTables)
{
    EXPECT_EQ(parse("IN -tolerance 0.25 -t BETA -o OUT"), 1);
    EXPECT_TRUE(says("Triangulation tolerance 0.250000\n\n"));
    settle();
    for (auto const * name : {"vmrTolTriangulate3d", "vmrTolPolygonizeCurve2d", "vmrTolPolygonizeCurve3d"}) {
        EXPECT_EQ(input_value(name), utString("0.25")) << name;
        EXPECT_EQ(output_value(name), utString("0.25")) << name;
    }
    EXPECT_EQ(input_value("vmrTolCurveOnSurface3d"), utString("2.5"));
    EXPECT_EQ(output_value("vmrTolCurveOnSurface3d"), utString("2.5"));
}

TEST_F(CommandLine, KeepsAToleranceBelowTheLeastForTheTranslationToTell)
{
    EXPECT_EQ(parse("IN -tol 1e-8 -t BETA -o OUT"), 1);
    settle();
    for (auto const * table :
         {&parser->translation().input_resource_table(0), &parser->translation().output_resource_table(0)}) {
        EXPECT_EQ(table->refused_overrides().at("vmrTolTriangulate3d"), "1e-08");
        EXPECT_EQ(table->effective_value("vmrTolTriangulate3d"),
                  vmrTableInstance().effective_value("vmrTolTriangulate3d"));
    }
}

TEST_F(CommandLine, TakesAnyWordInThePlaceOfTranslate)
{
    EXPECT_EQ(parse("IN anything BETA -o OUT"), 1);
}

TEST_F(CommandLine, TakesAnUnknownOptionForTheInputFile)
{
    EXPECT_EQ(parse("-x IN -t BETA -o OUT"), 0);
    EXPECT_TRUE(says("The input file -x does not exist\n\n"));
}

TEST_F(CommandLine, UsesAToleranceWithSomethingBehindItAllTheSame)
{
    EXPECT_EQ(parse("IN -tol 1x -t BETA -o OUT"), 1) << said;
    EXPECT_TRUE(says("---> Invalid Tolerance\n\n"));
    EXPECT_TRUE(says("Triangulation tolerance 1.000000\n\n"));
}

TEST_F(CommandLine, TakesHelpAfterModellerForTheInputFile)
{
    EXPECT_EQ(parse("-m -h"), 0);
    EXPECT_TRUE(says("The input file -h does not exist\n\n"));
    EXPECT_EQ(parse("-modeller IN -t BETA -o OUT"), 1);
}

TEST_F(CommandLine, RefusesWhatIsNoLongerSupported)
{
    for (auto const * word : {"-d", "-decrypt_proe"}) {
        EXPECT_EQ(parse(std::string(word) + " a b"), 0);
        EXPECT_TRUE(said.ends_with("cl:Decrypting Pro/Engineer files is no longer supported")) << said;
    }
    for (auto const * word : {"-e", "-m -export2fic"}) {
        EXPECT_EQ(parse(std::string(word) + " a b"), 0);
        EXPECT_TRUE(said.ends_with("cl:Extracting CATIA fic files is no longer supported\n")) << said;
    }
}

TEST_F(CommandLine, SaysWhenTheFormatOfTheInputIsUnknown)
{
    auto const file = folder().write("in.gamma", "?");
    EXPECT_EQ(parse(file + " -t BETA -o OUT"), 0);
    EXPECT_TRUE(says("Can not determine the format of file " + file + "\n"));
}

TEST_F(CommandLine, SaysWhenTheOutputFormatIsUnknown)
{
    EXPECT_EQ(parse("IN -t GAMMA -o OUT"), 0);
    EXPECT_TRUE(says("Requested output format GAMMA not recognised\n\n"));
}

TEST_F(CommandLine, NeedsAnOutput)
{
    EXPECT_EQ(parse("IN -t BETA OUT"), 0);
    EXPECT_TRUE(says("-output is not specified on the command line\n\n"));
}

TEST_F(CommandLine, LowersTheCaseOfUnits)
{
    EXPECT_EQ(parse("IN -t BETA -units IN_CAPITALS -o OUT"), 1);
    EXPECT_TRUE(says("Output length units : in_capitals\n"));
    EXPECT_TRUE(says("--> Invalid units string\n\n"));
    EXPECT_EQ(parse("IN -t BETA -u MM -o OUT"), 1);
    EXPECT_FALSE(says("Invalid units"));
    settle();
    EXPECT_EQ(output_value("vmrOptOutputUnits"), utString("mm"));
    EXPECT_EQ(parse("IN -t BETA -u Inch -output OUT"), 1);
    settle();
    EXPECT_EQ(output_value("vmrOptOutputUnits"), utString("in"));
}

TEST_F(CommandLine, TakesTheUnitsOfTheResourceFileWithoutTheOption)
{
    folder().write("metres.rsc", "vmrOptOutputUnits = m\n");
    EXPECT_EQ(parse("IN -t BETA -o OUT -r " + (folder() / "metres.rsc")), 1);
    settle();
    EXPECT_EQ(output_value("vmrOptOutputUnits"), utString("m"));
}

TEST_F(CommandLine, TurnsTheFlagsIntoResources)
{
    parse("IN -t BETA -o OUT -w");
    settle();
    EXPECT_EQ(output_value("vmrOptProcessSurfaces"), utString("false"));
    parse("IN -t BETA -o OUT -surface");
    settle();
    EXPECT_EQ(output_value("vmrOptProcessWireframe"), utString("false"));
    parse("IN -t BETA -o OUT -wire -s");
    settle();
    EXPECT_EQ(output_value("vmrOptProcessSurfaces"), utString("false"));
    EXPECT_EQ(output_value("vmrOptProcessWireframe"), utString("false"));
    EXPECT_TRUE(says("\nReading file " + (folder() / "in.alpha") + "\n\n\n\nWriting the translation to "));
}

TEST_F(CommandLine, TakesAWordThatEndsInRscForTheResourceFileOnBothSides)
{
    auto const in = folder().write("in.rsc", "alphaGreeting = in\n");
    auto const out = folder().write("outrsc", "betaGreeting = out\n");
    EXPECT_EQ(parse("IN " + in + " -t BETA -o OUT " + out), 1);
    EXPECT_EQ(input_value("alphaGreeting"), utString("in"));
    EXPECT_EQ(output_value("betaGreeting"), utString("out"));
}

TEST_F(CommandLine, TakesNoWordOfFourCharactersForAResourceFile)
{
    // ".rsc" is examined as the word in the place of -t, and the next one as the format.
    EXPECT_EQ(parse("IN .rsc BETA -o OUT"), 1);
}

TEST_F(CommandLine, TakesResOptInTheThirdPlaceForAResourceFile)
{
    EXPECT_EQ(parse("IN -res_opt alphaGreeting:x -t BETA -o OUT"), 1);
    EXPECT_TRUE(says("The resource file alphaGreeting:x does not exist\n"));
}

TEST_F(CommandLine, TakesAWordWithBothMarksDifferentlyOnTheTwoSides)
{
    auto const named = folder().write("named.txt", "alphaGreeting = named\n");
    EXPECT_EQ(parse("IN -reads.rsc " + named + " -t BETA -o OUT"), 1);
    EXPECT_EQ(parser->input_resource_file(), utString(named));
    EXPECT_EQ(parse("IN -t BETA -o OUT -writes.rsc"), 1);
    EXPECT_TRUE(says("The resource file -writes.rsc does not exist\n"));
}

TEST_F(CommandLine, FindsAResourceFileByNameInTheResourceDirectories)
{
    auto const users = folder().write("user/Tester/resources/mine.rsc", "alphaGreeting = mine\n");
    EXPECT_EQ(parse("IN -r mine.rsc -t BETA -o OUT"), 1);
    EXPECT_EQ(parser->input_resource_file(), utString(users));
}

TEST_F(CommandLine, MakesADefaultFileForAMissingOne)
{
    EXPECT_EQ(parse("IN -r nowhere.rsc -t BETA -o OUT"), 1);
    EXPECT_TRUE(says("The resource file nowhere.rsc does not exist\n"));
    EXPECT_EQ(parser->input_resource_file(), utString(installation() + "/share/vmr/resources/Default"));
}

TEST_F(CommandLine, WritesNothingWhenTheDefaultFileCannotBeMadeEither)
{
    std::filesystem::create_directories(installation() + "/share/vmr/resources/Default");
    EXPECT_EQ(parse("IN -t BETA -o OUT -r nowhere.rsc"), 0);
    EXPECT_TRUE(says("The resource file nowhere.rsc does not exist\n"));
    EXPECT_TRUE(says("No output to file "));
}

TEST_F(CommandLine, OverridesResourcesOfTheInputBeforeTheOutputWord)
{
    EXPECT_EQ(parse("IN -t BETA -res_opt alphaGreeting:moin vmrTolTriangulate3d:0.5 -o OUT"), 1);
    EXPECT_EQ(input_value("alphaGreeting"), utString("moin"));
    EXPECT_EQ(input_value("vmrTolTriangulate3d"), utString("0.5"));
}

TEST_F(CommandLine, OverridesResourcesOfTheOutputBehindIt)
{
    EXPECT_EQ(parse("IN -t BETA -o OUT -res_opt \"betaGreeting:hello to all\" vmrTolTriangulate3d:2 -w"), 1);
    EXPECT_EQ(output_value("betaGreeting"), utString("hello to all"));
    EXPECT_EQ(output_value("vmrTolTriangulate3d"), utString("2"));
    EXPECT_FALSE(says("Unknown argument"));
}

TEST_F(CommandLine, KeepsAColonInAValue)
{
    EXPECT_EQ(parse("IN -t BETA -o OUT -res_opt betaGreeting:a:b"), 1);
    EXPECT_EQ(output_value("betaGreeting"), utString("a:b"));
}

TEST_F(CommandLine, SaysWhichResourceCannotBeSetAndGoesOn)
{
    EXPECT_EQ(parse("IN -t BETA -o OUT -res_opt vmrTolTriangulate3d:fine noSuch:1 betaGreeting:x"), 1);
    EXPECT_TRUE(says("Unable to modify resource vmrTolTriangulate3d with value fine\n"));
    EXPECT_TRUE(says("Unable to modify resource noSuch with value 1\n"));
    EXPECT_EQ(output_value("betaGreeting"), utString("x"));
}

TEST_F(CommandLine, LosesTheFirstItemWithoutAColonAndReadsTheNextAsAFlag)
{
    EXPECT_EQ(parse("IN -t BETA -o OUT -res_opt betaGreeting:x nocolon betaGreeting:y"), 1);
    EXPECT_EQ(output_value("betaGreeting"), utString("x"));
    EXPECT_FALSE(says("Unknown argument nocolon"));
    EXPECT_TRUE(says("Unknown argument betaGreeting:y passed on the command line\n"));
}

TEST_F(CommandLine, SaysWhichTrailingArgumentIsUnknownAndGoesOn)
{
    EXPECT_EQ(parse("IN -t BETA -o OUT -W -wire"), 1);
    EXPECT_TRUE(says("Unknown argument -W passed on the command line\n"));
}

TEST_F(CommandLine, WritesALogThatHoldsTheBannerToo)
{
    auto const log = folder() / "run.log";
    EXPECT_EQ(parse("IN -t BETA -o OUT -w -log " + log), 1);
    parser.reset();
    EXPECT_EQ(kit_read_file(log), said);
    EXPECT_TRUE(says("The command line was "));
}

TEST_F(CommandLine, WritesNoLogWhenLogIsNotInTheNextToLastPlace)
{
    auto const log = folder() / "run.log";
    EXPECT_EQ(parse("IN -t BETA -o OUT -log " + log + " -w"), 1);
    EXPECT_FALSE(std::filesystem::exists(log));
    EXPECT_FALSE(says("Unknown argument"));
    settle();
    EXPECT_EQ(output_value("vmrOptProcessSurfaces"), utString("false"));
}

TEST_F(CommandLine, SaysWhenTheLogCannotBeOpenedAndGoesOn)
{
    auto const log = folder() / "no/such/folder/run.log";
    EXPECT_EQ(parse("IN -t BETA -o OUT -log " + log), 1);
    EXPECT_TRUE(says("Cannot open log file " + log + "\n"));
}

TEST_F(CommandLine, RefusesALogThatNamesAFileOfTheCommandLine)
{
    auto const input = folder() / "in.alpha";
    auto const rsc = folder().write("mine.rsc", "options");
    folder().write("out.beta", "older output");
    std::filesystem::create_symlink("in.alpha", folder() / "soft");
    std::filesystem::create_hard_link(input, folder() / "hard");
    std::filesystem::create_directory(folder() / "d");
    std::pair<std::string, std::string> const cases[] = {
        {"IN -t BETA -o OUT", input},
        {"IN -t BETA -o OUT", folder() / "d/../in.alpha"},
        {"-m IN -t BETA -o OUT", folder() / "soft"},
        {"IN -t BETA -o OUT -w", folder() / "hard"},
        {"IN -t BETA -output OUT", folder() / "out.beta"},
        {"IN -r " + rsc + " -t BETA -o OUT", rsc},
        {"IN -t BETA -o OUT " + rsc, rsc},
    };
    for (auto const & [line, log] : cases) {
        EXPECT_EQ(parse(line + " -log " + log), 0) << line << ' ' << log;
        EXPECT_TRUE(says("The log file " + log + " is also named as another file of this command line ("))
            << said;
        EXPECT_TRUE(says("The command line was ")) << said;
    }
    EXPECT_EQ(folder().read("in.alpha"), "input");
    EXPECT_EQ(folder().read("out.beta"), "older output");
    EXPECT_EQ(folder().read("mine.rsc"), "options");
}

TEST_F(CommandLine, RefusesALogInThePlaceOfAnOutputThatIsStillToBeMade)
{
    for (auto const log : {"out.beta", "OUT.Beta", "d/../out.beta", "link"}) {
        std::filesystem::create_directories(folder() / "d");
        std::filesystem::remove(folder() / "link");
        std::filesystem::create_symlink("out.beta", folder() / "link");
        EXPECT_EQ(parse("IN -t BETA -o OUT -log " + (folder() / log)), 0) << log;
        EXPECT_FALSE(folder().exists("out.beta")) << log;
        EXPECT_FALSE(folder().exists("OUT.Beta")) << log;
    }
}

TEST_F(CommandLine, TakesALogWithTheNameOfSomethingElse)
{
    for (auto const log : {"BETA", "-w", "other.beta"})
        EXPECT_EQ(parse("IN -t BETA -o OUT -w -log " + (folder() / log)), 1) << said;
    EXPECT_EQ(parse("IN -t BETA -o OUT " + (folder() / "in.alpha")), 1) << "no log at all";
    EXPECT_EQ(folder().read("in.alpha"), "input");
}

TEST_F(CommandLine, SaysOnStandardErrorThatALogIsNotComplete)
{
    auto const log = folder() / "run.log";
    auto const line = with_paths("IN -t BETA -o OUT -res_opt " + std::string(30'000, 'x') + " -log " + log);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    auto const child = fork();
    if (child == 0) {
        // The disk takes no more than so much.
        rlimit const little{10'000, 10'000};
        signal(SIGXFSZ, SIG_IGN);
        bool const ready = setrlimit(RLIMIT_FSIZE, &little) == 0 && dup2(ends[1], STDERR_FILENO) >= 0 &&
                           std::freopen("/dev/null", "w", stdout);
        if (ready)
            Parser(*app().application_information(), line.c_str()).parse();
        std::cerr.flush();
        _exit(0);
    }
    close(ends[1]);
    std::string told(4096, '\0');
    auto const length = read(ends[0], told.data(), told.size());
    told.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    close(ends[0]);
    EXPECT_EQ(waitpid(child, nullptr, 0), child);
    EXPECT_EQ(told, "The log file " + log +
                        " is not complete, because it could not be written. "
                        "Check the free space and the permissions there.\n");
    EXPECT_EQ(std::filesystem::file_size(log), 10'000u);
}

TEST_F(CommandLine, SaysThatAnInputIsNoOrdinaryFile)
{
    ASSERT_EQ(mkfifo((folder() / "pipe.alpha").c_str(), 0600), 0);
    ASSERT_EQ(mkfifo((folder() / "pipe").c_str(), 0600), 0);
    for (auto const name : {"pipe.alpha", "pipe"}) {
        EXPECT_EQ(parse((folder() / name) + " -t BETA -o OUT"), 0);
        EXPECT_TRUE(
            says("The input " + (folder() / name) +
                 " is no ordinary file but a pipe, a device or the like. Write what it gives to a file "
                 "and translate that.\n"))
            << said;
        EXPECT_FALSE(says("Can not determine")) << said;
    }
}

TEST_F(CommandLine, HoldsNamesWithBlanksInDoubleQuotes)
{
    auto const in = folder().write("my  own part.alpha", "x");
    auto const out = folder() / "the output.beta";
    EXPECT_EQ(parse("\"" + in + "\" -t BETA -o \"" + out + "\" -w"), 1) << said;
    EXPECT_EQ(parser->translation().input_file(0), utString(in));
    EXPECT_EQ(parser->translation().output_file(0), utString(out));
    EXPECT_FALSE(says("Unknown argument"));
}

TEST_F(CommandLine, SaysWhenAQuoteIsNotClosed)
{
    auto const in = folder().write("open", "x");
    EXPECT_EQ(parse("\"" + in), 0);
    EXPECT_TRUE(says("Filename incorrectly specified\n\n"));
}

TEST_F(CommandLine, SaysNothingOfATranslatorWhoseFileFailedToLoadAndGoesOn)
{
    std::filesystem::remove(folder() / "installation/lib/vmr/translators/alpha.so");
    EXPECT_EQ(parse("IN -t BETA -o OUT"), 1);
    EXPECT_FALSE(says("unable to load"));
}

TEST_F(CommandLine, SaysWhatCameOfTheRequest)
{
    ASSERT_EQ(parse("IN -t BETA -o OUT"), 1) << said;
    struct {
        sglTranslationResult::Value result;
        int failed;
        char const * text;
    } const rows[] = {
        {sglTranslationResult::started, 0,
         "\n\nFinished reading\n\n\n****************************************\n\n"},
        {sglTranslationResult::failed, 1, "\nUnknown translation error\n"},
        {sglTranslationResult::same_file, 1,
         "\nThe specified input file has the same name as the output file.\n"},
        {sglTranslationResult::no_input_translator, 1, "\nUnknown input file format detected\n"},
        {sglTranslationResult::no_output_translator, 1, "\nUnknown output file format requested\n"}};
    for (auto const & row : rows) {
        EXPECT_EQ(captured([&] { return parser->handle_translator_error(row.result); }), row.failed);
        EXPECT_EQ(said, row.text);
    }
    EXPECT_EQ(static_cast<int>(sglTranslationResult::started), 0);
    EXPECT_EQ(static_cast<int>(sglTranslationResult::failed), 1);
    EXPECT_EQ(static_cast<int>(sglTranslationResult::same_file), 2);
    EXPECT_EQ(static_cast<int>(sglTranslationResult::no_input_translator), 3);
    EXPECT_EQ(static_cast<int>(sglTranslationResult::no_output_translator), 4);
}

TEST_F(CommandLine, ReturnsOneForATranslationThatWasRunAndFailed)
{
    ASSERT_EQ(parse("IN -t BETA -o OUT"), 1) << said;
    EXPECT_EQ(translate(), 1);
    EXPECT_TRUE(says("\n\nFinished reading\n\n\n****************************************\n\n"
                     "Translation(s) complete\n\n"))
        << said;
    EXPECT_FALSE(folder().exists("out.beta"));
}

TEST_F(CommandLine, ReturnsZeroForATranslationThatCouldNotBeRun)
{
    ASSERT_EQ(parse("IN -t BETA -o OUT"), 1) << said;
    parser->translation().input_format("GAMMA", 0);
    EXPECT_EQ(translate(), 0);
    EXPECT_TRUE(says("\nUnknown input file format detected\nTranslation(s) complete\n\n")) << said;

    ASSERT_EQ(parse("IN -t BETA -o OUT"), 1) << said;
    parser->translation().output_format("GAMMA", 0);
    EXPECT_EQ(translate(), 0);
    EXPECT_TRUE(says("\nUnknown output file format requested\nTranslation(s) complete\n\n")) << said;
}
