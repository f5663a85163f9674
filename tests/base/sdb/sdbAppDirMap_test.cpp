#include "sdb/sdbAppDirMap.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

#include "ap/apPosixOperations.h"
#include "vmr/vmrabsAppInfo.h"

namespace fs = std::filesystem;

namespace {

/// A made-up installation with a home directory beside it.
class AppDirMap : public testing::Test {
protected:
    AppDirMap()
    {
        fs::create_directories(temp / "prefix/bin");
        fs::create_directories(temp / "home");
    }

    int initialise() { return initialise(temp / "home/.config/Quorvane"); }
    int initialise(std::string const & user_base)
    {
        return map.initialise("", utString(temp / "prefix/bin"), L"Crosswalk", nullptr,
                              apPathName::from_utf8(user_base), L"/tmp");
    }
    std::string user(std::string const & name) const
    {
        return temp / "home/.config/Quorvane/Crosswalk/" + name;
    }
    std::string first(sdbHRKDirectory kind) const
    {
        bool found = false;
        auto const path = map.search_path(kind).directory_path(found);
        EXPECT_TRUE(found);
        return path.utf8();
    }

    kitTempFolder temp;
    apPosixProcessEnvironmentOperations environment;
    sdbAppDirMap map{&environment};
};

} // namespace

TEST_F(AppDirMap, HasTheNumbersOfTheInterface)
{
    EXPECT_EQ(static_cast<int>(sdbHRKDirectory::translators), 1);
    EXPECT_EQ(static_cast<int>(sdbHRKDirectory::services), 2);
    EXPECT_EQ(static_cast<int>(sdbHRKDirectory::message_catalogues), 3);
    EXPECT_EQ(static_cast<int>(sdbHRKDirectory::help), 5);
    EXPECT_EQ(static_cast<int>(sdbHRKDirectory::product), 7);
    EXPECT_EQ(static_cast<int>(sdbHRKDirectory::resources), 8);
    EXPECT_EQ(static_cast<int>(sdbHRKDirectory::translator_cache), 10);
    EXPECT_EQ(static_cast<int>(sdbHRKDirectory::xrc), 11);
    EXPECT_EQ(static_cast<int>(sdbHRKDirectory::toolkit), 13);
}

TEST_F(AppDirMap, FindsEveryKindBelowTheParentOfTheProgramsDirectory)
{
    ASSERT_EQ(initialise(), 0);
    EXPECT_EQ(map.prefix().utf8(), temp / "prefix");
    auto const installed = [&](sdbHRKDirectory kind) {
        return map.schema_dir(kind).installation_path().str();
    };
    EXPECT_EQ(installed(sdbHRKDirectory::translators), temp / "prefix/lib/vmr/translators");
    EXPECT_EQ(installed(sdbHRKDirectory::services), temp / "prefix/lib/vmr/services");
    EXPECT_EQ(installed(sdbHRKDirectory::message_catalogues), temp / "prefix/share/vmr/locale");
    EXPECT_EQ(installed(sdbHRKDirectory::help), temp / "prefix/share/vmr/help");
    EXPECT_EQ(installed(sdbHRKDirectory::product), temp / "prefix/share/vmr");
    EXPECT_EQ(installed(sdbHRKDirectory::resources), temp / "prefix/share/vmr/resources");
    EXPECT_EQ(installed(sdbHRKDirectory::translator_cache), temp / "prefix/share/vmr/cache");
    EXPECT_EQ(installed(sdbHRKDirectory::xrc), temp / "prefix/share/vmr/xrc");
    EXPECT_EQ(installed(sdbHRKDirectory::toolkit), temp / "prefix/share/vmr");
}

TEST_F(AppDirMap, GivesTheUserDirectoriesForWhatIsSaved)
{
    ASSERT_EQ(initialise(), 0);
    EXPECT_EQ(map.schema_dir(sdbHRKDirectory::resources).user_dir().str(), user("resources"));
    EXPECT_EQ(map.schema_dir(sdbHRKDirectory::translator_cache).user_dir().str(), user("cache"));
    EXPECT_EQ(map.schema_dir(sdbHRKDirectory::translators).user_dir().str(), user("translators"));
    EXPECT_TRUE(map.schema_dir(sdbHRKDirectory::xrc).user_dir().empty());
}

