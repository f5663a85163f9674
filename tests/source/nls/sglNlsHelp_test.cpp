#include "sglNlsHelp.h"

#include "sglNumberLocaliser.h"

#include "kit/kitAppTest.h"

#include <wx/log.h>

namespace {

struct Language : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
    }
};

} // namespace

TEST_F(Language, IsEnglishWhenThereAreNoFiles)
{
    getNlsHelp()->set_main_language("de");
    EXPECT_EQ(getNlsHelp()->requested_language(), utString("de"));
    EXPECT_EQ(getNlsHelp()->used_language(), utString("English"));
    EXPECT_EQ(getNlsHelp()->gsprintf("vmrgrlib", "cl::Input file\n\n"), utString("Input file\n\n"));
}

TEST_F(Language, IsThatOfTheFilesForItsCountriesAsWell)
{
    install("share/vmr/locale/fr/LC_MESSAGES/vmrgrlib.mo", "");
    getNlsHelp()->set_main_language("fr_CA");
    EXPECT_EQ(getNlsHelp()->requested_language(), utString("fr_CA"));
    EXPECT_EQ(getNlsHelp()->used_language(), utString("fr"));
    EXPECT_EQ(getNlsHelp()->iso_locale(), utString("fr"));
}

TEST_F(Language, ShowsEnglishTextsWhereItsFileIsDamaged)
{
    install("share/vmr/locale/fr/LC_MESSAGES/vmrgrlib.mo", "\xde\x12\x04\x95 and then nothing of the kind");
    getNlsHelp()->set_main_language("fr");
    EXPECT_EQ(getNlsHelp()->gsprintf("vmrgrlib", "cl::Input file\n\n"), utString("Input file\n\n"));
}

TEST_F(Language, ThatNobodyHasIsEnglishWithoutAWord)
{
    install("share/vmr/locale/fr/LC_MESSAGES/vmrgrlib.mo", "");
    wxLogBuffer said; // shows what it got at its end, and here it gets nothing
    wxLog * const before = wxLog::SetActiveTarget(&said);
    getNlsHelp()->set_main_language("tlh_XX");
    wxLog::SetActiveTarget(before);
    EXPECT_EQ(said.GetBuffer(), "");
    EXPECT_EQ(getNlsHelp()->requested_language(), utString("tlh_XX"));
    EXPECT_EQ(getNlsHelp()->used_language(), utString("English"));
    EXPECT_EQ(getNlsHelp()->wxwidgets_language(), utString("English"));
}

TEST_F(Language, CutsTheCountryAtTheFirstUnderscoreOrHyphen)
{
    struct {
        char const * before;
        char const * after;
        int cut;
    } const names[] = {{"en_GB", "en", 1}, {"pt-br", "pt", 1}, {"de", "de", 0},
                       {"x", "x", 0},      {"", "", 0},        {"_x", "_x", 0}};
    for (auto const & name : names) {
        utString language = name.before;
        EXPECT_EQ(getNlsHelp()->strip_country(language), name.cut) << name.before;
        EXPECT_EQ(language, utString(name.after));
    }
}

TEST_F(Language, ReadsNumbersAndTellsOfTextThatIsNone)
{
    int error = 0;
    EXPECT_EQ(getNlsHelp()->string_to_int("42", error), 42);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(getNlsHelp()->string_to_double("0.25", error), 0.25);
    EXPECT_EQ(error, 0);
    getNlsHelp()->string_to_int("42x", error);
    EXPECT_NE(error, 0);
}

TEST_F(Language, LocalisesNumbersWithTwoDecimals)
{
    EXPECT_EQ(sglNumberLocaliser().localise_number("3"), utString("3.00"));
    EXPECT_EQ(sglNumberLocaliser().localise_number("three"), utString());
}

TEST_F(Language, LocalisesAmountsOfAWordAndANumber)
{
    EXPECT_EQ(sglNumberLocaliser().localise_amount("EUR 12.5"), utString("EUR 12.50"));
    EXPECT_EQ(sglNumberLocaliser().localise_amount("12.5"), utString());
    EXPECT_EQ(sglNumberLocaliser().localise_amount("EUR much"), utString());
}

TEST_F(Language, NeverReadsBeyondTheArgumentsOfAText)
{
    EXPECT_EQ(getNlsHelp()->gsprintf("vmrgrlib", "cl::%s and %s", "one"), utString("one and %s"));
}

TEST_F(Language, ASecondObjectFailsTheAssertion)
{
    EXPECT_DEATH(sglNlsHelp second, "An sglNlsHelp already exists");
}
