#include "vmr/vmrResourceFile.h"

#include "vmr/coResourceIterator.h"
#include "vmrTestResources.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ResourceText : public testing::Test {
protected:
    void SetUp() override { register_test_resources(); }

    void read(std::string_view text)
    {
        m_problems.clear();
        m_table = coResourceTable();
        vmr_read_resource_text(text, m_table, m_problems);
    }

    coResourceTable m_table;
    std::vector<std::string> m_problems;
};

TEST_F(ResourceText, HoldsOneResourceToALine)
{
    m_table.set_value("b", "two words");
    m_table.set_value("a", "1");
    EXPECT_EQ(vmr_resource_text(m_table), "# Options of a translator, one to a line: name = value\n"
                                          "a = 1\n"
                                          "b = two words\n");
}

TEST_F(ResourceText, BringsEveryNameAndValueBack)
{
    std::vector<std::pair<std::string, std::string>> const entries = {
        {"plain", "value"},          {"empty", ""},
        {"lead", "  two blanks"},    {"trail", "tab\t"},
        {"lines", "a\nb\r\nc\r"},    {"slash", "C:\\new\\x41"},
        {"equals=in=name", "a=b"},   {"#name", "# value"},
        {" blank name ", "x"},       {"control", std::string("\0\x01\x7f", 3)},
        {"umlaut \u00e4", "\u6587"}, {"raw", "\xff\xfe"},
        {"one blank", " "},          {"\xef\xbb\xbfmark", "\xef\xbb\xbf"}};
    coResourceTable table;
    for (auto const & [name, value] : entries)
        table.set_value(name, value);
    read(vmr_resource_text(table));
    EXPECT_THAT(m_problems, IsEmpty());
    EXPECT_EQ(m_table.count(), static_cast<int>(entries.size()));
    for (auto const & [name, value] : entries)
        EXPECT_EQ(m_table.value(name), utString(value)) << name;
}

TEST_F(ResourceText, ReadsWhatAUserMayHaveTyped)
{
    read("\xef\xbb\xbf# comment\r\n\r\n  # another\n\ta=1\r\nb   =\n  c = x = y # no comment \nd=last");
    EXPECT_THAT(m_problems, IsEmpty());
    EXPECT_EQ(m_table.count(), 4);
    EXPECT_EQ(m_table.value("a"), utString("1"));
    EXPECT_EQ(m_table.value("b"), utString(""));
    EXPECT_EQ(m_table.value("c"), utString("x = y # no comment"));
    EXPECT_EQ(m_table.value("d"), utString("last"));
}

TEST_F(ResourceText, LetsTheLastLineOfANameCount)
{
    read("a = 1\na = 2\n");
    EXPECT_EQ(m_table.value("a"), utString("2"));
}

TEST_F(ResourceText, StoresRegisteredResourcesInTheNeutralForm)
{
    read("tstHeal = TRUE\ntstGap = 5.0e-1\ntstSchema = ap203\n");
    EXPECT_EQ(m_table.value("tstHeal"), utString("true"));
    EXPECT_EQ(m_table.value("tstGap"), utString("0.5"));
    EXPECT_EQ(m_table.value("tstSchema"), utString("AP203"));
}

TEST_F(ResourceText, PassesOverALineWithoutEqualsAndSaysWhere)
{
    read("a = 1\nnonsense\nb = 2\n");
    EXPECT_THAT(m_problems, ElementsAre("line 2: there is no \"=\""));
    EXPECT_EQ(m_table.count(), 2);
}

TEST_F(ResourceText, PassesOverALineWithoutName)
{
    read("# head\n = 1\n");
    EXPECT_THAT(m_problems, ElementsAre("line 2: there is no name in front of \"=\""));
    EXPECT_TRUE(m_table.empty());
}

TEST_F(ResourceText, PassesOverBrokenEscapes)
{
    for (auto const line : {"a = \\", "a = \\q", "a = \\x", "a = \\x4", "a = \\x4g", "\\ = 1", "a = \\N"}) {
        read(line);
        EXPECT_THAT(m_problems, ElementsAre(HasSubstr("line 1: a \"\\\" is followed by"))) << line;
        EXPECT_TRUE(m_table.empty()) << line;
    }
}

TEST_F(ResourceText, KeepsAnIllegalValueAndSaysWhere)
{
    read("tstLevel = 77\n");
    EXPECT_THAT(m_problems, ElementsAre("line 1: \"77\" is no legal value of tstLevel (from 1 to 10)"));
    EXPECT_EQ(m_table.value("tstLevel"), utString("77"));
    m_problems.clear();
    read("tstHeal = perhaps\n");
    EXPECT_THAT(m_problems, ElementsAre("line 1: \"perhaps\" is no legal value of tstHeal"));
}

TEST_F(ResourceText, HasNoResourcesWhenItIsEmpty)
{
    read("");
    EXPECT_THAT(m_problems, IsEmpty());
    EXPECT_TRUE(m_table.empty());
}

TEST_F(ResourceText, TellsInAFactoryFileWhatIsLegal)
{
    std::vector<vmrResourceDeclaration> declarations;
    for (auto const name : {"tstHeal", "tstLevel", "tstGap", "tstSchema", "tstAuthor"})
        declarations.push_back(*vmr_look_up_resource(name));
    declarations.back().default_value = "ann\nb";
    auto below = *vmr_look_up_resource("tstGap");
    below.name = "tstBelow";
    below.minimum.reset();
    below.maximum = 1;
    declarations.push_back(below);
    auto const text = vmr_factory_resource_text(declarations);
    EXPECT_EQ(text, "# Options of a translator, one to a line: name = value\n"
                    "\n# boolean\ntstHeal = true\n"
                    "\n# integer, from 1 to 10\ntstLevel = 3\n"
                    "\n# real, from 0\ntstGap = 0.5\n"
                    "\n# choice: AP203, AP214, AP242\ntstSchema = AP214\n"
                    "\n# text\ntstAuthor = ann\\nb\n"
                    "\n# real, up to 1\ntstBelow = 0.5\n");
    read(text);
    EXPECT_THAT(m_problems, IsEmpty());
    for (auto const & declaration : declarations)
        EXPECT_EQ(m_table.value(declaration.name), utString(declaration.default_value));
}
