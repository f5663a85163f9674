#include <gtest/gtest.h>

#include "Surroundings.h"
#include "nls/vmrnlsFormatterSimple.h"
#include "nls/vmrnlsTranslatorAndFormatter.h"
#include "nls/vmrnlsTranslatorWithDatabases.h"

namespace {

class GermanTexts : public testing::Test {
protected:
    GermanTexts() { nlsDomainManager::language("de"); }

    template <class... T>
    std::string text(char const * key, T const &... values) const
    {
        return vmrnlsTranslatorAndFormatter(&translator, &formatter)
            .tsprintf("vmrgrlib", key, values...)
            .str();
    }

    Surroundings surroundings;
    vmrnlsTranslatorWithDatabases translator{TEST_LOCALE_FOLDER};
    vmrnlsFormatterSimple formatter{","};
};

} // namespace

TEST_F(GermanTexts, CoverTheCommandLine)
{
    EXPECT_EQ(text("cl::Usage : \n\n"), "Aufruf: \n\n");
    EXPECT_EQ(text("cl::The input file %s does not exist\n\n", "a.stp"),
              "Die Eingabedatei a.stp ist nicht vorhanden\n\n");
    EXPECT_EQ(text("cl::Triangulation tolerance %f\n\n", 0.5), "Toleranz der Triangulierung 0,500000\n\n");
    EXPECT_EQ(text("cl::Unable to modify resource %s with value %s\n", "a", "b"),
              "Die Ressource a kann nicht auf den Wert b geändert werden\n");
}

TEST_F(GermanTexts, CoverTheDriver)
{
    EXPECT_EQ(text("Reading :"), "Lesen:");
    EXPECT_EQ(text("Unable to read input file %s", "a.stp"),
              "Die Eingabedatei a.stp kann nicht gelesen werden");
    EXPECT_EQ(text("sgltranslation::No entities were translated and no output file produced"),
              "Es wurden keine Elemente übersetzt und keine Ausgabedatei erzeugt");
}

TEST_F(GermanTexts, KeepTheVariablesOfAText)
{
    auto const warning =
        text("d.progress.messagebox::[[PROGRAM-NAME]] has detected some non-fatal problems which it has "
             "worked around.\nYou may want to check the warnings these problems produced.");
    EXPECT_EQ(warning.find("[[PROGRAM-NAME]] hat"), 0u);
}

TEST_F(GermanTexts, KeepControlCharactersOfAText)
{
    auto const about =
        text("d.about_box.7::System requested language\t:  %s\r\n[[PROGRAM-NAME]] language used\t:  "
             "%s\r\nwxWidgets language used\t:  %s\r\nLocale code page\t:  %s\n",
             "de", "de", "de", "UTF-8");
    EXPECT_NE(about.find("Sprache\t:  de\r\n"), std::string::npos);
    EXPECT_EQ(about.find("System requested"), std::string::npos);
}
