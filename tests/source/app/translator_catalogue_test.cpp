#include "kit/kitAppTest.h"

#include "sdb/sdbFormatName.h"
#include "sglResourceUtils.h"

namespace {

/// An application object whose catalogues come from the manifests that a test installs.
struct Catalogue : kitAppTest {
    void install_format(std::string const & name, std::string const & module)
    {
        // Any shared object does for a listing: the module itself is opened by the translator host alone.
        install("lib/vmr/translators/" + module + ".so", std::string("\x7f"
                                                                     "ELF\2\1\1",
                                                                     7));
        install("lib/vmr/translators/" + module + ".json",
                R"({"interface":1,"formats":[{"name":")" + name + R"(","filter":"format.filter::)" + name +
                    R"( Files","category":"Test","extensions":[")" + module +
                    R"("],"signatures":[],"sides":["input","output"],"viewer":false,"resource_file":")" +
                    module + R"(.rsc","resources":[]}]})");
    }
};

int count(itIterator<sdbFormatName> formats)
{
    int number = 0;
    while (++formats)
        ++number;
    return number;
}

} // namespace

TEST_F(Catalogue, OfAnEmptyDirectoryExistsAndIsEmpty)
{
    start();
    EXPECT_EQ(count(app().input_dlls().formats()), 0);
    EXPECT_EQ(count(app().output_dlls().formats()), 0);
    EXPECT_EQ(app().input_dlls().translator_for_format("STEP"), nullptr);
    EXPECT_EQ(app().output_dlls().translator_for_file("part.stp"), nullptr);
}

TEST_F(Catalogue, HoldsWhatTheScanFound)
{
    install_format("ALPHA", "alpha");
    start();
    EXPECT_TRUE(app().translators_were_scanned());
    ASSERT_NE(app().input_dlls().translator_for_format("ALPHA"), nullptr);
    EXPECT_EQ(app().input_dlls().translator_for_format("alpha"), nullptr);
}

TEST_F(Catalogue, LeavesOutModulesOfTheUserThatOthersMayChangeAndSaysSo)
{
    install_format("ALPHA", "alpha");
    install_format("BETA", "beta");
    auto const own = user_folder() + "/translators";
    std::filesystem::create_directories(own);
    for (auto const name : {"beta.so", "beta.json"})
        std::filesystem::rename(folder() / (std::string("installation/lib/vmr/translators/") + name),
                                own + "/" + name);
    std::filesystem::permissions(own + "/beta.so", static_cast<std::filesystem::perms>(0666));
    testing::internal::CaptureStderr();
    start();
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Tester: The translator modules in " + own + " are left out, because other users may change " +
                  own + "/beta.so. Take their right to write there away and start again.\n");
    EXPECT_NE(app().input_dlls().translator_for_format("ALPHA"), nullptr);
    EXPECT_EQ(app().input_dlls().translator_for_format("BETA"), nullptr);
}

TEST_F(Catalogue, ComesFromTheCacheAtTheNextStart)
{
    install_format("ALPHA", "alpha");
    start();
    app().make_translator_dll_cache_file();
    app().build_translator_dlls(
        app().file_locator().schema_dir(sdbHRKDirectory::translator_cache).find_file("translators.lst"),
        app().file_locator().search_path(sdbHRKDirectory::translators), utString::make_invalid());
    EXPECT_FALSE(app().translators_were_scanned());
    EXPECT_NE(app().output_dlls().translator_for_format("ALPHA"), nullptr);
}

TEST_F(Catalogue, CacheMakesTheUsersDirectoryFirst)
{
    start();
    ASSERT_FALSE(std::filesystem::exists(user_folder()));
    app().make_translator_dll_cache_file();
    EXPECT_TRUE(std::filesystem::exists(user_folder() + "/cache/translators.lst"));
}

TEST_F(Catalogue, TellsOfNoFileWhenNoneFailed)
{
    start();
    testing::internal::CaptureStderr();
    app().display_dll_load_error(sdbTranslatorLoadStatus(sdbTranslatorLoadStatusType{}));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Catalogue, TellsWhichFileFailedAndKeepsTheRest)
{
    install_format("ALPHA", "alpha");
    install("lib/vmr/translators/broken.json", "{ this is no manifest");
    install("lib/vmr/translators/broken.so", "x");
    testing::internal::CaptureStderr();
    start();
    std::string const told = testing::internal::GetCapturedStderr();
    EXPECT_NE(told.find("Error : unable to load "), std::string::npos) << told;
    EXPECT_NE(told.find("broken"), std::string::npos) << told;
    EXPECT_NE(app().input_dlls().translator_for_format("ALPHA"), nullptr);
}

TEST_F(Catalogue, ResourceFileThatIsNowhereGivesTheDefaultWhateverItsName)
{
    start();
    EXPECT_EQ(app().rsc_dir(apFileName(L"one.rsc")), utString(user_folder() + "/resources/default"));
    EXPECT_EQ(app().rsc_dir(apFileName(L"other.rsc")), utString(user_folder() + "/resources/default"));
}

TEST_F(Catalogue, ProposesTheOutputFormatThatTheStartupSettingsPrefer)
{
    for (auto const & [name, module] : {std::pair("ALPHA", "alpha"), {"BETA", "beta"}, {"GAMMA", "gamma"}})
        install_format(name, module);
    auto const proposed = [this] {
        return app().output_dlls().default_output_format(app().input_dlls().translator_for_format("ALPHA"));
    };
    for (utString const preferred : {"GAMMA", "BETA"}) {
        app().pre_splash_screen_init();
        app().startup_info().add_field_without_saving("preferred_output_format", preferred);
        ASSERT_TRUE(app().run_on_init());
        ASSERT_NE(proposed(), nullptr);
        EXPECT_EQ(proposed()->format_name().ut_string(), preferred);
    }
}

TEST_F(Catalogue, ResourceFileThatWasMadeAsDefaultIsFoundAgain)
{
    start();
    utString file = app().rsc_dir(apFileName(L"one.rsc"));
    ASSERT_EQ(create_default_resources(file), 1);
    EXPECT_EQ(app().rsc_dir(apFileName(L"one.rsc")), file);
    EXPECT_EQ(file, utString(user_folder() + "/resources/Default"));
}

TEST_F(Catalogue, ResourceFileOfTheUserComesBeforeThatOfTheInstallation)
{
    auto const installed = install("share/vmr/resources/alpha.rsc", "");
    start();
    EXPECT_EQ(app().rsc_dir(apFileName(L"alpha.rsc")), utString(installed));
    auto const users = folder().write("user/Tester/resources/alpha.rsc", "");
    EXPECT_EQ(app().rsc_dir(apFileName(L"alpha.rsc")), utString(users));
}

TEST_F(Catalogue, FactorySettingsAreThoseOfTheInstallation)
{
    install_format("ALPHA", "alpha");
    auto const installed = install("share/vmr/resources/alpha.rsc", "");
    folder().write("user/Tester/resources/alpha.rsc", "");
    start();
    auto const * const alpha = app().input_dlls().translator_for_format("ALPHA");
    ASSERT_NE(alpha, nullptr);
    EXPECT_EQ(app().installation_resource_file(*alpha), utString(installed));
}
