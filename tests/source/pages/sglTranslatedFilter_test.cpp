#include "sglTranslatedFilter.h"

#include "sglNlsHelp.h"

#include "kit/kitAppTest.h"
#include "kit/kitCatalogue.h"
#include "nls/nlsDomainManager.h"

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

    /// A compiled catalogue of one text, whose key is the context, an EOT and the English text.
    static std::string catalogue_of(std::string const & key, std::string const & translation)
    {
        std::string const header = "Content-Type: text/plain; charset=UTF-8\n";
        std::string const texts[] = {"", key, header, translation};
        // Behind these seven the two tables, of the keys and of the translations, and then the texts.
        std::vector<std::uint32_t> numbers = {0x950412de, 0, 2, 28, 44, 0, 60};
        std::string content;
        for (auto const & one : texts) {
            numbers.push_back(static_cast<std::uint32_t>(one.size()));
            numbers.push_back(static_cast<std::uint32_t>(60 + content.size()));
            content += one + '\0';
        }
        return std::string(reinterpret_cast<char const *>(numbers.data()), numbers.size() * 4) + content;
    }
    void speak_german(std::string const & key, std::string const & translation)
    {
        install("share/vmr/locale/de/LC_MESSAGES/vmrhost.mo", catalogue_of(key, translation));
        getNlsHelp()->set_nls_language("de");
    }
    void TearDown() override
    {
        getNlsHelp()->set_nls_language(nlsDomainManager::no_translation_language());
        kitAppTest::TearDown();
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

TEST_F(TranslatedFilter, TranslatesTheLabelAndKeepsThePatterns)
{
    speak_german("format.filter\x04"
                 "B Files",
                 "Öffnen von B");
    EXPECT_EQ(text({entry("format.filter::B Files (*.b;*.bb)|*.b;*.bb")}),
              "Öffnen von B (*.b;*.bb)|*.b;*.bb|All Files (*.*)|*.*||");
}

TEST_F(TranslatedFilter, HasTheTranslationOfAWholeEntryWhereThereIsOne)
{
    speak_german("format.filter\x04"
                 "B Files (*.b)|*.b",
                 "Alles von B|*.b;*.B");
    EXPECT_EQ(text({entry("format.filter::B Files (*.b)|*.b")}), "Alles von B|*.b;*.B|All Files (*.*)|*.*||");
}

TEST_F(TranslatedFilter, IsInTheOrderOfTheTranslatedTexts)
{
    speak_german("format.filter\x04"
                 "B Files",
                 "Z-Dateien");
    EXPECT_EQ(text({entry("format.filter::B Files (*.b)|*.b"), entry("format.filter::C Files (*.c)|*.c")}),
              "C Files (*.c)|*.c|Z-Dateien (*.b)|*.b|All Files (*.*)|*.*||");
}

TEST_F(TranslatedFilter, TranslatesAnEntryThatShowsOtherPatternsAsAWhole)
{
    speak_german("B Files (*.b)|*.b;*.bb", "B-Dateien (*.b)|*.b;*.bb");
    EXPECT_EQ(text({entry("B Files (*.b)|*.b;*.bb")}), "B-Dateien (*.b)|*.b;*.bb|All Files (*.*)|*.*||");
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
