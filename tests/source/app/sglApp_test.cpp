#include "kit/kitAppTest.h"

#include "sglNlsHelp.h"

#include "wxt/wxtStringConverter.h"

#include <wx/stdpaths.h>
#include <wx/utils.h>
#include <wx/xrc/xmlres.h>

namespace {

using Application = kitAppTest;

char const good_product[] = "key = 7.2.5\n"
                            "short_name = Shorty 7\n"
                            "long_name = Shorty 7 Long\n"
                            "product_name = Shorty\n"
                            "product_type = BETA\n"
                            "product_release = 2026 R1\n"
                            "product_sp = SP 12b\n"
                            "company_name = Product Company\n";

} // namespace

TEST_F(Application, IsReachedAsTheOneInstance)
{
    EXPECT_EQ(&sglApp::app(), &app());
}

TEST_F(Application, HasTheNamesOfItsConstructorWithoutAProductFile)
{
    app().pre_splash_screen_init();
    EXPECT_EQ(app().application_name(), utString("Tester 7.2.5"));
    EXPECT_EQ(app().full_application_name(), utString("Tester 7.2.5 - Project Build (No Status File)"));
    EXPECT_EQ(app().application_name_no_version(), utString("Tester"));
    EXPECT_EQ(app().company_name(), utString("Testing Company"));
    EXPECT_EQ(app().titlebar_string(), utString("Testing Company Tester Summit 7.2"));
    EXPECT_EQ(app().service_pack(), 0);
    EXPECT_EQ(app().get_build_type(), sglBuildNoStatusFile);
}

TEST_F(Application, TakesItsNamesFromAProductFile)
{
    install("share/vmr/product", good_product);
    app().pre_splash_screen_init();
    EXPECT_EQ(app().application_name(), utString("Shorty 7"));
    EXPECT_EQ(app().full_application_name(), utString("Shorty 7 Long"));
    EXPECT_EQ(app().application_name_no_version(), utString("Shorty"));
    EXPECT_EQ(app().company_name(), utString("Product Company"));
    EXPECT_EQ(app().titlebar_string(), utString("Product Company Shorty Summit 2026 R1"));
    EXPECT_EQ(app().service_pack(), 12);
    EXPECT_EQ(app().get_build_type(), sglBuildBeta);
}

TEST_F(Application, KeepsItsCompanyNameWhenTheProductFileHasNone)
{
    install("share/vmr/product", "key = 7.2.5\nproduct_name = Shorty\n");
    app().pre_splash_screen_init();
    EXPECT_EQ(app().company_name(), utString("Testing Company"));
}

TEST_F(Application, KeepsItsServicePackWhenTheProductFileGivesOneWithoutADigit)
{
    install("share/vmr/product", "key = 7.2.5\nproduct_name = Shorty\nproduct_sp = none\n");
    app().pre_splash_screen_init();
    EXPECT_EQ(app().service_pack(), 0);
}

TEST_F(Application, KeepsItsNamesWhenTheProductFileBelongsToAnotherBuild)
{
    install("share/vmr/product", "key = 1.0.0\nproduct_name = Shorty\n");
    app().pre_splash_screen_init();
    EXPECT_EQ(app().get_build_type(), sglBuildStatusFileError);
    EXPECT_EQ(app().application_name_no_version(), utString("Tester"));
    EXPECT_EQ(app().full_application_name(), utString("Tester 7.2.5"));
}

TEST_F(Application, ReadsTheKindOfBuildInAnyCase)
{
    install("share/vmr/product", "key = 7.2.5\nproduct_name = Shorty\nproduct_type = beta\n");
    app().pre_splash_screen_init();
    EXPECT_EQ(app().get_build_type(), sglBuildBeta);
}

TEST_F(Application, TakesAnEmptyKindOfBuildForAProjectBuild)
{
    install("share/vmr/product", "key = 7.2.5\nproduct_name = Shorty\nproduct_type =\n");
    app().pre_splash_screen_init();
    EXPECT_EQ(app().get_build_type(), sglBuildProject);
}

TEST_F(Application, TellsWhoItIsInTheCopyrightMessage)
{
    install("share/vmr/product", good_product);
    start();
    EXPECT_EQ(app().copyright_message(), utString("Product Company Shorty 7\n"
                                                  "Version: 7.2.5 \n"
                                                  "Build Date: 2026-01-31 \n"
                                                  "Status: Beta Release \n"
                                                  "\n"
                                                  "\xC2\xA9 All rights tested"));
}

