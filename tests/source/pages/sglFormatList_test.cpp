#include "sglFormatList.h"

#include "sglResourceString.h"

#include "kit/kitAppTest.h"
#include "kit/kitCatalogue.h"

namespace {

class Formats : public sglFormatList {
public:
    utString selected;
    utString all_files = "All files";

    utString selected_item() const override { return selected; }
    utString all_files_filter() const override { return all_files; }
    using sglFormatList::find_format_filter;
};

struct Chosen : sdbFilterIndexSet {
    mutable int index = -99;
    void set_filter_index(int chosen) const override { index = chosen; }
};

struct FormatList : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
    }
    int opens_on(kitCatalogue const & catalogue, char const * preferred)
    {
        Chosen chosen;
        formats.set_filter_index(catalogue.dlls(), preferred, catalogue.compare(), chosen);
        return chosen.index;
    }
    kitCatalogue const alphabet{{kitCatalogue::format("ALPHA", "Alpha Files", "alpha"),
                                 kitCatalogue::format("BETA", "Beta Files", "beta"),
                                 kitCatalogue::format("GAMMA", "Gamma Files", "gamma")}};
    Formats formats;
};

} // namespace

TEST_F(FormatList, OpensOnTheFilterOfTheSelectedFormat)
{
    formats.selected = "BETA";
    EXPECT_EQ(opens_on(alphabet, ""), 1);
    EXPECT_EQ(opens_on(alphabet, "GAMMA"), 1);
}

TEST_F(FormatList, OpensOnThatOfThePreferredFormatWhenNoneIsSelected)
{
    EXPECT_EQ(opens_on(alphabet, "GAMMA"), 2);
    formats.selected = "unknown format";
    EXPECT_EQ(opens_on(alphabet, "GAMMA"), 2);
}

TEST_F(FormatList, OpensOnAllFilesOtherwise)
{
    EXPECT_EQ(opens_on(alphabet, ""), 3);
    EXPECT_EQ(opens_on(alphabet, "DELTA"), 3);
    EXPECT_EQ(opens_on(kitCatalogue({}), ""), 0);
}

TEST_F(FormatList, PassesOverAFormatWithoutAFilter)
{
    kitCatalogue const catalogue(
        {kitCatalogue::format("ALPHA", "", "alpha"), kitCatalogue::format("BETA", "Beta Files", "beta")});
    formats.selected = "ALPHA";
    EXPECT_EQ(opens_on(catalogue, "BETA"), 0);
    EXPECT_EQ(opens_on(catalogue, "ALPHA"), 1);
}

TEST_F(FormatList, HasTheLabelOfAFormatWithoutItsLastCharacter)
{
    EXPECT_EQ(formats.find_format_filter(alphabet.dlls(), "BETA"), utString("Beta Files (*.beta"));
    EXPECT_EQ(formats.find_format_filter(alphabet.dlls(), "DELTA"), utString());
}

TEST_F(FormatList, TakesTheFirstOfTwoLabelsOfWhichOneStartsWithTheOther)
{
    EXPECT_EQ(formats.find_index_in_filter("STEP Files (*.st",
                                           "STEP Files (*.st;*.x)|*.st|STEP Files (*.st)|*.s||"),
              1);
    EXPECT_EQ(formats.find_index_in_filter("Part", "Part 2|*.2|Part|*.1||"), 1);
}

TEST_F(FormatList, OpensOnTheFirstOfTwoFormatsWhoseLabelsBeginAlike)
{
    kitCatalogue const catalogue(
        {kitCatalogue::format("SHORT", "Part Files", "p"), kitCatalogue::format("LONG", "Part Files", "p$")});
    for (auto const * format : {"LONG", "SHORT"}) {
        formats.selected = format;
        EXPECT_EQ(opens_on(catalogue, ""), 0) << format;
    }
}

TEST_F(FormatList, FindsALabelWhateverItsCase)
{
    EXPECT_EQ(formats.find_index_in_filter("BETA", "Alpha|*.a|Beta Files|*.b|All Files (*.*)|*.*||"), 2);
}

TEST_F(FormatList, FindsAllFilesInSpiteOfTheOtherSpelling)
{
    utString const spelling = sglResourceString("vmrgrlib", 1016);
    EXPECT_EQ(spelling, utString("All files"));
    EXPECT_EQ(formats.find_index_in_filter(spelling, "A|*.a|All Files (*.*)|*.*||"), 2);
}

TEST_F(FormatList, GivesThePlaceBehindTheLastForAllFilesUnderAnotherName)
{
    formats.all_files = "Everything";
    EXPECT_EQ(formats.find_index_in_filter("Everything", "A|*.a|All Files (*.*)|*.*||"), 3);
    EXPECT_EQ(opens_on(alphabet, ""), 4);
}

TEST_F(FormatList, GivesTheFirstPlaceForAnEmptyText)
{
    EXPECT_EQ(formats.find_index_in_filter("", "A|*.a|B|*.b||"), 1);
    EXPECT_EQ(formats.find_index_in_filter("A", ""), 1);
}

TEST_F(FormatList, FindsNothingBehindALabelThatEndsTheText)
{
    EXPECT_EQ(formats.find_index_in_filter("B", "A"), -1);
}

TEST_F(FormatList, LooksNoFurtherThanALabelThatIsShorterThanTheText)
{
    EXPECT_EQ(formats.find_index_in_filter("Alphabet", "Alpha|*.a|Alphabets|*.b||"), 2);
}
