// The program itself, started with a window and driven by the keyboard, as another process.

#include "kit/kitProgram.h"
#include "windows/kit/kitWindowTest.h"
#include "windows/program/kitScreen.h"

#include <chrono>
#include <csignal>

#include <gmock/gmock.h>

namespace {

class ProgramWindow : public kitWindowTest {
protected:
    static constexpr char const * main_title = "Quorvane Crosswalk ";

    void SetUp() override
    {
        kitWindowTest::SetUp();
        if (!std::filesystem::exists(samples))
            GTEST_SKIP() << "no sample files are installed";
        std::filesystem::create_directories(folder() / "home");
    }
    std::string sample(std::string const & name, std::string const & as) const
    {
        std::filesystem::copy_file(samples / name, folder() / as);
        return folder() / as;
    }
    /// Runs the program, and `script` once a window whose title begins so is there and has the focus.
    kitProgramResult run(std::vector<std::string> const & words, std::function<void()> const & script,
                         std::string const & title = main_title)
    {
        kitProgram program;
        program.arguments = {m_program};
        program.arguments.insert(program.arguments.end(), words.begin(), words.end());
        program.folder = folder().path().string();
        program.environment = {{"HOME", folder() / "home"},    {"PATH", "/usr/bin:/bin"},
                               {"LC_ALL", "C.UTF-8"},          {"DISPLAY", std::getenv("DISPLAY")},
                               {"GDK_BACKEND", "x11"},         {"NO_AT_BRIDGE", "1"},
                               {"GSETTINGS_BACKEND", "memory"}};
        for (auto const & [name, value] : m_surroundings)
            program.environment[name] = value;
        program.meanwhile = [&](pid_t process) {
            m_process = process;
            m_at_start();
            wait_for_title(title);
            // It takes the first key for itself.
            run_until([&] { return m_screen.windows_on_top(process) == 0; }, 20, "the end of the picture");
            settle();
            script();
            // A window that is still there would keep the test waiting for ever.
            run_until([&] { return m_screen.windows(process) == 0; }, 30, "the end of the program");
            if (m_screen.windows(process) > 0)
                kill(process, SIGKILL);
        };
        return program.run();
    }
    /// Waits until a window of the program whose title begins so has the focus.
    void wait_for_title(std::string const & begin)
    {
        run_until([&] { return m_screen.active_title(m_process).starts_with(begin); }, 60, begin.c_str());
        settle();
    }
    /// Translates what the window shows, with the keys that a user presses.
    void translate_by_keyboard(std::string const & output)
    {
        key('T', wxMOD_ALT);
        // The message of the end stands before the dialog of the translation.
        run_until([&] { return m_screen.active_title(m_process) == "Crosswalk" && folder().exists(output); },
                  60, "the message at the end of the translation");
        key(WXK_RETURN);
        run_until([&] { return m_screen.windows(m_process) == 2; }, 20, "the message to go");
        settle();
        key(WXK_RETURN);
        wait_for_title(main_title);
    }
    /// Waits until what stands in front of the main window has gone.
    void wait_for_main_window()
    {
        run_until([&] { return m_screen.windows(m_process) == 1; }, 20, "the dialog to go");
        wait_for_title(main_title);
    }
    /// Chooses a command of a menu by their underlined letters, and ends the dialog that it opens.
    void look_at_dialog(char menu, char command, std::string const & title)
    {
        key(menu, wxMOD_ALT);
        key(command);
        wait_for_title(title);
        key(WXK_ESCAPE);
        wait_for_title(main_title);
    }
    /// From now on runs a copy of the program, whose installation has this as the picture of the start.
    void install_with_picture(std::string const & picture)
    {
        std::filesystem::path const build = VMR_BUILD_TREE, copy = folder() / "copy";
        auto const link_all_but = [&](std::filesystem::path const & place, std::string const & name) {
            std::filesystem::create_directories(copy / place);
            for (auto const & entry : std::filesystem::directory_iterator(build / place))
                if (entry.path().filename() != name)
                    std::filesystem::create_symlink(entry.path(), copy / place / entry.path().filename());
        };
        link_all_but("share/vmr", "xrc");
        link_all_but("share/vmr/xrc", "splash.png");
        for (char const * const place : {"lib", "libexec"})
            std::filesystem::create_symlink(build / place, copy / place);
        folder().write("copy/share/vmr/xrc/splash.png", picture);
        std::filesystem::create_directories(copy / "bin");
        std::filesystem::copy_file(VMR_PROGRAM, copy / "bin/vmr");
        m_program = copy / "bin/vmr";
    }
    /// Looks at the start of the program all the time, up to the main window or, where it comes, the picture.
    bool sees_picture_at_start() const
    {
        auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (std::chrono::steady_clock::now() < deadline) {
            if (m_screen.windows_on_top(m_process) > 0)
                return true;
            if (m_screen.active_title(m_process).starts_with(main_title))
                return false;
        }
        ADD_FAILURE() << "no window came";
        return false;
    }
    std::string own(std::string const & name) const { return "home/.config/Quorvane/Crosswalk/" + name; }
    /// The key comes again until the windows are gone: a window that has just got the focus may miss one.
    void quit()
    {
        run_until(
            [&] {
                key('Q', wxMOD_CONTROL);
                return m_screen.windows(m_process) == 0;
            },
            30, "the windows to go");
    }
    static void expect_silent_good_end(kitProgramResult const & result)
    {
        EXPECT_EQ(result.exit_status, 0);
        EXPECT_EQ(result.signal, 0);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "");
    }

