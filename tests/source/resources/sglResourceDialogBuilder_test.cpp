#include "kit/kitAppTest.h"
#include "kit/kitLayout.h"

namespace {

struct Layout : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
        m_table.initialise(utString(folder().write("test.rsc", "vmrTolTriangulate3d = 0.5\nstranger = 1\n")));
    }

    /// Reads the text and keeps what came of it.
    int read(std::string const & text, unsigned int mask = 1, std::set<std::string> const & wrapping = {})
    {
        m_reader = std::make_unique<kitLayoutReader>(&m_table);
        m_reader->recorder().wrapping = wrapping;
        return m_reader->read(folder().write("layout.txt", text), mask);
    }
    kitLayoutReader & reader() { return *m_reader; }
    kitLayoutRecorder::Row const & row(std::size_t index) { return m_reader->recorder().rows.at(index); }
    std::size_t pages() { return m_reader->recorder().pages.size(); }
    std::size_t rows() { return m_reader->recorder().rows.size(); }

    static std::string attributes(std::string const & lines)
    {
        return "start_attributes\n" + lines + "end_attributes\n";
    }
    static std::string page(std::string const & content, std::string const & type = "both",
                            std::string const & more = {})
    {
        return "start_page\n" + attributes("type " + type + "\nname d.page::Title\n" + more) + content +
               "end_page\n";
    }
    static std::string resource(std::string const & name, std::string const & more = {},
                                std::string const & type = "boolean")
    {
        return "start_resource\n" +
               attributes("name " + name + "\nshort_description d.label::Label of " + name +
                          "\nlong_description d.tip::Tip of " + name + "\ntype " + type + "\n" + more) +
               "end_resource\n";
    }
    static std::string group(std::string const & content, std::string const & more = {})
    {
        return "start_group\n" + attributes("name d.group::Box\n" + more) + content + "end_group\n";
    }
    static std::string enumeration(std::string const & name, std::string const & values)
    {
        return "start_enum\n" + attributes("name " + name + "\n") + "start_values\n" + values +
               "end_values\nend_enum\n";
    }

private:
    vmrTableInstance m_table;
    std::unique_ptr<kitLayoutReader> m_reader;
};

} // namespace

TEST_F(Layout, OfRowsFlowsDownThePage)
{
    ASSERT_TRUE(read(page(resource("a") + resource("b", "", "infinite") + resource("c"))));
    ASSERT_EQ(rows(), 3U);
    EXPECT_EQ(row(0).place, wxRect(wxPoint(20, 10), wxPoint(530, 30)));
    EXPECT_EQ(row(1).place, wxRect(wxPoint(20, 46), wxPoint(530, 70)));
    EXPECT_EQ(row(2).place, wxRect(wxPoint(20, 86), wxPoint(530, 106)));
    EXPECT_EQ(row(0).kind, "boolean");
    EXPECT_EQ(row(1).kind, "infinite");
    EXPECT_EQ(row(1).label, "Label of b");
    EXPECT_EQ(row(1).tip, "Tip of b");
    EXPECT_EQ(reader().recorder().pages[0]->title, "Title");
}

TEST_F(Layout, RowThatBecameHigherPushesAllThatFollowsDown)
{
    ASSERT_TRUE(read(page(resource("a", "", "infinite") + resource("b")), 1, {"a"}));
    // 25 pixels became 50, so that the row ends at pixel 59, in dialog unit 29.
    EXPECT_EQ(row(1).place.y, (29 + 8) * 2);
}

TEST_F(Layout, TopOfAResourceMovesEveryLaterRow)
{
    ASSERT_TRUE(read(page(resource("a") + resource("b", "top 100\n") + resource("c"))));
    EXPECT_EQ(row(1).place.y, 200);
    EXPECT_EQ(row(2).place.y, (110 + 8) * 2);
}

TEST_F(Layout, PageSaysStartAndSpacing)
{
    ASSERT_TRUE(read(page(resource("a") + resource("b"), "both", "start 20\nspacing 3\n")));
    EXPECT_EQ(row(0).place.y, 40);
    EXPECT_EQ(row(1).place.y, (30 + 3) * 2);
}