TEST_F(AppDirMap, NamesTheUsersDirectoryOfTheProduct)
{
    EXPECT_TRUE(map.user().empty());
    ASSERT_EQ(initialise(), 0);
    EXPECT_EQ(map.user().utf8(), temp / "home/.config/Quorvane/Crosswalk");
    EXPECT_EQ(initialise(""), 1);
    EXPECT_TRUE(map.user().empty());
}

TEST_F(AppDirMap, KeepsTheStartupSettingsWithTheUser)
{
    ASSERT_EQ(initialise(), 0);
    EXPECT_EQ(first(sdbHRKDirectory::resources), user("resources"));
    EXPECT_EQ(map.search_path(sdbHRKDirectory::resources).ut_path_string(nullptr).str(),
              user("resources") + vmrabsAppInfo::path_separator + (temp / "prefix/share/vmr/resources"));
}

TEST_F(AppDirMap, SearchesTheUsersTranslatorsBehindTheInstallations)
{
    ASSERT_EQ(initialise(), 0);
    EXPECT_EQ(map.search_path(sdbHRKDirectory::translators).ut_path_string(nullptr).str(),
              (temp / "prefix/lib/vmr/translators") + vmrabsAppInfo::path_separator + user("translators"));
}

TEST_F(AppDirMap, LeavesOutTheUsersTranslatorsWhereOthersMayChangeThem)
{
    fs::create_directories(user("translators"));
    fs::permissions(temp / "home/.config", static_cast<fs::perms>(0757));
    ASSERT_EQ(initialise(), 0);
    EXPECT_EQ(map.changeable_translators(), "") << "there are none";
    EXPECT_EQ(map.search_path(sdbHRKDirectory::translators).directories().size(), 1u);
    temp.write("home/.config/Quorvane/Crosswalk/translators/a.json", "{}");
    ASSERT_EQ(initialise(), 0);
    EXPECT_EQ(map.changeable_translators(), temp / "home/.config");
    EXPECT_EQ(map.search_path(sdbHRKDirectory::translators).ut_path_string(nullptr).str(),
              temp / "prefix/lib/vmr/translators");
    EXPECT_EQ(map.schema_dir(sdbHRKDirectory::translators).user_dir().str(), user("translators"));
    fs::permissions(temp / "home/.config", fs::perms::owner_all);
    ASSERT_EQ(initialise(), 0);
    EXPECT_EQ(map.search_path(sdbHRKDirectory::translators).directories().size(), 2u);
}

TEST_F(AppDirMap, LoadsServicesFromTheInstallationOnly)
{
    ASSERT_EQ(initialise(), 0);
    EXPECT_EQ(map.search_path(sdbHRKDirectory::services).directories().size(), 1u);
    EXPECT_EQ(first(sdbHRKDirectory::services), temp / "prefix/lib/vmr/services");
}

TEST_F(AppDirMap, LeavesNothingOnTheDisk)
{
    ASSERT_EQ(initialise(), 0);
    EXPECT_TRUE(fs::is_empty(temp / "home"));
    EXPECT_EQ(std::distance(fs::recursive_directory_iterator(temp / "prefix"), {}), 1);
}

TEST_F(AppDirMap, HasNothingBeforeItIsInitialisedNorForAnUnknownKind)
{
    bool found = true;
    EXPECT_TRUE(map.search_path(sdbHRKDirectory::resources).directory_path(found).empty());
    EXPECT_FALSE(found);
    ASSERT_EQ(initialise(), 0);
    map.search_path(static_cast<sdbHRKDirectory>(4)).directory_path(found);
    EXPECT_FALSE(found);
    EXPECT_TRUE(map.schema_dir(static_cast<sdbHRKDirectory>(4)).find_file("product").invalid());
}

