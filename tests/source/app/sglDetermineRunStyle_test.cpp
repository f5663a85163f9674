#include "sglDetermineRunStyle.h"

#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

namespace {

struct RunStyle : testing::Test {
    kitTempFolder folder;
    sduStartupInfo info;
    sglDetermineRunStyle style;

    RunStyle() { info.load((folder / "startup.hrk").c_str()); }
    sglRunStyle of(char const * line) { return style.determine_run_style(line, info); }
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
    ASSERT_EQ(style.num_file_arguments(), 2);
    EXPECT_EQ(style.file_argument(0), utString("part.stp"));
    EXPECT_EQ(style.file_argument(1), utString("-log"));
}

TEST_F(RunStyle, OfTwoFileNamesIsGraphicsWithBoth)
{
    EXPECT_EQ(of("a.stp b.stp"), sglRunStyleGraphics);
    ASSERT_EQ(style.num_file_arguments(), 2);
    EXPECT_EQ(style.file_argument(1), utString("b.stp"));
}

TEST_F(RunStyle, OfAFileNameAndAHyphenatedWordIsTheCommandLineWithNoFiles)
{
    EXPECT_EQ(of("a.stp b.stp -t IGES"), sglRunStyleCommandLine);
    EXPECT_EQ(style.num_file_arguments(), 0);
}

TEST_F(RunStyle, AFileNameInDoubleQuotesMayHoldBlanks)
{
    EXPECT_EQ(of("\"my part.stp\" next.stp"), sglRunStyleGraphics);
    ASSERT_EQ(style.num_file_arguments(), 2);
    EXPECT_EQ(style.file_argument(0), utString("my part.stp"));
    EXPECT_EQ(style.file_argument(1), utString("next.stp"));
}

TEST_F(RunStyle, AnUnterminatedQuoteReachesToTheEndOfTheLine)
{
    EXPECT_EQ(of("\"my part.stp"), sglRunStyleGraphics);
    ASSERT_EQ(style.num_file_arguments(), 1);
    EXPECT_EQ(style.file_argument(0), utString("my part.stp"));
}

TEST_F(RunStyle, ExpertIgnoresWhatFollows)
{
    EXPECT_EQ(of("-Expert part.stp"), sglRunStyleExpert);
    EXPECT_EQ(style.num_file_arguments(), 0);
}

TEST_F(RunStyle, OfTheTwoWordsOfAnAutomationClientIsAutomation)
{
    EXPECT_EQ(of("-automation"), sglRunStyleAutomation);
    EXPECT_EQ(of("-EMBEDDING"), sglRunStyleAutomation);
}

TEST_F(RunStyle, AHyphenInsideTheQuotesOfTheFirstWordCounts)
{
    EXPECT_EQ(of("\"-odd name.stp\""), sglRunStyleCommandLine);
    EXPECT_EQ(style.num_file_arguments(), 0);
}

TEST_F(RunStyle, OfAnyOtherHyphenatedWordIsTheCommandLine)
{
    EXPECT_EQ(of("-help"), sglRunStyleCommandLine);
}

TEST_F(RunStyle, ASecondQuestionDoesNotClearTheList)
{
    of("a.stp");
    of("b.stp");
    EXPECT_EQ(style.num_file_arguments(), 2);
}