TEST_F(Layout, SidesOfAResourceMayBeGiven)
{
    ASSERT_TRUE(read(page(resource("a", "left 30\nright 90\nbottom 50\n"))));
    EXPECT_EQ(row(0).place, wxRect(wxPoint(60, 10), wxPoint(180, 100)));
}

TEST_F(Layout, GroupStandsBehindItsChildrenAndEnds6BelowTheLast)
{
    ASSERT_TRUE(read(page(group(resource("a") + resource("b")) + resource("c"))));
    ASSERT_EQ(rows(), 4U);
    EXPECT_EQ(row(0).place.y, (5 + 12) * 2);
    EXPECT_EQ(row(2).kind, "group");
    EXPECT_EQ(row(2).label, "Box");
    EXPECT_EQ(row(2).name, "");
    // a from 17 to 27, b from 35 to 45.
    EXPECT_EQ(row(2).place, wxRect(wxPoint(0, 10), wxPoint(540, (45 + 6) * 2)));
    EXPECT_EQ(row(3).place.y, (51 + 8) * 2);
}

TEST_F(Layout, GroupWithoutChildrenEndsAt18MinusSpacing)
{
    ASSERT_TRUE(read(page(group(""))));
    EXPECT_EQ(row(0).place, wxRect(wxPoint(0, 10), wxPoint(540, (5 + 18 - 8) * 2)));
}

TEST_F(Layout, SpacingOfAGroupAppliesInsideAndNotBehindIt)
{
    ASSERT_TRUE(read(
        page(group(resource("a") + group(resource("b") + resource("c")), "spacing 2\n") + resource("d"))));
    // a 17 to 27, the inner box from 29, b 41 to 51, c 53 to 63.
    EXPECT_EQ(row(1).place.y, 41 * 2);
    EXPECT_EQ(row(2).place.y, 53 * 2);
    EXPECT_EQ(row(3).place, wxRect(wxPoint(0, 58), wxPoint(540, 69 * 2)));
    EXPECT_EQ(row(4).place, wxRect(wxPoint(0, 10), wxPoint(540, 75 * 2)));
    EXPECT_EQ(row(5).place.y, (75 + 8) * 2);
}

TEST_F(Layout, GroupWithABottomGetsNoInset)
{
    ASSERT_TRUE(read(page(group(resource("a"), "bottom 80\n") + resource("b"))));
    EXPECT_EQ(row(1).place, wxRect(wxPoint(0, 10), wxPoint(540, 160)));
    EXPECT_EQ(row(2).place.y, 88 * 2);
}

TEST_F(Layout, GroupMayBePlaced)
{
    ASSERT_TRUE(read(page(group(resource("a"), "left 4\nright 100\ntop 50\n"))));
    EXPECT_EQ(row(0).place.y, 62 * 2);
    EXPECT_EQ(row(1).place, wxRect(wxPoint(8, 100), wxPoint(200, (72 + 6) * 2)));
}

TEST_F(Layout, NumberThatIsNoneCountsAsAbsent)
{
    ASSERT_TRUE(read(page(resource("a", "top abc\n"), "both", "start x\n")));
    EXPECT_EQ(row(0).place.y, 10);
    EXPECT_FALSE(read(page(group("", "bottom abc\n"))));
}

TEST_F(Layout, EnumerationKeepsItsOrderAndStoresWhatStandsBehindTheColons)
{
    ASSERT_TRUE(read(enumeration("OnOff", "VMRNLS(\"d.res.onoff::On\")\nd.res.onoff::Off\n") +
                     page(resource("m", "enum OnOff\n", "finite"))));
    EXPECT_EQ(row(0).kind, "finite");
    EXPECT_EQ(row(0).values, (std::vector<std::string>{"On", "Off"}));
    EXPECT_EQ(row(0).place.height, 12 * 2 + 1);
}

TEST_F(Layout, PagesAreShownByTheKindOfDialog)
{
    auto const shown = [this](std::string const & type, unsigned int mask) {
        return read(page(resource("a"), type), mask) != 0;
    };
    for (unsigned int mask = 0; mask < 8; ++mask) {
        EXPECT_EQ(shown("input", mask), (mask & 1) != 0) << mask;
        EXPECT_EQ(shown("output", mask), (mask & 2) != 0) << mask;
        EXPECT_EQ(shown("both", mask), (mask & 3) != 0) << mask;
        EXPECT_EQ(shown("viewer_input", mask), (mask & 5) == 5) << mask;
        EXPECT_FALSE(shown("Input", mask)) << mask;
    }
}

