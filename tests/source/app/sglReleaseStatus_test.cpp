#include "sglReleaseStatus.h"

#include "kit/kitAppTest.h"
#include "sglNlsHelp.h"
#include "sglResourceString.h"

namespace {

struct ReleaseStatus : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        app().pre_splash_screen_init();
    }
};

} // namespace

TEST_F(ReleaseStatus, RefusesAValueOutOfRangeAndKeepsTheOld)
{
    EXPECT_EQ(sglReleaseStatus::initialise(sglBuildBeta), 1);
    EXPECT_EQ(sglReleaseStatus::initialise(static_cast<sglBuildType>(7)), 0);
    EXPECT_EQ(sglReleaseStatus::build_type(), sglBuildBeta);
}

TEST_F(ReleaseStatus, HasATextForEveryKindOfBuild)
{
    struct {
        sglBuildType type;
        char const * text;
    } const kinds[] = {{sglBuildFull, "Full Release"},
                       {sglBuildAlpha, "Alpha Release"},
                       {sglBuildBeta, "Beta Release"},
                       {sglBuildProject, "Project Build"},
                       {sglBuildReleaseCandidate, "Release Candidate"},
                       {sglBuildNoStatusFile, "Project Build (No Status File)"},
                       {sglBuildStatusFileError, "Project Build (Status File Error)"}};
    for (auto const & kind : kinds) {
        sglReleaseStatus::initialise(kind.type);
        EXPECT_EQ(sglReleaseStatus::release_string(), utString(kind.text));
        EXPECT_EQ(sglReleaseStatus::splash_string(),
                  kind.type == sglBuildFull ? utString() : utString(kind.text));
    }
}

TEST_F(ReleaseStatus, KeepsTheTextsInTheLanguageInWhichTheyWereFirstWanted)
{
    ASSERT_TRUE(app().run_on_init());
    sglReleaseStatus::initialise(sglBuildFull);
    EXPECT_EQ(sglReleaseStatus::release_string(), utString("Full Release"));
    auto const place = folder() / "installation/share/vmr/locale/de/LC_MESSAGES";
    std::filesystem::create_directories(place);
    std::filesystem::copy(TEST_LOCALE_FOLDER "/de/LC_MESSAGES/vmrgrlib.mo", place + "/vmrgrlib.mo");
    getNlsHelp()->set_main_language("de");
    EXPECT_NE(sglResourceString("vmrgrlib", 1088), utString("Full Release"));
    EXPECT_EQ(sglReleaseStatus::release_string(), utString("Full Release"));
    getNlsHelp()->set_main_language("English");
}

TEST(BuildTypes, HaveTheNumbersThatProductFilesAndReportsKnow)
{
    EXPECT_EQ(sglBuildFull, 0);
    EXPECT_EQ(sglBuildAlpha, 1);
    EXPECT_EQ(sglBuildBeta, 2);
    EXPECT_EQ(sglBuildProject, 3);
    EXPECT_EQ(sglBuildReleaseCandidate, 4);
    EXPECT_EQ(sglBuildNoStatusFile, 5);
    EXPECT_EQ(sglBuildStatusFileError, 6);
}
