#include "sdb/sdbTranslatorCache.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/inotify.h>
#include <unistd.h>

#include "TranslatorFolder.h"

#include "sdb/sdbTranslatorCacheWriter.h"

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

namespace {

/// Two modules, scanned once and written to the cache.
class TranslatorCache : public testing::Test {
protected:
    TranslatorCache()
    {
        auto step = format_value("STEP", {"stp", "step"});
        step["signatures"] = {{{"kind", "text"}, {"text", "ISO-10303-21;"}, {"within", 4096}},
                              {{"kind", "counted"}, {"header", 84}, {"count_offset", 80}, {"record", 50}}};
        step["default_output"] = "IGES";
        step["resources"] = {
            {{"name", "testCacheReal"}, {"type", "real"}, {"minimum", 0}, {"maximum", 1}, {"default", 0.1}},
            {{"name", "testCacheChoice"}, {"type", "choice"}, {"values", {"a", "b"}}, {"default", "b"}}};
        folder.add("step", manifest_value({step}));
        auto iges = format_value("IGES", {"igs"});
        iges["sides"] = {"input"};
        iges["category"] = "Draw\xc3\xbcng";
        auto viewer = format_value("viewer", {});
        viewer["viewer"] = true;
        folder.add("iges", manifest_value({iges, viewer}));
        EXPECT_TRUE(folder.make().ok());
        EXPECT_TRUE(folder.scanned());
        EXPECT_TRUE(folder.write_cache().ok());
    }

    bool makes_from_cache()
    {
        folder.make();
        return !folder.scanned();
    }
    std::string cache() const { return folder.temp().read("translators.lst"); }
    void set_cache(std::string const & content) const { folder.temp().write("translators.lst", content); }

    TranslatorFolder folder;
};

/// Everything that a catalogue says, as text.
std::string described(sdbTranslatorDlls const & dlls)
{
    std::string text;
    for (auto const & translator : dlls.translators()) {
        auto const & format = translator->declaration();
        text += format.name + "|" + translator->file_ut().str() + "|" + format.category + "|" +
                translator->filter().filter_string().str() + "|" +
                std::to_string(translator->filter().category_order()) + "|" + format.default_output + "|" +
                format.resource_file + "|" + std::to_string(format.viewer) + "|" +
                std::to_string(format.signatures.size()) + "|" + (translator->loaded() ? "loaded" : "listed");
        for (auto const & extension : format.extensions)
            text += " " + extension;
        for (auto const & resource : format.resources)
            text += " " + vmr_write_resource_declaration(resource).dump();
        text += "\n";
    }
    return text;
}

} // namespace

TEST_F(TranslatorCache, GivesTheSameCataloguesAsTheScan)
{
    auto const input = described(folder.input());
    auto const output = described(folder.output());
    EXPECT_NE(input.find("testCacheReal"), std::string::npos);
    ASSERT_TRUE(makes_from_cache());
    EXPECT_EQ(described(folder.input()), input);
    EXPECT_EQ(described(folder.output()), output);
}

TEST_F(TranslatorCache, GivesEntriesThatRecogniseFiles)
{
    ASSERT_TRUE(makes_from_cache());
    auto const * const step =
        folder.input().translator_for_file(utString(folder.temp().write("a.txt", "ISO-10303-21;")));
    ASSERT_NE(step, nullptr);
    EXPECT_EQ(step->format_name().ut_string(), utString("STEP"));
}

TEST_F(TranslatorCache, GivesEntriesThatAreNotLoaded)
{
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    folder.input().translator_for_format("STEP")->load(status);
    ASSERT_TRUE(status.ok());
    EXPECT_TRUE(folder.write_cache().ok());
    ASSERT_TRUE(makes_from_cache());
    EXPECT_FALSE(folder.input().translator_for_format("STEP")->loaded());
}

TEST_F(TranslatorCache, SparesOpeningManifestsAndModules)
{
    int const watcher = ::inotify_init1(IN_NONBLOCK);
    ASSERT_GE(watcher, 0);
    ASSERT_GE(::inotify_add_watch(watcher, folder.directory().c_str(), IN_OPEN), 0);
    alignas(inotify_event) char events[4096];
    ASSERT_TRUE(makes_from_cache());
    EXPECT_LT(::read(watcher, events, sizeof events), 0);
    fs::remove(folder.cache_file());
    ASSERT_FALSE(makes_from_cache());
    EXPECT_GT(::read(watcher, events, sizeof events), 0);
    ::close(watcher);
}

