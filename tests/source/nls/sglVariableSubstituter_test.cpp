#include "sglVariableSubstituter.h"

#include <gtest/gtest.h>

namespace {

struct Variables : testing::Test {
    utStringutStringcoTable table{4, 50};
    sglVariableSubstituter substituter{&table};

    Variables()
    {
        table["NAME"] = "value";
        table["OTHER"] = "second";
    }
    std::string of(char const * text) { return substituter.substitute(text).str(); }
};

} // namespace

TEST_F(Variables, LeaveATextWithoutBracketsAsItIs)
{
    EXPECT_EQ(of("nothing here"), "nothing here");
}

TEST_F(Variables, AreReplacedAtEveryPlace)
{
    EXPECT_EQ(of("[[NAME]] and [[NAME]]"), "value and value");
}

TEST_F(Variables, ThatAreUnknownStay)
{
    EXPECT_EQ(of("[[STRANGE]] [[NAME]]"), "[[STRANGE]] value");
}

TEST_F(Variables, AreFirstLookedForInTheSourceText)
{
    // Whatever stands at the place in the result goes: a text holds one variable name only.
    EXPECT_EQ(of("[[NAME]][[OTHER]]"), "value[[Osecond");
}

TEST_F(Variables, WhoseValueHoldsTheirOwnNameAreReplacedOnce)
{
    table["NAME"] = "[[NAME]]!";
    EXPECT_EQ(of("a [[NAME]] b"), "a [[NAME]]! b");
}