TEST_F(Application, KnowsTheOperatingSystemAsTheToolkitDescribesIt)
{
    app().pre_splash_screen_init();
    EXPECT_EQ(app().application_information()->os(), wxtStringConverter::to_ut(wxGetOsDescription()));
}

TEST_F(Application, DoesNotStartWithoutItsMainXrcFile)
{
    std::filesystem::remove(folder() / "installation/share/vmr/xrc/vmrgrlib.xrc");
    app().pre_splash_screen_init();
    delete wxXmlResource::Set(nullptr);
    EXPECT_FALSE(app().run_on_init());
    // The toolkit would make a resource object if asked for it, hence the way through Set.
    EXPECT_EQ(wxXmlResource::Set(nullptr), nullptr);
}

TEST_F(Application, DoesNotStartWithoutItsSharedXrcFile)
{
    std::filesystem::remove(folder() / "installation/share/vmr/xrc/vmrshared.xrc");
    app().pre_splash_screen_init();
    EXPECT_FALSE(app().run_on_init());
}

TEST_F(Application, LeavesTheResourceObjectInPlaceWhenTheMainXrcFileIsCorrupt)
{
    install("share/vmr/xrc/vmrgrlib.xrc", "<resource><not closed");
    app().pre_splash_screen_init();
    delete wxXmlResource::Set(nullptr);
    wxLogNull const quiet;
    EXPECT_FALSE(app().run_on_init());
    std::unique_ptr<wxXmlResource> const installed(wxXmlResource::Set(nullptr));
    EXPECT_NE(installed, nullptr);
}

TEST_F(Application, KeepsTheRecordsOfFinishedTranslationsInTheirOrder)
{
    auto * const first = new sdbTranslationData;
    first->set_input_file("first.stp");
    auto * const second = new sdbTranslationData;
    second->set_input_file("second.stp");
    app().register_translation(utPtrClaim, first);
    app().register_translation(utPtrClaim, second);
    ASSERT_EQ(app().num_translations(), 2);
    EXPECT_EQ(app().translation_details(0), first);
    EXPECT_EQ(app().translation_details(1)->input_file(0), utString("second.stp"));
}

TEST_F(Application, TakesTheUserFromTheEnvironment)
{
    setenv("LOGNAME", "tester of names", 1);
    app().pre_splash_screen_init();
    EXPECT_EQ(app().application_information()->user(), utString("tester of names"));
    EXPECT_EQ(app().application_information()->organisation(), utString("Organisation Unknown"));
    EXPECT_EQ(app().application_information()->program(), utString("Tester7.2.5"));
}

TEST_F(Application, TakesTheUserFromTheSystemWhereTheEnvironmentHasNone)
{
    for (bool const empty : {false, true}) {
        empty ? setenv("LOGNAME", "", 1) : unsetenv("LOGNAME");
        app().set_product_info();
        EXPECT_EQ(app().application_information()->user(), wxtStringConverter::to_ut(wxGetUserId()));
        EXPECT_FALSE(app().application_information()->user().empty());
    }
}

TEST_F(Application, PutsTheBuildIntoTheApplicationInformation)
{
    start();
    EXPECT_EQ(app().application_information()->build_number(), utString("Build .5 2026-01-31"));
    EXPECT_EQ(app().application_information()->info(sduCOMPANYNAME), utString("Testing Company"));
}

TEST_F(Application, LaysTheConfigurationOutAsThisPlatformDoes)
{
    app().pre_splash_screen_init();
    setenv("HOME", (folder() / "home").c_str(), 1);
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(wxStandardPaths::Get().GetUserConfigDir().utf8_string(), folder() / "home/.config");
    EXPECT_EQ(app().GetVendorName().utf8_string(), "Quorvane");
}

TEST_F(Application, GivesTheBoxesOfTheToolkitItsName)
{
    app().pre_splash_screen_init();
    EXPECT_EQ(app().GetAppDisplayName().utf8_string(), app().application_name_no_version().str());
    EXPECT_EQ(app().GetAppDisplayName(), "Tester");
}

TEST_F(Application, AnswersWithFixedCommonNames)
{
    EXPECT_EQ(app().common_application_name(), utString("Crosswalk"));
    EXPECT_EQ(app().common_company_name(), utString("Quorvane"));
    EXPECT_EQ(app().product_info_org(), utString("Unknown"));
}
