#include "vmr/vmrResourceDeclaration.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

vmrResourceDeclaration of_kind(vmrResourceKind kind)
{
    vmrResourceDeclaration declaration;
    declaration.name = "x";
    declaration.kind = kind;
    return declaration;
}

} // namespace

TEST(ResourceDeclaration, TakesABooleanInAnyCase)
{
    auto const declaration = of_kind(vmrResourceKind::boolean);
    EXPECT_EQ(declaration.canonical("True"), "true");
    EXPECT_EQ(declaration.canonical(" FALSE "), "false");
    for (auto const text : {"", "yes", "1", "truex"})
        EXPECT_FALSE(declaration.canonical(text)) << text;
}

TEST(ResourceDeclaration, TakesAnIntegerThatIsAloneInTheText)
{
    auto const declaration = of_kind(vmrResourceKind::integer);
    EXPECT_EQ(declaration.canonical(" +007 "), "7");
    EXPECT_EQ(declaration.canonical("-3"), "-3");
    for (auto const text : {"", "+", "-", "+-3", "3x", "3.0", "3 4", "0x10", "99999999999999999999"})
        EXPECT_FALSE(declaration.canonical(text)) << text;
}

TEST(ResourceDeclaration, HoldsIntegersToTheirRange)
{
    auto declaration = of_kind(vmrResourceKind::integer);
    declaration.minimum = 1;
    declaration.maximum = 10;
    EXPECT_EQ(declaration.canonical("1"), "1");
    EXPECT_EQ(declaration.canonical("10"), "10");
    EXPECT_FALSE(declaration.canonical("0"));
    EXPECT_FALSE(declaration.canonical("11"));
}

TEST(ResourceDeclaration, TakesARealWithAPointWhateverTheLocale)
{
    auto const declaration = of_kind(vmrResourceKind::real);
    EXPECT_EQ(declaration.canonical("0.010"), "0.01");
    EXPECT_EQ(declaration.canonical("1e-2"), "0.01");
    EXPECT_EQ(declaration.canonical("+.5"), "0.5");
    EXPECT_EQ(declaration.canonical("5."), "5");
    EXPECT_EQ(declaration.canonical("-0.0"), "0");
    for (auto const text : {"", ".", "0,01", "1.5mm", "inf", "nan", "-infinity", "1e999", "0x1p3", "1 2"})
        EXPECT_FALSE(declaration.canonical(text)) << text;
}

TEST(ResourceDeclaration, HoldsRealsToTheirRange)
{
    auto declaration = of_kind(vmrResourceKind::real);
    declaration.minimum = 0;
    EXPECT_EQ(declaration.canonical("0"), "0");
    EXPECT_FALSE(declaration.canonical("-0.001"));
    declaration.maximum = 0.5;
    EXPECT_EQ(declaration.canonical("0.5"), "0.5");
    EXPECT_FALSE(declaration.canonical("0.6"));
    EXPECT_FALSE(declaration.canonical_real(std::nan("")));
}

TEST(ResourceDeclaration, WritesRealsSoThatTheyReadBackTheSame)
{
    for (auto const value : {0.1, 1.0 / 3.0, 100000.0, 1e15, 1.5e300, 5e-324, -2.5, 123456789.123,
                             std::numeric_limits<double>::max()})
        EXPECT_EQ(vmr_read_real(vmr_real_text(value)), value);
    EXPECT_EQ(vmr_real_text(100000.0), "100000");
    EXPECT_EQ(vmr_real_text(0.0001), "0.0001");
    EXPECT_EQ(vmr_real_text(1e20), "1e+20");
}

TEST(ResourceDeclaration, TakesAChoiceInAnyCaseAndStoresItAsDeclared)
{
    auto declaration = of_kind(vmrResourceKind::choice);
    declaration.choices = {"AP203", "Part 21", "ap203"};
    EXPECT_EQ(declaration.canonical("AP203"), "AP203");
    EXPECT_EQ(declaration.canonical("ap203"), "ap203");
    EXPECT_EQ(declaration.canonical("aP203"), "AP203");
    EXPECT_EQ(declaration.canonical(" part 21 "), "Part 21");
    EXPECT_FALSE(declaration.canonical("AP242"));
    EXPECT_FALSE(declaration.canonical(""));
}

TEST(ResourceDeclaration, TakesEveryTextAsItStands)
{
    auto const declaration = of_kind(vmrResourceKind::text);
    EXPECT_EQ(declaration.canonical("  any\n thing "), "  any\n thing ");
    EXPECT_EQ(declaration.canonical(""), "");
}
