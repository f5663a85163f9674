#include "step/stepTextEncoding.h"

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>

namespace {

std::string encoded(std::string const & text, bool in_pieces = false)
{
    std::stringbuf target;
    stepTextEncoding encoding(target);
    std::ostream stream(&encoding);
    if (in_pieces) {
        for (char const character : text) {
            stream.put(character);
        }
    } else {
        stream << text;
    }
    encoding.finish();
    return target.str();
}

} // namespace

TEST(StepTextEncoding, LeavesAsciiAlone)
{
    EXPECT_EQ(encoded("#1 = A('it''s \\\\ here',\n  2.);\n"), "#1 = A('it''s \\\\ here',\n  2.);\n");
}

TEST(StepTextEncoding, WritesOneDirectiveForARunOfCharacters)
{
    EXPECT_EQ(encoded("'Gehäuse'"), "'Geh\\X2\\00E4\\X0\\use'");
    EXPECT_EQ(encoded("'Ящик'"), "'\\X2\\042F04490438043A\\X0\\'");
}

TEST(StepTextEncoding, WritesTheWideDirectiveBeyondTheBasicPlane)
{
    EXPECT_EQ(encoded("'箱😀箱'"), "'\\X2\\7BB1\\X0\\\\X4\\0001F600\\X0\\\\X2\\7BB1\\X0\\'");
}

TEST(StepTextEncoding, GivesTheSameForEachPieceSize)
{
    std::string const text = "#1=P('箱😀 it''s\\\\Ä','b',3);";
    EXPECT_EQ(encoded(text, true), encoded(text));
}

TEST(StepTextEncoding, JoinsStringsThatTheWriterBrokeAcrossLines)
{
    EXPECT_EQ(encoded("A('long \nname',\n'b')"), "A('long name',\n'b')");
}

TEST(StepTextEncoding, TurnsTheWritersTabulatorIntoTheStandardsDirective)
{
    EXPECT_EQ(encoded("'a\\T\\b'"), "'a\\X\\09b'");
    EXPECT_EQ(encoded("'a\\\\T\\\\b'"), "'a\\\\T\\\\b'");
    EXPECT_EQ(encoded("'a\\N\\b'"), "'a\\N\\b'");
}

TEST(StepTextEncoding, WritesControlCharactersAsDirectives)
{
    EXPECT_EQ(encoded(std::string("'a\x01z'")), "'a\\X\\01z'");
}

TEST(StepTextEncoding, ReplacesBytesThatAreNoCharacters)
{
    EXPECT_EQ(encoded("'a\xFF z'"), "'a\\X2\\FFFD\\X0\\ z'");
    EXPECT_EQ(encoded("'a\xC3z'"), "'a\\X2\\FFFD\\X0\\z'");
}

TEST(StepTextEncoding, DoesNotTouchWhatIsOutsideStrings)
{
    EXPECT_EQ(encoded("/* ä */"), "/* ä */");
}
