#include "sglConfigStore.h"

#include "app/sglToolkitMessages.h"
#include "kit/kitAppTest.h"
#include "kit/kitAsOrdinaryUser.h"

#include <random>
#include <sys/stat.h>
#include <wx/log.h>

namespace {

/// A store over a file of a test's making. Whatever the toolkit says or asserts fails the test.
struct ConfigStore : kitAppTest {
    static constexpr char const * file = "home/.config/Crosswalk.conf";

    void SetUp() override
    {
        kitAppTest::SetUp();
        app().pre_splash_screen_init();
        std::filesystem::create_directory(folder() / "home");
        setenv("HOME", (folder() / "home").c_str(), 1);
        unsetenv("XDG_CONFIG_HOME");
        before = wxLog::SetActiveTarget(&said);
    }
    void TearDown() override
    {
        wxLog::SetActiveTarget(before);
        EXPECT_EQ(said.GetBuffer(), "");
        kitAppTest::TearDown();
    }

    static std::unique_ptr<sglConfigStore> open() { return std::make_unique<sglConfigStore>("Crosswalk"); }
    std::unique_ptr<sglConfigStore> open(std::string const & content)
    {
        folder().write(file, content);
        return open();
    }
    static std::string value(sglConfigStore const & store, char const * key)
    {
        wxString text;
        return store.Read(wxString::FromUTF8(key), &text) ? text.utf8_string() : "nothing";
    }

    wxLogBuffer said; // shows what it got at its end, and here it gets nothing
    wxLog * before = nullptr;
};

} // namespace

TEST_F(ConfigStore, KeepsValuesInTheUsersFile)
{
    auto store = open();
    EXPECT_EQ(value(*store, "/a/b"), "nothing");
    EXPECT_TRUE(store->Write("/a/b", "one"));
    char const odd[] = "/Frühling [26]/c";
    EXPECT_TRUE(store->Write(wxString::FromUTF8(odd), wxString::FromUTF8(" zwei ü\n")));
    EXPECT_TRUE(store->Flush());
    store = open();
    EXPECT_EQ(value(*store, "/a/b"), "one");
    EXPECT_EQ(value(*store, odd), " zwei ü\n");
    EXPECT_TRUE(store->HasEntry("/a/b"));
    EXPECT_FALSE(store->HasEntry("/a/c"));
}

TEST_F(ConfigStore, WritesNothingThatWasNotChanged)
{
    std::string const text = "# mine\r\n[a]\r\nb=1\r\n";
    auto store = open(text);
    EXPECT_EQ(value(*store, "/a/b"), "1");
    EXPECT_TRUE(store->Flush());
    store.reset();
    EXPECT_EQ(folder().read(file), text);
}

TEST_F(ConfigStore, KeepsAtItsEndWhatWasChanged)
{
    open()->Write("/a/b", "one");
    EXPECT_EQ(folder().read(file), "[a]\nb=one\n");
}

TEST_F(ConfigStore, LeavesTheLinesThatItDoesNotChange)
{
    auto store = open("# mine\n\n[a]\nb = 1\nc = 2\n");
    store->Write("/a/b", "3");
    EXPECT_TRUE(store->Flush());
    EXPECT_EQ(folder().read(file), "# mine\n\n[a]\nb=3\nc = 2\n");
    EXPECT_FALSE(folder().exists(std::string(file) + ".damaged"));
}

TEST_F(ConfigStore, ReadsWhatCanBeReadOfADamagedFileAndKeepsItBeside)
{
    std::string const damaged = "[abc\nfoo\n=bar\nlost=1\n[x]y\nfound=2\n\\\nodd\\\n[x]\nmore=3\n";
    auto store = open(damaged);
    EXPECT_EQ(value(*store, "/x/found"), "2");
    EXPECT_EQ(value(*store, "/x/more"), "3");
    EXPECT_EQ(value(*store, "/lost"), "nothing"); // it belongs to a group whose name is not known
    EXPECT_TRUE(store->Flush());
    EXPECT_EQ(folder().read(file), damaged);

    store->Write("/x/found", "4");
    EXPECT_TRUE(store->Flush());
    EXPECT_EQ(folder().read(file), "[x]\nfound=4\nmore=3\n");
    EXPECT_EQ(folder().read(std::string(file) + ".damaged"), damaged);
}

TEST_F(ConfigStore, KeepsEveryDamagedFile)
{
    for (char const * text : {"one", "two", "three"})
        open(text)->Write("/a/b", text);
    EXPECT_EQ(folder().read(std::string(file) + ".damaged"), "one");
    EXPECT_EQ(folder().read(std::string(file) + ".damaged-2"), "two");
    EXPECT_EQ(folder().read(std::string(file) + ".damaged-3"), "three");
}

TEST_F(ConfigStore, PassesOverGroupsThatTheToolkitAssertsOn)
{
    auto const store = open("[a]\nb=1\n[A]\nc=2\n[]\nd=3\n[/]\ne=4\n[..]\nf=5\n[a/../x]\ng=6\n[a//b]\nh=7\n");
    EXPECT_EQ(value(*store, "/a/b"), "1");
    EXPECT_EQ(value(*store, "/a/c"), "2");
    EXPECT_EQ(value(*store, "/x/g"), "nothing");
}

