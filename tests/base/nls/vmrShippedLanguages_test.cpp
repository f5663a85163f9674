#include <gtest/gtest.h>

#include "Surroundings.h"
#include "nls/nlsUtils.h"
#include "nls/vmrnlsFormatterSimple.h"
#include "nls/vmrnlsLocaleNumbers.h"
#include "nls/vmrnlsParserDefaultThenLocale.h"
#include "nls/vmrnlsTranslatorAndFormatter.h"
#include "nls/vmrnlsTranslatorWithDatabases.h"

namespace {

/// A language and how some texts and numbers look in it.
struct Shipped {
    char const * language;
    char const * locale;
    char const * unreadable;   ///< of the library, with a file name in it
    char const * ended;        ///< the beginning of one of the engine, with its two arguments in either order
    char const * far_edges;    ///< of a translator, with a real number in it
    char const * assembly;     ///< a value of an option
    char const * save_as;      ///< with a mnemonic
    char const * one_and_half; ///< as a user types it
};

void PrintTo(Shipped const & shipped, std::ostream * out)
{
    *out << shipped.language;
}

class ShippedLanguages : public testing::TestWithParam<Shipped> {
protected:
    ShippedLanguages()
    {
        surroundings.use_numbers_of(GetParam().locale);
        nlsDomainManager::language(GetParam().language);
        nlsDomainManager::numeric_translation(1);
        point = nlsUtils::lookup_decimal_point();
        nlsDomainManager::numeric_translation(0);
        vmrnlsLocaleNumbers::save();
    }
    ~ShippedLanguages() override
    {
        unsetenv("LC_NUMERIC");
        vmrnlsLocaleNumbers::save();
    }

    template <class... T>
    std::string text(char const * domain, char const * key, T const &... values) const
    {
        vmrnlsFormatterSimple const formatter(std::string(1, point).c_str());
        return vmrnlsTranslatorAndFormatter(&translator, &formatter).tsprintf(domain, key, values...).str();
    }

    Surroundings surroundings;
    vmrnlsTranslatorWithDatabases translator{TEST_LOCALE_FOLDER};
    char point = 0;
};

} // namespace

TEST_P(ShippedLanguages, CoverAllDomains)
{
    EXPECT_EQ(text("vmrgrlib", "Unable to read input file %s", "a.stp"), GetParam().unreadable);
    std::string const ended =
        text("vmrengine",
             "engine::The translator ended unexpectedly (%s) while reading %s. The file "
             "may be damaged; try to save it again in the program that made it.\n",
             "signal 11", "a.stp");
    EXPECT_EQ(ended.find(GetParam().ended), 0u) << ended;
    EXPECT_EQ(text("vmrgrlib", "d.res.value.structure::assembly"), GetParam().assembly);
    EXPECT_EQ(text("vmrgrlib", "m.options::Save &As..."), GetParam().save_as);
}

TEST_P(ShippedLanguages, ShowNumbersAsTheUserWritesThem)
{
    EXPECT_EQ(text("vmrhost", "brep::%d edges lie farther from their surfaces than the tolerance of %g mm\n",
                   3, 0.25),
              GetParam().far_edges);
}

TEST_P(ShippedLanguages, ReadNumbersAsTheUserWritesThemAndInTheDefaultForm)
{
    vmrnlsParserDefaultThenLocale const parser;
    int error = 0;
    EXPECT_EQ(parser.parse_double(GetParam().one_and_half, error), 1.5);
    EXPECT_EQ(parser.parse_double("1.5", error), 1.5);
    EXPECT_EQ(error, 0);
    char const * const foreign = point == ',' ? "1;5" : "1,5";
    parser.parse_double(foreign, error);
    EXPECT_NE(error, 0) << foreign;
}

INSTANTIATE_TEST_SUITE_P(
    Languages, ShippedLanguages,
    testing::Values(
        Shipped{"de", "de_DE", "Die Eingabedatei a.stp kann nicht gelesen werden",
                "Der Übersetzer endete unerwartet (signal 11) beim Lesen von a.stp. ",
                "3 Kanten liegen weiter von ihren Flächen entfernt, als die Toleranz von 0,25 mm erlaubt\n",
                "Baugruppe", "Speichern &unter ...", "1,5"},
        Shipped{"fr", "fr_FR", "Impossible de lire le fichier d’entrée a.stp",
                "Le traducteur s’est arrêté de façon inattendue (signal 11) pendant la lecture de a.stp. ",
                "3 arêtes sont plus éloignées de leurs surfaces que la tolérance de 0,25 mm\n", "assemblage",
                "Enregistrer &sous...", "1,5"},
        Shipped{"ja", "ja_JP", "入力ファイル a.stp を読み込めません",
                "トランスレーターが a.stp の読み込み中に予期せず終了しました (signal 11)。",
                "3 本のエッジが、許容差 0.25 mm を超えてサーフェスから離れています\n", "アセンブリ",
                "名前を付けて保存(&A)...", "1.5"}));
