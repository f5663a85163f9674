#include "nls/vmrnlsTranslatorWithDatabases.h"

#include <atomic>
#include <filesystem>
#include <random>
#include <sys/stat.h>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "Surroundings.h"
#include "kit/kitTempFolder.h"
#include "nls/vmrnlsConversion.h"
#include "nls/vmrnlsTranslatorDefault.h"

namespace {

class Translator : public testing::Test {
protected:
    Translator() { nlsDomainManager::language("de"); }

    std::string text(char const * key, char const * domain = "sample") const
    {
        return translator.translate(domain, key).str();
    }

    /// The text in another language, which is in force from then on.
    std::string text_in(char const * language, char const * key) const
    {
        nlsDomainManager::language(language);
        return text(key);
    }

    Surroundings surroundings;
    vmrnlsTranslatorWithDatabases translator{TEST_AUSTRIAN_FOLDER ":" TEST_LOCALE_FOLDER};
};

} // namespace

TEST(DefaultTranslator, StripsTheContextAndLeavesTheTextInEnglish)
{
    vmrnlsTranslatorDefault const translator;
    EXPECT_EQ(translator.translate("sample", "menu::Open"), utString("Open"));
    EXPECT_EQ(translator.translate(nullptr, "cl:Open"), utString("cl:Open"));
    EXPECT_EQ(translator.translate("sample", nullptr), utString(""));
}

TEST_F(Translator, FindsTheTextByItsContext)
{
    EXPECT_EQ(text("menu::Open"), "Öffnen");
    EXPECT_EQ(text("state::Open"), "Offen");
    EXPECT_EQ(text("Open"), "Auf");
}

TEST_F(Translator, FallsBackToEnglishWithoutTheContext)
{
    EXPECT_EQ(text("other::Open"), "Open");
    EXPECT_EQ(text("menu::Close"), "Close");
    EXPECT_EQ(text("menu::Open", "unknown domain"), "Open");
    EXPECT_EQ(text("menu::Open", nullptr), "Open");
}

TEST_F(Translator, NeverTranslatesWhatIsNotToBe)
{
    EXPECT_EQ(text("menu::Open", "DO_NOT_TRANSLATE"), "Open");
}

TEST_F(Translator, DoesNotShowTheHeaderOfACatalogue)
{
    EXPECT_EQ(text(""), "");
    EXPECT_EQ(text("menu::"), "");
    EXPECT_EQ(translator.translate("sample", nullptr), utString(""));
}

TEST_F(Translator, TakesReorderedConversions)
{
    EXPECT_EQ(text("cl::File %s has %d parts\n"), "%2$d Teile hat die Datei %1$s\n");
}

TEST_F(Translator, PassesOverATranslationWithOtherConversions)
{
    EXPECT_EQ(text("bad::One argument %s"), "One argument %s");
    EXPECT_EQ(text("bad::A number %d"), "A number %d");
    EXPECT_EQ(text("bad::No argument"), "No argument");
}

TEST_F(Translator, FollowsTheLanguageInForce)
{
    EXPECT_EQ(text_in("English", "menu::Open"), "Open");
    EXPECT_EQ(text_in("fr", "menu::Open"), "Open");
    EXPECT_EQ(text_in("de", "menu::Open"), "Öffnen");
}

TEST_F(Translator, UsesALanguageForItsCountries)
{
    EXPECT_EQ(text_in("de_CH", "menu::Open"), "Öffnen");
    EXPECT_EQ(text_in("de_AT", "menu::January"), "Jänner");
    EXPECT_EQ(text_in("de", "menu::January"), "January");
}

TEST_F(Translator, IsNotLedAstrayByADamagedCatalogue)
{
    kitTempFolder const folder;
    auto const whole = kit_read_file(TEST_LOCALE_FOLDER "/de/LC_MESSAGES/sample.mo");
    ASSERT_GT(whole.size(), 100u);
    folder.write("de/LC_MESSAGES/garbage.mo", "this is no catalogue at all");
    folder.write("de/LC_MESSAGES/empty.mo", "");
    folder.write("de/LC_MESSAGES/half.mo", whole.substr(0, whole.size() / 2));
    folder.write("de/LC_MESSAGES/stub.mo", whole.substr(0, 8));
    vmrnlsTranslatorWithDatabases const damaged(folder.path().string());
    for (char const * domain : {"garbage", "empty", "half", "stub"})
        EXPECT_EQ(damaged.translate(domain, "other::Close"), utString("Close")) << domain;
}