TEST_F(AppDirMap, ReportsThatTheUsersFilesHaveNoPlaceAndGoesOn)
{
    temp.write("home/.config", "a file");
    EXPECT_EQ(initialise(), 1);
    EXPECT_EQ(first(sdbHRKDirectory::resources), user("resources"));
    EXPECT_EQ(map.schema_dir(sdbHRKDirectory::resources).create_user_dir(), 0);
    EXPECT_EQ(first(sdbHRKDirectory::xrc), temp / "prefix/share/vmr/xrc");
}

TEST_F(AppDirMap, ReportsAHomeThatTheUserMayNotWrite)
{
    fs::permissions(temp.path().string(),
                    fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
    EXPECT_TRUE(as_ordinary_user([&] { return geteuid() != ordinary_user || initialise() == 1; }));
}

TEST_F(AppDirMap, ReportsAUserDirectoryThatMayNotBeWritten)
{
    fs::create_directories(user("resources"));
    fs::create_directories(user("cache"));
    for (auto const * const name : {"", "resources", "cache"})
        give_to_ordinary_user(user(name));
    fs::permissions(temp.path().string(), fs::perms::all);
    auto const result = [&] {
        return map.initialise("", utString(temp / "prefix/bin"), L"Crosswalk", nullptr,
                              apPathName::from_utf8(temp / "home/.config/Quorvane"), {});
    };
    EXPECT_TRUE(as_ordinary_user([&] { return result() == 0; }));
    fs::permissions(user("cache"), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_TRUE(as_ordinary_user([&] { return result() == 1; }));
    fs::permissions(user("cache"), fs::perms::owner_all);
}

TEST_F(AppDirMap, ReadsSettingsThatItMayNotWrite)
{
    fs::create_directories(user("resources"));
    temp.write("home/.config/Quorvane/Crosswalk/resources/step.rsc", "");
    temp.write("home/.config/Quorvane/Crosswalk/cache", "in the way");
    EXPECT_EQ(initialise(), 1);
    EXPECT_EQ(map.schema_dir(sdbHRKDirectory::resources).find_file("step.rsc").str(),
              user("resources/step.rsc"));
}

TEST_F(AppDirMap, CountsAHomeThatIsNotNamedAsNoPlace)
{
    EXPECT_EQ(initialise(""), 1);
    EXPECT_EQ(first(sdbHRKDirectory::resources), temp / "prefix/share/vmr/resources");
    EXPECT_TRUE(map.schema_dir(sdbHRKDirectory::resources).user_dir().empty());
}

TEST_F(AppDirMap, CannotDoWithoutProgramOrProduct)
{
    auto const base = apPathName::from_utf8(temp / "home");
    EXPECT_EQ(map.initialise("", "", L"Crosswalk", nullptr, base, {}), 2);
    EXPECT_EQ(map.initialise("", "/usr/bin", {}, nullptr, base, {}), 2);
}

TEST_F(AppDirMap, CompletesARelativeDirectoryOfTheProgram)
{
    auto const before = fs::current_path();
    fs::current_path(temp / "prefix");
    EXPECT_EQ(map.initialise("", "bin/", L"Crosswalk", nullptr, apPathName::from_utf8(temp / "home"), {}), 0);
    fs::current_path(before);
    EXPECT_EQ(fs::canonical(map.prefix().utf8()), fs::canonical(temp / "prefix"));
}

TEST_F(AppDirMap, FindsTheFolderOfTheToolkitsCatalogues)
{
    ASSERT_EQ(initialise(), 0);
    EXPECT_TRUE(map.schema_dir(sdbHRKDirectory::toolkit).find_dir("lib").invalid());
    fs::create_directories(temp / "prefix/share/vmr/lib");
    EXPECT_EQ(map.schema_dir(sdbHRKDirectory::toolkit).find_dir("lib").str(), temp / "prefix/share/vmr/lib");
}

TEST_F(AppDirMap, RemembersTheDirectoryForTemporaryFiles)
{
    ASSERT_EQ(initialise(), 0);
    EXPECT_EQ(map.temp_dir().utf8(), "/tmp");
}
