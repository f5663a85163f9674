#include "xml/axmSimpleXmlFactory.h"

#include <gtest/gtest.h>

namespace {

constexpr char const * assembly = "<assembly name='Gearbox'>\n"
                                  "  <part id='1'>Shaft</part>\n"
                                  "  <part id='2'>Wheel &amp; hub</part>\n"
                                  "  <empty/>\n"
                                  "</assembly>\n";

class XmlPath : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(path, nullptr) << error.view(); }

    utString error;
    std::unique_ptr<axmIXmlPath> path = axmSimpleXmlFactory().make_path(assembly, error);
};

} // namespace

TEST_F(XmlPath, FindsElementsAndAttributes)
{
    utString value;
    EXPECT_EQ(path->value("/assembly/@name", value), 1);
    EXPECT_EQ(value, utString("Gearbox"));
    EXPECT_EQ(path->value("/assembly/part[@id='2']", value), 1);
    EXPECT_EQ(value, utString("Wheel & hub"));
    EXPECT_EQ(path->value("//empty", value), 1);
    EXPECT_TRUE(value.empty());
}

TEST_F(XmlPath, FindsAllMatchesInTheOrderOfTheText)
{
    std::vector<utString> values{"left over"};
    EXPECT_EQ(path->values("//part/@id", values), 1);
    EXPECT_EQ(values, (std::vector<utString>{"1", "2"}));
    EXPECT_EQ(path->values("//part[@id='2'] | //part[@id='1']", values), 1);
    EXPECT_EQ(values, (std::vector<utString>{"Shaft", "Wheel & hub"}));
    EXPECT_EQ(path->values("//nothing", values), 1);
    EXPECT_TRUE(values.empty());
}

TEST_F(XmlPath, AnswersQueriesForNumbersAndTexts)
{
    utString value;
    EXPECT_EQ(path->value("count(//part)", value), 1);
    EXPECT_EQ(value, utString("2"));
    EXPECT_EQ(path->value("concat(/assembly/@name, '!')", value), 1);
    EXPECT_EQ(value, utString("Gearbox!"));
}

TEST_F(XmlPath, TellsWhenNothingMatches)
{
    utString value("kept");
    EXPECT_EQ(path->value("/assembly/nothing", value), 0);
    EXPECT_EQ(value, utString("kept"));
}

TEST_F(XmlPath, RefusesWhatIsNoPath)
{
    utString value("kept");
    std::vector<utString> values;
    for (char const * wrong : {"", "//part[", "///", "count("}) {
        EXPECT_EQ(path->value(wrong, value), 0) << wrong;
        EXPECT_EQ(path->values(wrong, values), 0) << wrong;
    }
    EXPECT_EQ(value, utString("kept"));
}

TEST(XmlFactory, NamesTheLineOfAFault)
{
    utString error;
    EXPECT_EQ(axmSimpleXmlFactory().make_path("<a>\n<b>\n</a>\n", error), nullptr);
    EXPECT_EQ(error.locate_substring("line 3: "), 0) << error.view();
    EXPECT_EQ(axmSimpleXmlFactory().make_path("", error), nullptr);
    EXPECT_EQ(error.locate_substring("line 1: "), 0);
    EXPECT_EQ(axmSimpleXmlFactory().make_path("no XML", error), nullptr);
}
