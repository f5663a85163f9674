#include "nls/vmrnlsFormatterSimple.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "Surroundings.h"

namespace {

template <class... T>
std::string format(char const * text, T const &... values)
{
    return vmrnlsFormatterSimple(".").format(text, ut_text_arguments(values...)).str();
}

template <class... T>
std::string format_with_comma(char const * text, T const &... values)
{
    return vmrnlsFormatterSimple(",").format(text, ut_text_arguments(values...)).str();
}

} // namespace

TEST(Formatter, FillsInArgumentsInTheirOrder)
{
    EXPECT_EQ(format("Entity %d of type %s was skipped\n", 7, "edge"), "Entity 7 of type edge was skipped\n");
    EXPECT_EQ(format("%s", utString("text")), "text");
    EXPECT_EQ(format("%2$s before %1$s", "one", "two"), "two before one");
    EXPECT_EQ(format("no conversion"), "no conversion");
    EXPECT_EQ(format(""), "");
}

TEST(Formatter, ObeysFlagsWidthAndPrecision)
{
    EXPECT_EQ(format("[%5d][%-5d][%05d][%+d][% d]", 42, 42, 42, 42, 42), "[   42][42   ][00042][+42][ 42]");
    EXPECT_EQ(format("[%.2f][%8.3f][%e][%g]", 1.005, 3.14159, 12345.678, 0.0001),
              "[1.00][   3.142][1.234568e+04][0.0001]");
    EXPECT_EQ(format("[%x][%X][%#x][%o][%u]", 255, 255, 255, 8, 9), "[ff][FF][0xff][10][9]");
    EXPECT_EQ(format("[%5s][%-5s][%.2s]", "ab", "ab", "abcdef"), "[   ab][ab   ][ab]");
    EXPECT_EQ(format("%01.2f", 3.0), "3.00");
    EXPECT_EQ(format("[%c][%3c]", 'x', 'y'), "[x][  y]");
    EXPECT_EQ(format("[%.3d]", 7), "[007]");
}

TEST(Formatter, ShowsAPercentSignForADoubledOne)
{
    EXPECT_EQ(format("%d%%", 50), "50%");
    EXPECT_EQ(format("100%%"), "100%");
}

TEST(Formatter, ShowsAConversionWithoutAnArgumentAsItIsWritten)
{
    EXPECT_EQ(format("%s and %5.2f and %d", "one"), "one and %5.2f and %d");
    EXPECT_EQ(format("%3$s", "one"), "%3$s");
    EXPECT_EQ(format("%s"), "%s");
}

TEST(Formatter, LeavesOutArgumentsThatNoConversionTakes)
{
    EXPECT_EQ(format("%s", "one", "two", 3), "one");
}

TEST(Formatter, ShowsWhatIsNoConversion)
{
    EXPECT_EQ(format("%n %p %*d %y", 1, 2), "%n %p %*d %y");
    EXPECT_EQ(format("%y %d", 1), "%y 1");
    EXPECT_EQ(format("a trailing %", 1), "a trailing %");
    EXPECT_EQ(format("%99999999d", 1), "%99999999d");
}

TEST(Formatter, ShowsEachArgumentAsWhatItIs)
{
    EXPECT_EQ(format("%s", 42), "42");
    EXPECT_EQ(format("%s", -1.5), "-1.5");
    EXPECT_EQ(format("%d", "text"), "text");
    EXPECT_EQ(format("%5f|", "text"), " text|");
    EXPECT_EQ(format("%d", 2.75), "2");
    EXPECT_EQ(format("%d", 1e300), "1e+300");
    EXPECT_EQ(format("%.1f", 3), "3.0");
    EXPECT_EQ(format("%c", "whole"), "whole");
}

TEST(Formatter, NeverCutsAnInteger)
{
    EXPECT_EQ(format("%d", std::numeric_limits<std::int64_t>::max()), "9223372036854775807");
    EXPECT_EQ(format("%d", std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(format("%hhd", 100000), "100000");
    EXPECT_EQ(format("%ld %lld %zu", 5'000'000'000, 5'000'000'000, 5'000'000'000),
              "5000000000 5000000000 5000000000");
    EXPECT_EQ(format("%x", -1), "ffffffff");
}

TEST(Formatter, ShowsLongNumbersWhole)
{
    auto const longest = format("%f", 1e308);
    EXPECT_EQ(longest.size(), 309u + 7u);
    EXPECT_EQ(format("%300d", 1), std::string(299, ' ').append("1"));
}

TEST(Formatter, UsesTheDecimalPoint)
{
    EXPECT_EQ(format_with_comma("%.2f", 3.0), "3,00");
    EXPECT_EQ(format_with_comma("%g and %e", 0.5, 1.5), "0,5 and 1,500000e+00");
    EXPECT_EQ(format_with_comma("%s", 2.5), "2,5");
    EXPECT_EQ(format_with_comma("%s", "2.5"), "2.5");
    EXPECT_EQ(format_with_comma("%d.", 3), "3.");
    EXPECT_EQ(vmrnlsFormatterSimple("").format("%.1f", ut_text_arguments(0.5)), utString("0.5"));
}

TEST(Formatter, ShowsWhatIsNoNumberInTheWordsOfTheCLibrary)
{
    EXPECT_EQ(format_with_comma("%f", std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(format_with_comma("%s", -std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(format_with_comma("%d", std::nan("")), "nan");
}

TEST(Formatter, DoesNotDependOnTheLocaleOfTheProcess)
{
    Surroundings surroundings;
    surroundings.use_decimal_comma();
    ASSERT_NE(std::setlocale(LC_NUMERIC, ""), nullptr);
    EXPECT_EQ(format("%.2f %g %s", 0.5, 1e-7, 2.5), "0.50 1e-07 2.5");
    EXPECT_EQ(format_with_comma("%.2f", 0.5), "0,50");
}

TEST(Formatter, CountsCharactersOfTexts)
{
    EXPECT_EQ(format("[%4s][%.2s]", "äö", "äöü"), "[  äö][äö]");
    EXPECT_EQ(format("%c", 0xE4), "ä");
    EXPECT_EQ(format("%c", 0x20AC), "€");
    EXPECT_EQ(format("%c", 0x1F600), "\xF0\x9F\x98\x80");
    EXPECT_EQ(format("[%c][%c]", 0, 0x110000), "[][]");
}