    std::filesystem::path const samples = "/usr/share/opencascade/data";
    std::map<std::string, std::string> m_surroundings; // what is otherwise in the environment
    kitScreen m_screen;
    pid_t m_process = -1;
    std::string m_program = VMR_PROGRAM;
    std::function<void()> m_at_start = [] {};
};

} // namespace

TEST_F(ProgramWindow, TranslatesTheFileThatItIsStartedWith)
{
    sample("step/screw.step", "screw.step");
    expect_silent_good_end(run({"screw.step"}, [&] {
        translate_by_keyboard("screw.igs");
        quit();
    }));
    EXPECT_GT(std::filesystem::file_size(folder() / "screw.igs"), 10'000u);
}

TEST_F(ProgramWindow, OpensWithSeveralFilesOnThePageThatMergesThem)
{
    sample("step/screw.step", "screw.step");
    sample("iges/hammer.iges", "hammer.iges");
    expect_silent_good_end(run({"screw.step", "hammer.iges"}, [&] {
        translate_by_keyboard("screw.igs");
        quit();
    }));
    EXPECT_TRUE(folder().exists("screw.igs"));
}

TEST_F(ProgramWindow, EndsWellWhenItsFrameIsClosed)
{
    expect_silent_good_end(run({}, [&] { key(WXK_F4, wxMOD_ALT); }));
}

TEST_F(ProgramWindow, OpensOverADamagedConfigurationFile)
{
    std::string const damaged = "[abc\nfoo\n=bar\n[x]y\n[x]\n";
    folder().write("home/.config/Crosswalk.conf", damaged);
    expect_silent_good_end(run({}, [&] { quit(); }));
    EXPECT_EQ(folder().read("home/.config/Crosswalk.conf"), damaged);
}

TEST_F(ProgramWindow, OpensInEnglishForALanguageThatNobodyHas)
{
    for (std::map<std::string, std::string> const & language :
         {std::map<std::string, std::string>{{"LANGUAGE", "tlh_XX"}}, {{"LANGUAGE", "/etc"}}}) {
        m_surroundings = language;
        sample("step/screw.step", "screw.step");
        expect_silent_good_end(run({"screw.step"}, [&] {
            translate_by_keyboard("screw.igs"); // with the letters of the English texts
            quit();
        }));
        EXPECT_TRUE(folder().exists("screw.igs"));
        std::filesystem::remove(folder() / "screw.step");
        std::filesystem::remove(folder() / "screw.igs");
    }
}

TEST_F(ProgramWindow, TakesAFileWhoseNameIsNoText)
{
    sample("step/screw.step", "caf\xe9.step");
    expect_silent_good_end(run({"caf\xe9.step"}, [&] { quit(); }));
}

TEST_F(ProgramWindow, AsksAboutUsageDataAtALaterStartOnlyWhenSomethingWasTranslated)
{
    auto const will_ask = [&] {
        return folder().read(own("resources/startup.hrk")).find("ask_about_usage_data") != std::string::npos;
    };
    expect_silent_good_end(run({}, [&] { quit(); }));
    EXPECT_FALSE(will_ask());
    sample("step/screw.step", "screw.step");
    expect_silent_good_end(run({"screw.step"}, [&] {
        translate_by_keyboard("screw.igs");
        quit();
    }));
    EXPECT_TRUE(will_ask());
    EXPECT_FALSE(folder().exists(own("usage"))) << "before anybody was asked";
    expect_silent_good_end(run(
        {},
        [&] {
            key(WXK_ESCAPE);
            wait_for_title(main_title);
            quit();
        },
        "Usage Data"));
    EXPECT_EQ(folder().read(own("usage/choice")), "no\n");
}

TEST_F(ProgramWindow, ShowsTheUsageDataAndTheAboutBoxFromItsMenu)
{
    expect_silent_good_end(run({}, [&] {
        look_at_dialog('H', 'U', "Usage Data");
        look_at_dialog('H', 'A', "About Crosswalk");
        quit();
    }));
}

TEST_F(ProgramWindow, OpensItsHelpWithF1OverTheAboutBox)
{
    expect_silent_good_end(run({}, [&] {
        for (int time = 0; time < 2; ++time) {
            key('H', wxMOD_ALT);
            key('A');
            wait_for_title("About Crosswalk");
            for (bool const escape : {true, false, true}) {
                key(WXK_F1);
                wait_for_title("Crosswalk: ");
                escape ? key(WXK_ESCAPE) : key(WXK_F4, wxMOD_ALT);
                wait_for_title("About Crosswalk");
            }
            key(WXK_ESCAPE);
            wait_for_main_window();
        }
        quit();
    }));
}

TEST_F(ProgramWindow, OpensItsHelpInAWindowThatEscapeCloses)
{
    auto const result = run({}, [&] {
        for (int time = 0; time < 2; ++time) {
            key(WXK_F1);
            wait_for_title("Crosswalk: ");
            key(WXK_ESCAPE);
            wait_for_main_window();
        }
        quit();
    });
    EXPECT_EQ(result.exit_status, 0);
    EXPECT_EQ(result.output, "");
    // Where the pointer happens to lie over the tools GTK warns of their first size, which nobody sees.
    EXPECT_EQ(result.errors.find("CRITICAL"), std::string::npos) << result.errors;
}

TEST_F(ProgramWindow, ShowsItsPictureUntilTheMainWindowIsThere)
{
    bool seen = false;
    m_at_start = [&] { seen = sees_picture_at_start(); };
    expect_silent_good_end(run({}, [&] {
        EXPECT_TRUE(seen);
        EXPECT_EQ(m_screen.windows(m_process), 1) << "the picture is left";
        quit();
    }));
}

TEST_F(ProgramWindow, ShowsNoPictureWhenItIsDamaged)
{
    std::string const picture = kit_read_file(VMR_BUILD_TREE "/share/vmr/xrc/splash.png");
    for (bool const damaged : {false, true}) {
        install_with_picture(damaged ? picture.substr(0, 5000) : picture);
        bool seen = false;
        m_at_start = [&] { seen = sees_picture_at_start(); };
        expect_silent_good_end(run({}, [&] { quit(); }));
        EXPECT_EQ(seen, !damaged);
        std::filesystem::remove_all(folder() / "copy");
    }
}
