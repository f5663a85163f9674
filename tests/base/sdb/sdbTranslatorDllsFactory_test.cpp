#include "sdb/sdbTranslatorDllsFactory.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "TranslatorFolder.h"
#include "kit/kitOrdinaryUser.h"

using Names = std::vector<std::string>;

namespace {

std::string failed_files(sdbTranslatorLoadStatus const & status)
{
    std::string text;
    auto files = status.translator_files_failed_to_load();
    while (++files)
        text += files().utf8() + "\n";
    return text;
}

} // namespace

TEST(TranslatorDllsFactory, MakesEmptyCataloguesFromAnEmptyDirectory)
{
    TranslatorFolder folder;
    EXPECT_TRUE(folder.make().ok());
    EXPECT_TRUE(folder.input().translators().empty());
    EXPECT_TRUE(folder.output().translators().empty());
    EXPECT_TRUE(folder.scanned());
}

TEST(TranslatorDllsFactory, DoesWithoutADirectory)
{
    TranslatorFolder folder;
    EXPECT_TRUE(folder.make(Names{"/no/such/directory"}).ok());
    EXPECT_TRUE(folder.make(Names{}).ok());
    EXPECT_TRUE(folder.input().translators().empty());
}

TEST(TranslatorDllsFactory, ReportsABrokenManifestAndKeepsTheRest)
{
    TranslatorFolder folder;
    folder.add("step", manifest_value({format_value("STEP", {"stp"})}));
    folder.add_module("broken");
    folder.add_manifest("broken", "{\"interface\": 1, \"formats\": [");
    auto const status = folder.make();
    EXPECT_TRUE(status.files_failed_to_load());
    EXPECT_EQ(failed_files(status), folder.path("broken.json") + "\n");
    EXPECT_TRUE(reasons(status).starts_with(folder.path("broken.json") + ": the manifest is not JSON: "))
        << reasons(status);
    EXPECT_EQ(names_of(folder.input().formats()), Names{"STEP"});
}

TEST(TranslatorDllsFactory, NamesTheFieldThatIsWrong)
{
    TranslatorFolder folder;
    auto format = format_value("STEP", {"stp"});
    format.erase("extensions");
    folder.add("step", manifest_value({format}));
    EXPECT_EQ(reasons(folder.make()), folder.path("step.json") + ": formats[0].extensions is missing\n");
}

TEST(TranslatorDllsFactory, LeavesOutAModuleOfAnotherInterfaceVersion)
{
    TranslatorFolder folder;
    auto manifest = manifest_value({format_value("STEP", {"stp"})});
    manifest["interface"] = 2;
    folder.add("step", manifest);
    auto const status = folder.make();
    EXPECT_EQ(reasons(status),
              folder.path("step.json") +
                  ": the module has version 2 of the module interface, and this program needs version 1\n");
    EXPECT_EQ(folder.input().translator_for_format("STEP"), nullptr);
}

TEST(TranslatorDllsFactory, LeavesOutAManifestWithoutModule)
{
    TranslatorFolder folder;
    folder.add_manifest("step", manifest_value({format_value("STEP", {"stp"})}).dump());
    auto const status = folder.make();
    EXPECT_EQ(failed_files(status), folder.path("step.so") + "\n");
    EXPECT_TRUE(folder.input().translators().empty());
}

TEST(TranslatorDllsFactory, PassesOverModulesWithoutManifest)
{
    TranslatorFolder folder;
    folder.add_module("support");
    EXPECT_TRUE(folder.make().ok());
}

TEST(TranslatorDllsFactory, KeepsTheFirstOfTwoModulesWithOneFormat)
{
    TranslatorFolder folder;
    folder.add("a", manifest_value({format_value("STEP", {"stp"})}));
    folder.add("b", manifest_value({format_value("IGES", {"igs"}), format_value("STEP", {"step"})}));
    auto const status = folder.make();
    EXPECT_EQ(reasons(status), folder.path("b.json") + ": the format \"STEP\" is declared by " +
                                   folder.path("a.json") + " already\n");
    EXPECT_EQ(names_of(folder.input().formats()), Names{"STEP"});
    EXPECT_EQ(folder.input().translator_for_format("STEP")->file_ut().str(), folder.path("a.so"));
}

TEST(TranslatorDllsFactory, LetsTheFirstDirectoryWin)
{
    TranslatorFolder folder;
    TranslatorFolder const own;
    folder.add("z", manifest_value({format_value("STEP", {"stp"})}));
    own.add("a", manifest_value({format_value("STEP", {"mine"})}));
    own.add("b", manifest_value({format_value("OFF", {"off"})}));
    auto const status = folder.make({folder.directory(), own.directory()});
    EXPECT_EQ(failed_files(status), own.path("a.json") + "\n");
    EXPECT_EQ(names_of(folder.input().formats()), (Names{"OFF", "STEP"}));
    EXPECT_EQ(folder.input().translator_for_format("STEP")->file_ut().str(), folder.path("z.so"));
}

TEST(TranslatorDllsFactory, ReportsWhatCannotBeRead)
{
    TranslatorFolder folder;
    folder.add("step", manifest_value({format_value("STEP", {"stp"})}));
    std::filesystem::create_directory(folder.path("folder.json"));
    std::filesystem::permissions(folder.temp().path(), std::filesystem::perms::all);
    std::filesystem::permissions(folder.path("step.json"), std::filesystem::perms::none);
    EXPECT_TRUE(as_ordinary_user([&] {
        auto const status = folder.make();
        return failed_files(status) == folder.path("step.json") + "\n" &&
               reasons(status).starts_with(folder.path("step.json") + ": the manifest cannot be read: ");
    }));
    std::filesystem::permissions(folder.path("step.json"), std::filesystem::perms::all);
    std::filesystem::permissions(folder.directory(), std::filesystem::perms::none);
    EXPECT_TRUE(as_ordinary_user([&] { return failed_files(folder.make()) == folder.directory() + "\n"; }));
    std::filesystem::permissions(folder.directory(), std::filesystem::perms::owner_all);
}

TEST(TranslatorDllsFactory, KeepsAPointerToAnEntryValidAsLongAsTheCatalogueLives)
{
    TranslatorFolder folder;
    folder.add("step", manifest_value({format_value("STEP", {"stp"})}));
    folder.make();
    auto const * const entry = folder.input().translator_for_format("STEP");
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    entry->load(status);
    EXPECT_EQ(folder.input().translator_for_format("STEP"), entry);
    EXPECT_EQ(folder.input().translator_for_file("x.stp"), entry);
}