TEST_F(Layout, PageThatRequiresAResourceIsShownWhereThatIsThereAndRegistered)
{
    EXPECT_TRUE(read(page(resource("a"), "both", "requires vmrTolTriangulate3d\n")));
    EXPECT_FALSE(read(page(resource("a"), "both", "requires vmrOptOutputUnits\n"))); // not in the table
    EXPECT_FALSE(read(page(resource("a"), "both", "requires stranger\n")));          // of no type
    EXPECT_TRUE(reader().resource_available("vmrTolTriangulate3d"));
    EXPECT_FALSE(reader().resource_available("stranger"));
}

TEST_F(Layout, OfPagesThatAreAllForTheOtherSideFailsAtTheEnd)
{
    std::string const text = enumeration("E", "a::b\n") + page(resource("a"), "output") + page("", "output");
    EXPECT_FALSE(read(text, 1));
    EXPECT_EQ(reader().line_number(), std::count(text.begin(), text.end(), '\n'));
    EXPECT_TRUE(read(text, 2));
}

TEST_F(Layout, EmptyLineBetweenPagesEndsTheReadingWithSuccess)
{
    EXPECT_TRUE(read(page("") + "\n" + page("") + "nonsense"));
    EXPECT_EQ(pages(), 1U);
    EXPECT_FALSE(read("\n" + page("")));
    EXPECT_EQ(pages(), 0U);
}

TEST_F(Layout, EnumerationBehindAPageIsNotRead)
{
    EXPECT_TRUE(read(page("") + enumeration("E", "bad\n") + page("")));
    EXPECT_EQ(pages(), 1U);
}

TEST_F(Layout, EmptyLineAmongAttributesFails)
{
    EXPECT_FALSE(read("start_page\nstart_attributes\ntype both\n\nname x\nend_attributes\nend_page\n"));
    EXPECT_EQ(reader().line_number(), 4);
}

TEST_F(Layout, CommentsMayStandAnywhere)
{
    EXPECT_TRUE(read("# first\nstart_page\n   # between\nstart_attributes\n#a\ntype both\nname x\n"
                     "end_attributes\n# here\nend_page\n"));
    EXPECT_EQ(pages(), 1U);
}

TEST_F(Layout, SpacesBeforeALineDoNotCountAndOthersDo)
{
    EXPECT_TRUE(
        read("   start_page\n     start_attributes\n type both\n name x\n  end_attributes\n   end_page"));
    EXPECT_FALSE(read("\tstart_page\nstart_attributes\ntype both\nname x\nend_attributes\nend_page\n"));
    EXPECT_FALSE(read("start_page\n\tstart_attributes\ntype both\nname x\nend_attributes\nend_page\n"));
    EXPECT_FALSE(read("start_page\nstart_attributes\ntype both\nname x\nend_attributes \nend_page\n"));
}

TEST_F(Layout, CarriageReturnsBelongToTheLineEnds)
{
    EXPECT_TRUE(
        read("start_page\r\nstart_attributes\r\ntype both\r\nname x\r\nend_attributes\r\nend_page\r\n"));
    EXPECT_EQ(reader().recorder().pages[0]->title, "x");
}

TEST_F(Layout, HiddenPageMayHoldAnythingAsLongAsPagesBalance)
{
    EXPECT_TRUE(read("start_page\nstart_attributes\ntype output\nname x\nend_attributes\n"
                     "nonsense\n\nstart_page\nend_group\nend_page\nend_page\n" +
                     page("")));
    EXPECT_EQ(pages(), 1U);
    EXPECT_FALSE(
        read("start_page\nstart_attributes\ntype output\nname x\nend_attributes\nstart_page\nend_page\n"));
}

