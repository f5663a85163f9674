#include "step/stepDefinitions.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string told(std::string_view definition)
{
    std::string text;
    for (auto const & token : step_tokens(definition)) {
        text += std::string(token.text) + "|";
    }
    return text;
}

} // namespace

TEST(StepDefinitions, AreFoundByTheirNumbers)
{
    stepDefinitions const definitions("ISO-10303-21;\nDATA;\n#20=B(#3);\n #3 =\n A('x');ENDSEC;\n");
    ASSERT_EQ(definitions.all().size(), 2U);
    EXPECT_EQ(definitions.of(3), "A('x')");
    EXPECT_EQ(definitions.of(20), "B(#3)");
    EXPECT_TRUE(definitions.of(4).empty());
}

TEST(StepDefinitions, AreNotFoundInStringsAndComments)
{
    stepDefinitions const definitions("/* #1=X(); */ #2=A('it''s; #3=B()'); /* ; */ #4=C(/*)*/);");
    ASSERT_EQ(definitions.all().size(), 2U);
    EXPECT_EQ(definitions.of(2), "A('it''s; #3=B()')");
    EXPECT_EQ(definitions.of(4), "C(/*)*/)");
}

TEST(StepDefinitions, StandWhereTheTextBreaksOff)
{
    for (char const * text : {"", "#", "#1", "#1=", "#1=A('", "#1=A(/*", "/*", "'", "#99999999999999=A();"}) {
        stepDefinitions const definitions(text);
        for (auto const & [number, definition] : definitions.all()) {
            step_tokens(definition);
            step_kinds(definition);
        }
        EXPECT_LE(definitions.all().size(), 1U);
    }
}

TEST(StepDefinitions, ConsistOfTokens)
{
    EXPECT_EQ(told("A( 'a''b' , #12,\n-1.5E-3,.T.,$,*,(/* (*/\"0F\"),X(1))"),
              "A|(|'a'|'b'|,|#12|,|-1.5E-3|,|.T.|,|$|,|*|,|(|\"0F\"|)|,|X|(|1|)|)|");
    auto const tokens = step_tokens("A((#7))");
    ASSERT_EQ(tokens.size(), 6U);
    EXPECT_EQ(tokens[3].number, 7);
    EXPECT_EQ(tokens[3].depth, 2);
    EXPECT_EQ(tokens[5].depth, 0);
}

TEST(StepDefinitions, HaveOneKindOrSeveral)
{
    EXPECT_EQ(step_kinds(" SHAPE_ASPECT ('')"), (std::vector<std::string_view>{"SHAPE_ASPECT"}));
    EXPECT_EQ(step_kinds("( A(B(1))\nC()D('E(') )"), (std::vector<std::string_view>{"A", "C", "D"}));
}
