#include "kit/kitAppTest.h"

namespace {

/// Looks for its directories as a real application does; without a name there can be none of the user's.
struct Nameless : kitApp {
    Nameless(std::string const & installation, std::string const & user_folder)
        : kitApp(installation, user_folder, "")
    {
    }
    void initialise_directory_mapper() override { sglApp::initialise_directory_mapper(); }
};

} // namespace

TEST(AppDirectories, ThatCannotBeLaidOutAreToldAndTheStartGoesOn)
{
    kitTempFolder const folder;
    Nameless app(folder / "installation", folder / "user");
    auto * const before = wxAppConsole::GetInstance();
    wxAppConsole::SetInstance(&app);
    testing::internal::CaptureStderr();
    app.pre_splash_screen_init();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), ": Could not correctly initialise the appdir map. \n");
    EXPECT_NE(app.application_information(), nullptr);
    EXPECT_EQ(app.startup_info().using_defaults(), 1);
    wxAppConsole::SetInstance(before);
}