TEST_F(Translator, OutlivesWhateverStandsInACatalogue)
{
    char const key[] = "cl::File %s has %d parts\n";
    auto const whole = kit_read_file(TEST_LOCALE_FOLDER "/de/LC_MESSAGES/sample.mo");
    std::mt19937 random(20260131);
    auto const below = [&random](std::size_t limit) { return random() % limit; };
    for (int run = 0; run < 400; ++run) {
        kitTempFolder const folder;
        auto damaged = whole;
        for (std::size_t changes = 1 + below(8); changes > 0; --changes)
            damaged[below(run % 2 ? damaged.size() : 40)] = static_cast<char>(below(256));
        if (run % 5 == 0)
            damaged.resize(below(damaged.size()));
        folder.write("de/LC_MESSAGES/sample.mo", damaged);
        vmrnlsTranslatorWithDatabases const of_damaged(folder.path().string());
        auto const shown = of_damaged.translate("sample", key);
        EXPECT_TRUE(vmrnls_same_arguments("File %s has %d parts\n", shown.view())) << run;
        EXPECT_FALSE(of_damaged.translate("sample", "menu::Open").empty()) << run;
    }
}

TEST_F(Translator, ShowsEnglishWhereACatalogueHoldsAnything)
{
    std::mt19937 random(20260201);
    std::string noise(4096, '\0');
    for (char & byte : noise)
        byte = static_cast<char>(random());
    kitTempFolder const folder;
    folder.write("de/LC_MESSAGES/sample.mo", noise);
    EXPECT_EQ(vmrnlsTranslatorWithDatabases(folder.path().string()).translate("sample", "menu::Open"),
              utString("Open"));
    folder.write("de/LC_MESSAGES/sample.mo", "\xde\x12\x04\x95" + noise); // begins as a catalogue does
    EXPECT_EQ(vmrnlsTranslatorWithDatabases(folder.path().string()).translate("sample", "menu::Open"),
              utString("Open"));
}

TEST_F(Translator, PassesOverWhatIsNoFile)
{
    kitTempFolder const folder;
    std::filesystem::create_directories(folder / "de/LC_MESSAGES/sample.mo");
    ASSERT_EQ(mkfifo((folder / "de/LC_MESSAGES/pipe.mo").c_str(), 0600), 0);
    std::filesystem::create_symlink("loop.mo", folder / "de/LC_MESSAGES/loop.mo");
    vmrnlsTranslatorWithDatabases const odd(utString(folder.path().string()) + ":" + TEST_LOCALE_FOLDER);
    EXPECT_EQ(odd.translate("sample", "menu::Open"), utString("Öffnen"));
    for (char const * domain : {"pipe", "loop"})
        EXPECT_EQ(odd.translate(domain, "menu::Open"), utString("Open")) << domain;
}

TEST_F(Translator, PassesOverACatalogueOfABoundlessSize)
{
    kitTempFolder const folder;
    auto const file = folder.write("de/LC_MESSAGES/sample.mo",
                                   kit_read_file(TEST_LOCALE_FOLDER "/de/LC_MESSAGES/sample.mo"));
    vmrnlsTranslatorWithDatabases const before(folder.path().string());
    EXPECT_EQ(before.translate("sample", "menu::Open"), utString("Öffnen"));
    std::filesystem::resize_file(file, 17 * 1024 * 1024);
    vmrnlsTranslatorWithDatabases const after(folder.path().string());
    EXPECT_EQ(after.translate("sample", "menu::Open"), utString("Open"));
}

TEST_F(Translator, TakesFoldersWhoseNamesHoldTheSeparatorOfAList)
{
    kitTempFolder const folder;
    folder.write("a:b/de/LC_MESSAGES/sample.mo",
                 kit_read_file(TEST_LOCALE_FOLDER "/de/LC_MESSAGES/sample.mo"));
    vmrnlsTranslatorWithDatabases const of_folders(std::vector<std::string>{folder / "none", folder / "a:b"});
    EXPECT_EQ(of_folders.translate("sample", "menu::Open"), utString("Öffnen"));
}

TEST_F(Translator, WorksWithoutAnyFolder)
{
    vmrnlsTranslatorWithDatabases const homeless("");
    EXPECT_EQ(homeless.translate("sample", "menu::Open"), utString("Open"));
}

TEST_F(Translator, ServesSeveralThreadsAtOnce)
{
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([this, &wrong] {
            for (int i = 0; i < 500; ++i)
                wrong += text("menu::Open") != "Öffnen" || text("state::Open") != "Offen";
        });
    }
    for (auto & thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}
