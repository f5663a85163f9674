#include "nls/vmrnlsParserDefaultThenLocale.h"

#include <gtest/gtest.h>

#include "Surroundings.h"
#include "nls/vmrnlsLocaleNumbers.h"

namespace {

class Parser : public testing::Test {
protected:
    ~Parser() override
    {
        nlsDomainManager::numeric_translation(0);
        for (char const * name : {"LC_NUMERIC", "LOCPATH"})
            unsetenv(name);
        vmrnlsLocaleNumbers::save();
    }

    void expect_real(char const * text, double value)
    {
        int error = 0;
        EXPECT_DOUBLE_EQ(parser.parse_double(text, error), value) << text;
        EXPECT_EQ(error, 0) << text;
    }

    void expect_no_real(char const * text, double front)
    {
        int error = 0;
        EXPECT_DOUBLE_EQ(parser.parse_double(text, error), front) << text;
        EXPECT_NE(error, 0) << text;
    }

    Surroundings surroundings;
    vmrnlsParserDefaultThenLocale parser;
};

} // namespace

TEST_F(Parser, ReadsRealNumbersInTheDefaultForm)
{
    expect_real("3", 3);
    expect_real("-0.5", -0.5);
    expect_real("+2.25", 2.25);
    expect_real(".5", 0.5);
    expect_real("1e-3", 0.001);
    expect_real("  7.5\t", 7.5);
}

TEST_F(Parser, RefusesWhatIsNotWhollyANumber)
{
    expect_no_real("", 0);
    expect_no_real("   ", 0);
    expect_no_real("abc", 0);
    expect_no_real("0x10", 0);
    expect_no_real("inf", 0);
    expect_no_real("nan", 0);
    expect_no_real("1e999", 0);
    expect_no_real("+-5", 0);
    expect_no_real("--5", 0);
}

TEST_F(Parser, GivesTheNumberAtTheFrontOfARefusedText)
{
    expect_no_real("0.5mm", 0.5);
    expect_no_real("1 2", 1);
    expect_no_real("1.2.3", 1.2);
}

TEST_F(Parser, TreatsAnInvalidTextAsEmpty)
{
    int error = 0;
    EXPECT_EQ(parser.parse_double(utString::make_invalid(), error), 0);
    EXPECT_NE(error, 0);
}

TEST_F(Parser, LeavesTheErrorFlagAloneOnSuccess)
{
    int error = 5;
    EXPECT_EQ(parser.parse_int("12", error), 12);
    EXPECT_EQ(parser.parse_double("12", error), 12);
    EXPECT_EQ(error, 5);
}

TEST_F(Parser, ReadsIntegers)
{
    int error = 0;
    EXPECT_EQ(parser.parse_int("42", error), 42);
    EXPECT_EQ(parser.parse_int(" -42 ", error), -42);
    EXPECT_EQ(parser.parse_int("+7", error), 7);
    EXPECT_EQ(parser.parse_int("2147483647", error), 2147483647);
    EXPECT_EQ(error, 0);
}

TEST_F(Parser, RefusesIntegersWithATailAndThoseThatDoNotFit)
{
    for (char const * text : {"12a", "1.5", "1e3", "2147483648", "", "x", "1 2"}) {
        int error = 0;
        parser.parse_int(text, error);
        EXPECT_NE(error, 0) << text;
    }
}

TEST_F(Parser, TriesTheLocaleAfterTheDefaultForm)
{
    expect_no_real("1,5", 1);
    surroundings.use_decimal_comma();
    vmrnlsLocaleNumbers::save();
    expect_real("1,5", 1.5);
    expect_real("1.5", 1.5);
    expect_no_real("1.000,5", 1);
    expect_no_real("1,5,5", 1.5);
}
