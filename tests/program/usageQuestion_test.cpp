#include "kit/kitProgram.h"
#include "windows/kit/kitDisplay.h"

#include "sdu/sduStartupInfo.h"

#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <thread>

namespace {

/// The program with its window, for a user with a home of their own, until something has happened. The cache
/// of the catalogue is written as soon as it is idle.
class ProgramInAWindow : public testing::Test {
protected:
    void SetUp() override
    {
        kit_have_display();
        std::filesystem::create_directories(folder / "home");
    }

    std::string own(std::string const & name) const
    {
        return folder / ("home/.config/Quorvane/Crosswalk/" + name);
    }
    bool there(std::string const & name) const { return std::filesystem::exists(own(name)); }

    void has_translated_before() const
    {
        std::filesystem::create_directories(own("resources"));
        sduStartupInfo settings;
        settings.load(own("resources/startup.hrk").c_str());
        settings.add_field("ask_about_usage_data", "yes");
        ASSERT_FALSE(settings.using_defaults());
    }

    /// Whether `done` came true while the program was running.
    bool run_until(std::vector<std::string> const & words, std::function<bool()> const & done) const
    {
        bool came = false;
        kitProgram program;
        program.arguments = {VMR_PROGRAM};
        program.arguments.insert(program.arguments.end(), words.begin(), words.end());
        program.folder = folder.path().string();
        program.environment = {{"HOME", folder / "home"}, {"PATH", "/usr/bin:/bin"}};
        for (auto const * const name : {"DISPLAY", "GDK_BACKEND", "NO_AT_BRIDGE", "GSETTINGS_BACKEND"})
            program.environment[name] = std::getenv(name);
        program.meanwhile = [&](pid_t process) {
            auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
            while (!(came = done()) && std::chrono::steady_clock::now() < deadline)
                std::this_thread::yield();
            kill(process, SIGTERM);
        };
        program.run();
        return came;
    }

    kitTempFolder folder;
};

} // namespace

TEST_F(ProgramInAWindow, KeepsItsCatalogueWhenItIsIdleAndAsksNobodyWhoIsNew)
{
    EXPECT_TRUE(run_until({}, [&] { return there("cache/translators.lst"); }));
    EXPECT_FALSE(there("usage"));
}

TEST_F(ProgramInAWindow, AsksAboutUsageDataOnceSomethingWasTranslated)
{
    has_translated_before();
    EXPECT_TRUE(run_until({}, [&] { return kit_read_file(own("usage/choice")) == "no\n"; }));
    EXPECT_TRUE(run_until({}, [&] { return there("cache/translators.lst"); }));
    EXPECT_FALSE(there("usage/usage.txt"));
}

TEST_F(ProgramInAWindow, DoesNotAskWhoComesWithAFile)
{
    has_translated_before();
    folder.write("part.stl", "solid\nendsolid\n");
    EXPECT_TRUE(run_until({"part.stl"}, [&] { return there("cache/translators.lst"); }));
    EXPECT_FALSE(there("usage"));
}
