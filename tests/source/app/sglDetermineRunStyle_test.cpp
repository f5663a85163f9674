#include "sglDetermineRunStyle.h"

#include "kit/kitTempFolder.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct RunStyle : testing::Test {
    kitTempFolder folder;
    sduStartupInfo info;
    sglDetermineRunStyle style;

    RunStyle() { info.load((folder / "startup.hrk").c_str()); }
    sglRunStyle of(char const * line) { return style.determine_run_style(line, info); }
    std::vector<std::string> files() const
    {
        std::vector<std::string> result;
        for (int i = 0; i < style.num_file_arguments(); ++i)
            result.push_back(style.file_argument(i).str());
        return result;
    }
};

} // namespace

TEST_F(RunStyle, OfAnEmptyLineOnAFirstStartIsGraphicsAndLeavesTheFieldInTheFile)
{
    EXPECT_EQ(of(""), sglRunStyleGraphics);
    sduStartupInfo again;
    again.load((folder / "startup.hrk").c_str());
    EXPECT_EQ(again.find_field("start_as_viewer"), utString("yes"));
}

TEST_F(RunStyle, OfAnInvalidLineIsThatOfAnEmptyOne)
{
    EXPECT_EQ(style.determine_run_style(utString::make_invalid(), info), sglRunStyleGraphics);
}

TEST_F(RunStyle, TakesYesInAnyCase)
{
    info.add_field("start_as_viewer", "yEs");
    EXPECT_EQ(of(""), sglRunStyleGraphics);
}

TEST_F(RunStyle, TakesNoAndAnEmptyValueForExpert)
{
    info.add_field("start_as_viewer", "no");
    EXPECT_EQ(of(""), sglRunStyleExpert);
    info.add_field("start_as_viewer", "");
    EXPECT_EQ(of(""), sglRunStyleExpert);
}

TEST_F(RunStyle, GraphicsInCapitalsKeepsEveryFurtherWord)
{
    EXPECT_EQ(of("-GRAPHICS part.stp -log"), sglRunStyleGraphics);
    EXPECT_THAT(files(), ElementsAre("part.stp", "-log"));
}

TEST_F(RunStyle, OfTwoFileNamesIsGraphicsWithBoth)
{
    EXPECT_EQ(of("a.stp b.stp"), sglRunStyleGraphics);
    EXPECT_THAT(files(), ElementsAre("a.stp", "b.stp"));
}

TEST_F(RunStyle, OfAFileNameAndAHyphenatedWordIsTheCommandLineWithNoFiles)
{
    EXPECT_EQ(of("a.stp b.stp -t IGES"), sglRunStyleCommandLine);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(RunStyle, AFileNameInDoubleQuotesMayHoldBlanks)
{
    EXPECT_EQ(of("\"my part.stp\" next.stp"), sglRunStyleGraphics);
    EXPECT_THAT(files(), ElementsAre("my part.stp", "next.stp"));
}

TEST_F(RunStyle, AnUnterminatedQuoteReachesToTheEndOfTheLine)
{
    EXPECT_EQ(of("\"my part.stp"), sglRunStyleGraphics);
    EXPECT_THAT(files(), ElementsAre("my part.stp"));
}

TEST_F(RunStyle, ExpertIgnoresWhatFollows)
{
    EXPECT_EQ(of("-Expert part.stp"), sglRunStyleExpert);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(RunStyle, OfTheTwoWordsOfAnAutomationClientIsAutomation)
{
    EXPECT_EQ(of("-automation"), sglRunStyleAutomation);
    EXPECT_EQ(of("-EMBEDDING"), sglRunStyleAutomation);
}

TEST_F(RunStyle, AHyphenInsideTheQuotesOfTheFirstWordCounts)
{
    EXPECT_EQ(of("\"-odd name.stp\""), sglRunStyleCommandLine);
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(RunStyle, OfAnyOtherHyphenatedWordIsTheCommandLine)
{
    EXPECT_EQ(of("-help"), sglRunStyleCommandLine);
}

TEST_F(RunStyle, ASecondQuestionDoesNotClearTheList)
{
    of("a.stp");
    of("b.stp");
    EXPECT_THAT(files(), ElementsAre("a.stp", "b.stp"));
}