TEST_F(TranslatorCache, CanBeWrittenAgainFromItself)
{
    auto const before = cache();
    ASSERT_TRUE(makes_from_cache());
    EXPECT_TRUE(folder.write_cache().ok());
    EXPECT_EQ(cache(), before);
    EXPECT_TRUE(makes_from_cache());
}

TEST_F(TranslatorCache, HonoursThePreferredFormatOfThisStart)
{
    folder.make("viewer");
    ASSERT_FALSE(folder.scanned());
    EXPECT_EQ(folder.output()
                  .default_output_format(folder.input().translator_for_format("STEP"))
                  ->format_name()
                  .ut_string(),
              utString("viewer"));
}

TEST_F(TranslatorCache, IsOutOfDateWhenAModuleIsAdded)
{
    folder.add("off", manifest_value({format_value("OFF", {"off"})}));
    EXPECT_FALSE(makes_from_cache());
    EXPECT_NE(folder.input().translator_for_format("OFF"), nullptr);
}

TEST_F(TranslatorCache, IsOutOfDateWhenAModuleIsRemoved)
{
    fs::remove(folder.path("iges.so"));
    fs::remove(folder.path("iges.json"));
    EXPECT_FALSE(makes_from_cache());
    EXPECT_EQ(names_of(folder.input().formats()), Names{"STEP"});
}

TEST_F(TranslatorCache, IsOutOfDateWhenAManifestIsRewrittenInPlace)
{
    folder.add_manifest("iges", manifest_value({format_value("OFF", {"off"})}).dump());
    EXPECT_FALSE(makes_from_cache());
    EXPECT_EQ(names_of(folder.input().formats()), (Names{"OFF", "STEP"}));
}

TEST_F(TranslatorCache, IsOutOfDateWhenAModuleChangesButKeepsItsTime)
{
    auto const time = fs::last_write_time(folder.path("step.so"));
    std::ofstream(folder.path("step.so"), std::ios::app) << "x";
    fs::last_write_time(folder.path("step.so"), time);
    EXPECT_FALSE(makes_from_cache());
}

TEST_F(TranslatorCache, IsOutOfDateWhenAModuleIsTouched)
{
    fs::last_write_time(folder.path("step.so"),
                        fs::last_write_time(folder.path("step.so")) + std::chrono::hours(1));
    EXPECT_FALSE(makes_from_cache());
}

TEST_F(TranslatorCache, DoesNotServeOtherDirectories)
{
    TranslatorFolder const other;
    folder.make({folder.directory(), other.directory()});
    EXPECT_TRUE(folder.scanned());
    folder.make(Names{other.directory()});
    EXPECT_TRUE(folder.scanned());
    EXPECT_TRUE(folder.input().translators().empty());
}

TEST_F(TranslatorCache, NoticesADirectoryThatAppears)
{
    auto const own = folder.temp() / "own";
    folder.make({folder.directory(), own});
    EXPECT_TRUE(folder.write_cache().ok());
    folder.make({folder.directory(), own});
    EXPECT_FALSE(folder.scanned());
    fs::create_directory(own);
    folder.make({folder.directory(), own});
    EXPECT_TRUE(folder.scanned());
}

TEST_F(TranslatorCache, NamesNoModulesThatLieElsewhere)
{
    auto const empty = folder.temp() / "own";
    fs::create_directory(empty);
    auto forged = *folder.input().contents();
    forged.directories = {{empty, sdbFileStamp::of(empty)}};
    EXPECT_EQ(sdbTranslatorCache::write(folder.cache_file(), forged), "");
    EXPECT_EQ(sdbTranslatorCache::read(folder.cache_file(), {empty}), nullptr);
}

TEST_F(TranslatorCache, LeadsToAScanWhenItIsCutOff)
{
    auto const whole = cache();
    for (std::size_t length = 0; length < whole.size(); length += 23) {
        set_cache(whole.substr(0, length));
        EXPECT_FALSE(makes_from_cache()) << length;
        EXPECT_EQ(folder.input().translators().size(), 3u);
    }
}

