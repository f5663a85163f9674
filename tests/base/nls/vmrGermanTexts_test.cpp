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
        return text_of("vmrgrlib", key, values...);
    }

    template <class... T>
    std::string text_of(char const * domain, char const * key, T const &... values) const
    {
        return vmrnlsTranslatorAndFormatter(&translator, &formatter).tsprintf(domain, key, values...).str();
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

TEST_F(GermanTexts, CoverTheEngine)
{
    EXPECT_EQ(text_of("vmrengine", "engine::Translating %s to %s", "a.stp", "a.igs"),
              "a.stp wird nach a.igs übersetzt");
    EXPECT_EQ(text_of("vmrengine", "engine::The input %s is a folder. Choose a file.\n", "/tmp"),
              "Die Eingabe /tmp ist ein Verzeichnis. Wählen Sie eine Datei.\n");
}

TEST_F(GermanTexts, CoverTheMessagesOfTranslatorsWithTheirLineEnd)
{
    EXPECT_EQ(text_of("vmrhost",
                      "brep::%d edges lie farther from their surfaces than the tolerance of %g mm\n", 3,
                      0.25),
              "3 Kanten liegen weiter von ihren Flächen entfernt, als die Toleranz von 0,25 mm erlaubt\n");
    EXPECT_EQ(text_of("vmrhost", "format.filter::STEP Files"), "STEP-Dateien");
}

TEST_F(GermanTexts, CoverTheOptionsOfTheFormats)
{
    EXPECT_EQ(text("d.res.page::Tolerances"), "Toleranzen");
    EXPECT_EQ(text("d.res.group::Solids"), "Volumenkörper");
    EXPECT_EQ(text("d.res.vmrTolTriangulate3d::Deviation of triangles (mm)"), "Abweichung der Dreiecke (mm)");
    EXPECT_EQ(text("d.res.value.structure::assembly"), "Baugruppe");
}

TEST_F(GermanTexts, CoverTheWindows)
{
    EXPECT_EQ(text("d.options::&Apply"), "Ü&bernehmen");
    EXPECT_EQ(text("m.options::Save &As..."), "Speichern &unter ...");
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
