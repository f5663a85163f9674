#include "sglTranslatedFilter.h"

#include "kit/kitAppTest.h"
#include "kit/kitCatalogue.h"

namespace {

struct TranslatedFilter : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
    }
    static sglTranslatedFilter filter(std::vector<sdbUntranslatedFilterElement> elements)
    {
        apStringCompareInsensitive const compare{
            utObserverPtr<apIStringEncoding const>(apStringEncodingChooser::mb_encoding())};
        return {it_iterator_over(std::move(elements)), apStringEncodingChooser::mb_encoding(), &compare};
    }
    static std::string text(std::vector<sdbUntranslatedFilterElement> elements)
    {
        return filter(std::move(elements)).translated_filter_string().str();
    }
    static sdbUntranslatedFilterElement entry(char const * text, int order = 0)
    {
        return {text, "vmrhost", order};
    }
};

} // namespace

TEST_F(TranslatedFilter, OfNoFormatsIsTheEntryForAllFilesWithTwoBars)
{
    EXPECT_EQ(text({}), "All Files (*.*)|*.*||");
    EXPECT_EQ(
        sglTranslatedFilter({}, apStringEncodingChooser::mb_encoding(), nullptr).translated_filter_string(),
        utString("All Files (*.*)|*.*||"));
}

TEST_F(TranslatedFilter, OfACatalogueWithoutTranslatorsIsTheSame)
{
    kitCatalogue const empty({});
    sglTranslatedFilter const filters(empty.dlls().filter_elements(), apStringEncodingChooser::mb_encoding(),
                                      empty.compare());
    EXPECT_EQ(filters.translated_filter_string(), utString("All Files (*.*)|*.*||"));
}

TEST_F(TranslatedFilter, ListsLabelsAndPatternsInTheOrderOfTheTexts)
{
    EXPECT_EQ(text({entry("b (*.b)|*.b"), entry("C (*.c)|*.c"), entry("A (*.a)|*.a")}),
              "A (*.a)|*.a|b (*.b)|*.b|C (*.c)|*.c|All Files (*.*)|*.*||");
}

TEST_F(TranslatedFilter, PutsTheCategoriesBeforeTheTexts)
{
    EXPECT_EQ(text({entry("A|*.a", 2), entry("Z|*.z", 1), entry("M|*.m", 2)}),
              "Z|*.z|A|*.a|M|*.m|All Files (*.*)|*.*||");
}

TEST_F(TranslatedFilter, PutsACategoryOfMinusOneFirstAndAllFilesLast)
{
    EXPECT_EQ(text({entry("A|*.a", 0), entry("Zebra|*.z", -1)}), "Zebra|*.z|A|*.a|All Files (*.*)|*.*||");
}

TEST_F(TranslatedFilter, LeavesOutAnEntryWithoutText)
{
    EXPECT_EQ(text({entry("A|*.a"), entry("")}), "A|*.a|All Files (*.*)|*.*||");
}

TEST_F(TranslatedFilter, StripsTheContextOfALabel)
{
    EXPECT_EQ(text({entry("format.filter::A Files|*.a")}), "A Files|*.a|All Files (*.*)|*.*||");
}

TEST_F(TranslatedFilter, KeepsPercentSignsOfALabel)
{
    EXPECT_EQ(text({entry("100%s A|*.a")}), "100%s A|*.a|All Files (*.*)|*.*||");
}

TEST_F(TranslatedFilter, GivesThePlatformTheSameText)
{
    auto const filters = filter({entry("A|*.a")});
    EXPECT_EQ(filters.ap_translated_filter_string().utf8(), filters.translated_filter_string().str());
}

TEST_F(TranslatedFilter, HasElementsThatKnowTheirCategory)
{
    auto const * const encoding = apStringEncodingChooser::mb_encoding();
    sglTranslatedFilterElement const one(entry("A|*.a", 7), encoding);
    sglTranslatedFilterElement const all(sglFILTER_ALL_FILES, encoding);
    EXPECT_EQ(one.category_order(), 7);
    EXPECT_EQ(one.ap_translated_filter_string(), apString(L"A|*.a"));
    EXPECT_EQ(all.category_order(), -1);
    EXPECT_EQ(all.translated_filter_string(), utString("All Files (*.*)|*.*|"));
    EXPECT_EQ(static_cast<int>(sglFILTER_ALL_FILES), 0);
}