TEST_F(TranslatorCache, LeadsToAScanWhenAnyByteIsDamaged)
{
    auto const whole = cache();
    for (std::size_t at = 0; at < whole.size(); at += 17) {
        auto damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 4);
        set_cache(damaged);
        EXPECT_FALSE(makes_from_cache()) << at;
    }
    set_cache(whole + " ");
    EXPECT_FALSE(makes_from_cache());
}

TEST_F(TranslatorCache, LeadsToAScanWhenItIsSomethingElse)
{
    for (std::string const content :
         {"", "\n", "translators.lst 1 00000000\n", "{}", "translators.lst\n{}"}) {
        set_cache(content);
        EXPECT_FALSE(makes_from_cache()) << content;
    }
    fs::remove(folder.cache_file());
    fs::create_directory(folder.cache_file());
    EXPECT_FALSE(makes_from_cache());
}

TEST_F(TranslatorCache, OfAnotherVersionIsNotUsed)
{
    auto content = cache();
    ASSERT_TRUE(content.starts_with("translators.lst 1 "));
    content[16] = '2';
    set_cache(content);
    EXPECT_FALSE(makes_from_cache());
}

TEST_F(TranslatorCache, RepeatsTheFailuresOfTheScan)
{
    folder.add_module("broken");
    folder.add_manifest("broken", "[]");
    auto const scanned = folder.make();
    ASSERT_TRUE(folder.scanned());
    EXPECT_TRUE(folder.write_cache().ok());
    auto const cached = folder.make();
    ASSERT_FALSE(folder.scanned());
    EXPECT_EQ(reasons(cached), reasons(scanned));
    EXPECT_FALSE(reasons(cached).empty());
}

TEST_F(TranslatorCache, NoticesThatABrokenManifestIsMended)
{
    folder.add_module("off");
    folder.add_manifest("off", "[]");
    folder.make();
    EXPECT_TRUE(folder.write_cache().ok());
    folder.add_manifest("off", manifest_value({format_value("OFF", {"off"})}).dump());
    EXPECT_TRUE(folder.make().ok());
    EXPECT_TRUE(folder.scanned());
    EXPECT_NE(folder.input().translator_for_format("OFF"), nullptr);
}

TEST_F(TranslatorCache, NoticesThatPermissionsAreMended)
{
    fs::permissions(folder.path("step.json"), fs::perms::owner_all);
    EXPECT_FALSE(makes_from_cache());
}

TEST_F(TranslatorCache, LeavesNoOtherFileBehind)
{
    EXPECT_TRUE(folder.write_cache().ok());
    EXPECT_EQ(folder.temp().count(), 2);
}

TEST_F(TranslatorCache, SaysThatItCannotBeWritten)
{
    fs::remove(folder.cache_file());
    fs::create_directory(folder.cache_file());
    auto const status = folder.write_cache();
    EXPECT_FALSE(status.ok());
    EXPECT_FALSE(status.files_failed_to_load());
    EXPECT_TRUE(status.translator_files_failed_to_load().undefined());
    EXPECT_TRUE(status.other_failure().str().starts_with(folder.cache_file() + " cannot be written: "));
    EXPECT_EQ(folder.temp().count(), 2);
}

TEST(TranslatorCacheWriter, RefusesCataloguesOfDifferentScans)
{
    TranslatorFolder a;
    TranslatorFolder b;
    a.make();
    b.make();
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    int error = 0;
    sdbTranslatorCacheWriter(utString(a.cache_file()), a.input(), b.output(), nullptr, error, status);
    EXPECT_NE(error, 0);
    EXPECT_FALSE(status.ok());
    EXPECT_FALSE(a.temp().exists("translators.lst"));
}

TEST(TranslatorCacheOfAnOddPlace, IsNotUsedWhenThePathIsNoText)
{
    TranslatorFolder folder;
    auto const odd = folder.temp() / "caf\xe9";
    fs::create_directory(odd);
    folder.make(Names{odd});
    EXPECT_TRUE(folder.write_cache().ok());
    EXPECT_TRUE(folder.make(Names{odd}).ok());
    EXPECT_TRUE(folder.scanned());
}
