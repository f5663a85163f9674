#include "step/stepFile.h"

#include <gtest/gtest.h>

namespace {

constexpr char const * whole =
    "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('AUTOMOTIVE_DESIGN { 1 0 10303 214 }'));\nENDSEC;\n"
    "DATA;\n#1=A();\nENDSEC;\nEND-ISO-10303-21;\n";

} // namespace

TEST(StepFile, SeesAWholeFile)
{
    stepFile const file(whole);
    EXPECT_TRUE(file.begins);
    EXPECT_TRUE(file.sections_end);
    EXPECT_TRUE(file.ends);
    EXPECT_EQ(file.schema, "AUTOMOTIVE_DESIGN");
}

TEST(StepFile, PassesOverMarksSpaceAndCommentsAtTheBegin)
{
    EXPECT_TRUE(stepFile(std::string("\xEF\xBB\xBF \r\n/* made by ISO */ /**/").append(whole)).begins);
}

TEST(StepFile, DoesNotTakeACommentForTheBegin)
{
    EXPECT_FALSE(stepFile("/* ISO-10303-21; ").begins);
    EXPECT_FALSE(stepFile("").begins);
    EXPECT_FALSE(stepFile("solid cube ISO-10303-21;").begins);
}

TEST(StepFile, MissesTheEndOfDataThatIsCutOff)
{
    std::string const text(whole);
    EXPECT_FALSE(stepFile(text.substr(0, text.find("#1=A"))).sections_end);
    EXPECT_FALSE(stepFile(text.substr(0, text.find("DATA;"))).sections_end);
}

TEST(StepFile, ToleratesAMissingLastLine)
{
    std::string const text(whole);
    stepFile const file(text.substr(0, text.find("END-ISO")));
    EXPECT_TRUE(file.sections_end);
    EXPECT_FALSE(file.ends);
}

TEST(StepFile, SaysWhereTheLastSectionEnds)
{
    std::string const text(whole);
    auto const cut = text.substr(0, text.find("END-ISO"));
    EXPECT_EQ(stepFile(cut).last_section_end, cut.rfind("ENDSEC"));
    EXPECT_EQ(stepFile("\xEF\xBB\xBF" + cut).last_section_end, cut.rfind("ENDSEC") + 3);
    EXPECT_EQ(stepFile(text.substr(0, text.find("#1=A"))).last_section_end, 0U);
}

TEST(StepFile, WantsTheLastLineWhole)
{
    std::string const text(whole);
    auto const semicolon = text.rfind(';');
    EXPECT_FALSE(stepFile(text.substr(0, semicolon)).ends);
    EXPECT_TRUE(stepFile(text.substr(0, semicolon) + " /* the end */\n;").ends);
}

TEST(StepFile, JoinsTheNamesOfSeveralSchemas)
{
    EXPECT_EQ(stepFile("ISO-10303-21;HEADER;FILE_SCHEMA(('AP214','IFC4'));ENDSEC;").schema, "AP214, IFC4");
    EXPECT_EQ(stepFile("ISO-10303-21;HEADER;FILE_SCHEMA((").schema, "");
}

TEST(StepFile, KnowsTextThatIsNotUtf8)
{
    EXPECT_TRUE(stepFile("ISO-10303-21; 'Geh\u00e4use \U0001F600'").is_utf8);
    EXPECT_FALSE(stepFile("ISO-10303-21; 'Geh\xE4use'").is_utf8);
    EXPECT_FALSE(stepFile("ISO-10303-21; 'Geh\xC3").is_utf8);
}