TEST_F(ConfigStore, ReadsUnevenValuesAsTheyStand)
{
    auto const store =
        open("[a]\nb=${HOME}\nc=${broken\nd=say \"\"\"\ne=\"one\"two\nf=end\\\nb=twice\n!g=1\n");
    EXPECT_EQ(value(*store, "/a/b"), "twice");
    EXPECT_EQ(value(*store, "/a/c"), "${broken");
    EXPECT_EQ(value(*store, "/a/d"), "say \"\"\"");
    EXPECT_EQ(value(*store, "/a/e"), "onetwo");
    EXPECT_EQ(value(*store, "/a/g"), "nothing");
    EXPECT_TRUE(store->Write("/a/g", "2"));
    EXPECT_EQ(value(*store, "/a/g"), "2");
}

TEST_F(ConfigStore, TakesNulBytesAndBytesThatAreNoText)
{
    using namespace std::string_literals;
    auto const store = open("\xEF\xBB\xBF[a]\nb=1\nc=\0x\nd=\xff[\n\0\0\n[\xff]\ne=5\n[f]\ng=6\rh=7\ni=8"s);
    EXPECT_EQ(value(*store, "/a/b"), "1");
    EXPECT_EQ(value(*store, "/a/c"), "nothing");
    EXPECT_EQ(value(*store, "/a/d"), "nothing");
    EXPECT_EQ(value(*store, "/a/e"), "nothing");
    EXPECT_EQ(value(*store, "/f/g"), "nothing");
    EXPECT_EQ(value(*store, "/f/i"), "8");
}

TEST_F(ConfigStore, IsNotDrownedByAHugeFile)
{
    std::string huge(3 * 1024 * 1024, 'a');
    auto store = open(huge);
    EXPECT_TRUE(store->Write("/a/b", "1"));
    EXPECT_TRUE(store->Flush());
    EXPECT_EQ(folder().read(file), "[a]\nb=1\n");
    EXPECT_EQ(folder().read(std::string(file) + ".damaged"), huge);

    std::string deep = "[";
    for (int i = 0; i < 30'000; ++i)
        deep += "a/";
    store = open(deep + "a]\n");
    EXPECT_EQ(value(*store, "/a/b"), "nothing");
}

TEST_F(ConfigStore, LeavesAFolderInItsPlaceAlone)
{
    std::filesystem::create_directories(folder() / file);
    auto store = open();
    EXPECT_TRUE(store->Write("/a/b", "1"));
    EXPECT_FALSE(store->Flush());
    EXPECT_EQ(value(*store, "/a/b"), "1");
    store.reset();
    EXPECT_TRUE(std::filesystem::is_directory(folder() / file));
}

TEST_F(ConfigStore, DoesNotWaitForAPipeInItsPlace)
{
    std::filesystem::create_directories(folder() / "home/.config");
    ASSERT_EQ(mkfifo((folder() / file).c_str(), 0600), 0);
    auto const store = open();
    EXPECT_TRUE(store->Write("/a/b", "1"));
    EXPECT_FALSE(store->Flush());
}

TEST_F(ConfigStore, KeepsAFileThatItMayNotRead)
{
    folder().write(file, "[a]\nb=1\n");
    give_folder_to_ordinary_user(folder().path().string());
    std::filesystem::permissions(folder() / file, std::filesystem::perms::none);
    {
        kitAsOrdinaryUser const ordinary;
        auto const store = open();
        EXPECT_EQ(value(*store, "/a/b"), "nothing");
        EXPECT_TRUE(store->Write("/a/b", "2"));
        EXPECT_TRUE(store->Flush());
    }
    EXPECT_EQ(folder().read(file), "[a]\nb=2\n");
    EXPECT_EQ(folder().read(std::string(file) + ".damaged"), "[a]\nb=1\n");
}

TEST_F(ConfigStore, TellsWhenItsFileCannotBeWrittenAndLeavesIt)
{
    folder().write(file, "[a]\nb=1\n[\n");
    {
        kitAsOrdinaryUser const ordinary;
        auto const store = open();
        EXPECT_TRUE(store->Write("/a/b", "2"));
        EXPECT_FALSE(store->Flush());
    }
    EXPECT_EQ(folder().read(file), "[a]\nb=1\n[\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder() / "home/.config"), {}), 1);
}

TEST_F(ConfigStore, TakesAnythingAtAll)
{
    std::mt19937 random(20260131);
    constexpr char difficult[] = "[[]]==\n\n\n\n\\/..!# \"ab\r\0\t\xff\xc2\xa0;";
    std::string const bytes(difficult, sizeof difficult - 1);
    for (int run = 0; run < 400; ++run) {
        std::string content(random() % 200, ' ');
        for (char & byte : content)
            byte = bytes[random() % bytes.size()];
        auto store = open(content);
        EXPECT_TRUE(store->Write("/a/b", "1"));
        EXPECT_TRUE(store->Flush()) << content;
        store = open();
        EXPECT_EQ(value(*store, "/a/b"), "1") << content;
        for (char const * name : {file, "home/.config/Crosswalk.conf.damaged"})
            std::filesystem::remove(folder() / name);
    }
}

TEST(ToolkitAssertions, AreKeptFromTheUser)
{
    sgl_keep_toolkit_assertions_from_user();
    testing::internal::CaptureStderr();
    wxFAIL_MSG("a test");
    auto const said = testing::internal::GetCapturedStderr();
#ifdef NDEBUG
    EXPECT_EQ(said, "");
#else
    EXPECT_TRUE(said.starts_with("assertion of the toolkit: ")) << said;
    EXPECT_NE(said.find("a test"), std::string::npos) << said;
#endif
}
