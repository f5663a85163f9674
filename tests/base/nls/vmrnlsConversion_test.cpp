#include "nls/vmrnlsConversion.h"

#include <gtest/gtest.h>

namespace {

/// Kinds of all conversions of a text.
std::string kinds(char const * text)
{
    std::string found;
    vmrnlsConversion conversion;
    for (std::size_t from = 0; vmrnlsConversion::next(text, from, conversion); from = conversion.end)
        found += conversion.kind;
    return found;
}

} // namespace

TEST(Conversion, IsFoundWithItsParts)
{
    vmrnlsConversion conversion;
    std::string const text = "at %-+8.3lf mm";
    ASSERT_TRUE(vmrnlsConversion::next(text, 0, conversion));
    EXPECT_EQ(text.substr(conversion.begin, conversion.end - conversion.begin), "%-+8.3lf");
    EXPECT_EQ(conversion.kind, 'f');
    EXPECT_TRUE(conversion.left && conversion.plus);
    EXPECT_FALSE(conversion.zero || conversion.blank || conversion.alternate);
    EXPECT_EQ(conversion.width, 8);
    EXPECT_EQ(conversion.precision, 3);
    EXPECT_EQ(conversion.argument, 0);
    EXPECT_FALSE(vmrnlsConversion::next(text, conversion.end, conversion));
}

TEST(Conversion, MayNameItsArgument)
{
    vmrnlsConversion conversion;
    ASSERT_TRUE(vmrnlsConversion::next("%12$05d", 0, conversion));
    EXPECT_EQ(conversion.argument, 12);
    EXPECT_TRUE(conversion.zero);
    EXPECT_EQ(conversion.width, 5);
}

TEST(Conversion, KnowsTheLettersOfMessages)
{
    EXPECT_EQ(kinds("%s %d %i %u %x %X %o %c %f %F %g %G %e %E %%"), "sdiuxXocfFgGeE%");
    EXPECT_EQ(kinds("%ld %lld %zu %hd %hhd %jd %Lf"), "dduddd"
                                                      "f");
}

TEST(Conversion, IsNotWhatWouldWriteToMemoryOrTakeAWidthFromAnArgument)
{
    EXPECT_EQ(kinds("%n %p %*d %.*f %a %S"), "");
    EXPECT_EQ(kinds("%9999d %.9999f %0$s %"), "");
    EXPECT_EQ(kinds("100% sure"), "s"); // a blank is a flag
    EXPECT_EQ(kinds("100%"), "");
    EXPECT_EQ(kinds("%l"), "");
    EXPECT_EQ(kinds("%y%d"), "d");
    EXPECT_EQ(kinds("%%d"), "%");
}

TEST(Arguments, AreTheSameInAnyWording)
{
    EXPECT_TRUE(vmrnls_same_arguments("File %s has %d parts", "Datei %s hat %d Teile"));
    EXPECT_TRUE(vmrnls_same_arguments("none", "keine 100%"));
    EXPECT_TRUE(vmrnls_same_arguments("%5d%%", "%ld"));
    EXPECT_TRUE(vmrnls_same_arguments("%f", "%.2e"));
}

TEST(Arguments, MayBeReorderedByNumber)
{
    EXPECT_TRUE(vmrnls_same_arguments("%s %d", "%2$d %1$s"));
    EXPECT_TRUE(vmrnls_same_arguments("%s %d", "%1$s %2$d %1$s"));
    EXPECT_FALSE(vmrnls_same_arguments("%s %d", "%1$d %2$s"));
}

TEST(Arguments, DifferInNumber)
{
    EXPECT_FALSE(vmrnls_same_arguments("%s", "%s %s"));
    EXPECT_FALSE(vmrnls_same_arguments("%s %s", "%s"));
    EXPECT_FALSE(vmrnls_same_arguments("none", "%s"));
    EXPECT_FALSE(vmrnls_same_arguments("%s %d", "%2$d"));
    EXPECT_FALSE(vmrnls_same_arguments("%s", "%3$s"));
}

TEST(Arguments, DifferInType)
{
    EXPECT_FALSE(vmrnls_same_arguments("%d", "%s"));
    EXPECT_FALSE(vmrnls_same_arguments("%d", "%f"));
    EXPECT_FALSE(vmrnls_same_arguments("%c", "%d"));
    EXPECT_FALSE(vmrnls_same_arguments("%s %d", "%d %s"));
}

TEST(Arguments, AreNeverTheSameWhereATextContradictsItself)
{
    EXPECT_FALSE(vmrnls_same_arguments("%1$s %1$d", "%1$s %1$d"));
    EXPECT_FALSE(vmrnls_same_arguments("%s %d", "%1$s %d"));
}