TEST_F(Layout, NestedPageOfTheOtherSideIsLeftOutAndItsParentStays)
{
    EXPECT_TRUE(read(page(page(resource("a"), "output") + page(resource("b"), "input") + resource("c")), 1));
    ASSERT_EQ(pages(), 2U);
    auto const & made = reader().recorder().pages;
    EXPECT_EQ(made[0]->above, nullptr);
    EXPECT_EQ(made[1]->above, made[0].get());
    EXPECT_EQ(row(0).name, "b");
    // A nested page does not move the rows of the one around it.
    EXPECT_EQ(row(1).place.y, 10);
    EXPECT_EQ(row(1).page, made[0].get());
}

TEST_F(Layout, BareTextKeepsBackslashesAndAWrappedOneHasEscapes)
{
    ASSERT_TRUE(read(page(resource("a", "short_description d.x::one\\ntwo\n") +
                          resource("b", "short_description VMRNLS(\"d.x::one\\ntwo \\\"three\\\"\")\n"))));
    EXPECT_EQ(row(0).label, "one\\ntwo");
    EXPECT_EQ(row(1).label, "one\ntwo \"three\"");
}

TEST_F(Layout, MacroIsStrippedOnlyAsAWhole)
{
    auto const stripped = [](char const * text) { return kitLayoutReader::strip_macro(text).str(); };
    EXPECT_EQ(stripped("VMRNLS(\"a::b\")"), "a::b");
    EXPECT_EQ(stripped("VMRNLS(\"a::b\") "), "VMRNLS(\"a::b\") ");
    EXPECT_EQ(stripped("vmrnls(\"a::b\")"), "vmrnls(\"a::b\")");
    EXPECT_EQ(stripped("VMRNLS(\"\")"), "");
    EXPECT_EQ(stripped("VMRNLS(\")"), "VMRNLS(\")");
    EXPECT_EQ(stripped(""), "");
}

TEST_F(Layout, ReplacementStartsAgainFromTheFront)
{
    utString text = "aab";
    kitLayoutReader::replace("ab", "b", text);
    EXPECT_EQ(text, utString("b"));
}

TEST_F(Layout, LineIsCutAtItsFirstSpace)
{
    utString key;
    utString value;
    EXPECT_EQ(kitLayoutReader::split_string("name  two words ", key, value), 1);
    EXPECT_EQ(key, utString("name"));
    EXPECT_EQ(value, utString(" two words "));
    EXPECT_EQ(kitLayoutReader::split_string("name", key, value), 0);
}

TEST_F(Layout, LastOfSeveralAttributesOfAKeyCountsAndUnknownOnesDoNot)
{
    ASSERT_TRUE(read(page(resource("a", "top 30\ncolour red\ntop 40\n"))));
    EXPECT_EQ(row(0).place.y, 80);
}

TEST_F(Layout, NumbersBeyondAnyWindowDoNoHarm)
{
    EXPECT_TRUE(
        read(page(resource("a", "top 2147483647\n") + resource("b", "left -2147483648\nbottom 2147483647\n") +
                      group(resource("c"), "spacing -2147483648\nbottom -2147483648\n"),
                  "both", "spacing 2147483647\nstart -2147483648\n")));
}

TEST_F(Layout, NestingHasALimit)
{
    auto const nested = [this](int depth) {
        std::string text;
        for (int i = 0; i < depth; ++i)
            text += "start_group\nstart_attributes\nname x\nend_attributes\n";
        for (int i = 0; i < depth; ++i)
            text += "end_group\n";
        return page(text);
    };
    EXPECT_TRUE(read(nested(sglResourceDialogBuilder::max_depth - 1)));
    EXPECT_FALSE(read(nested(sglResourceDialogBuilder::max_depth)));
    EXPECT_FALSE(read(nested(100'000)));
}

TEST_F(Layout, LinesMayHave2055Characters)
{
    auto const with_line_of = [](std::size_t length, char const * end) {
        return "#" + std::string(length - 1, 'x') + end + page("");
    };
    EXPECT_TRUE(read(with_line_of(2055, "\n")));
    EXPECT_TRUE(read(with_line_of(2055, "\r\n")));
    EXPECT_FALSE(read(with_line_of(2056, "\n")));
    EXPECT_EQ(reader().line_number(), 0);
    EXPECT_FALSE(read(with_line_of(5000, "\n")));
}
