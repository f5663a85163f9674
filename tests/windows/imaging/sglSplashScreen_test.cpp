#include "sglSplashScreen.h"

#include "sglDib.h"
#include "sglImageUtils.h"
#include "source/imaging/kitDib.h"
#include "windows/kit/kitWindowTest.h"

#include <cstring>
#include <wx/dcmemory.h>

namespace {

/// What the program cannot reach.
struct Splash : sglSplashScreen {
    using sglSplashScreen::add_bitmap_text;
    using sglSplashScreen::calculate_copyright_lines;
};

class SplashScreen : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        // Away from where the picture comes up: the mouse over it would take it away.
        auto * const frame = show_frame();
        wxUIActionSimulator().MouseMove(1, 1);
        settle();
        frame->Destroy();
        settle();
        sglSplashScreen::EnableSplashScreen("", 1, "splash.png");
    }
    void TearDown() override
    {
        kitWindowTest::TearDown();
        EXPECT_EQ(sglSplashScreen::splash_screen(), nullptr);
        sglSplashScreen::EnableSplashScreen("", 0, "");
        sglSplashScreen::copyright_message("");
    }

    static sglSplashScreen * show()
    {
        sglSplashScreen::ShowSplashScreen(nullptr);
        auto * const window = sglSplashScreen::splash_screen();
        EXPECT_TRUE(window);
        if (window)
            run_until([] { return sglSplashScreen::splash_screen()->IsShownOnScreen(); }, 20, "the picture");
        return window;
    }
    static void expect_gone()
    {
        run_until([] { return !sglSplashScreen::splash_screen(); }, 20, "the end of the picture");
    }
    static int filtered(wxEventType type)
    {
        wxKeyEvent event(type);
        return sglSplashScreen::PreTranslateAppMessage(event);
    }
    static wxBitmap & picture() { return sglSplashScreen::splash_screen()->GetSplashWindow()->GetBitmap(); }
};

/// A white bitmap after add_bitmap_text.
kitPixels with_title(char const * title)
{
    sglSplashScreen::EnableSplashScreen(title, 1, "splash.png");
    wxBitmap bitmap(200, 60);
    {
        wxMemoryDC dc(bitmap);
        dc.SetBackground(*wxWHITE_BRUSH);
        dc.Clear();
    }
    Splash::add_bitmap_text(bitmap);
    kitDib dib;
    dib.set_bitmap(&bitmap);
    return kit_pixels(dib);
}

std::vector<std::string> copyright_lines(char const * text)
{
    sglSplashScreen::copyright_message(text);
    utStringcoPageArr lines;
    EXPECT_EQ(Splash::calculate_copyright_lines(lines), 1);
    std::vector<std::string> texts;
    for (int i = 0; i < lines.count(); ++i)
        texts.push_back(lines[i].str());
    return texts;
}

} // namespace

TEST_F(SplashScreen, IsShownInTheMiddleOfTheScreenInTheSizeOfThePicture)
{
    auto * const window = show();
    ASSERT_TRUE(window);
    EXPECT_EQ(window->GetClientSize(), wxSize(600, 350));
    wxRect const screen = wxGetClientDisplayRect();
    EXPECT_NEAR(window->GetScreenPosition().x + 300, screen.x + screen.width / 2, 2);
    EXPECT_NEAR(window->GetScreenPosition().y + 175, screen.y + screen.height / 2, 2);
    EXPECT_EQ(window->GetTimeout(), 0);
    EXPECT_EQ(window->GetSplashStyle(), wxSPLASH_CENTRE_ON_SCREEN);
    EXPECT_TRUE(window->HasFlag(wxSTAY_ON_TOP));
    EXPECT_TRUE(window->HasFlag(wxFRAME_NO_TASKBAR));
    EXPECT_TRUE(window->HasFlag(wxSIMPLE_BORDER));
}

TEST_F(SplashScreen, ShowsThePictureOpaque)
{
    ASSERT_TRUE(show());
    EXPECT_FALSE(picture().HasAlpha());
    wxBitmap const loaded = sglImageUtils(0).load_image_file("splash.png", 0);
    wxImage const expected = loaded.ConvertToImage();
    wxImage const shown = picture().ConvertToImage();
    ASSERT_EQ(shown.GetSize(), expected.GetSize());
    EXPECT_EQ(std::memcmp(shown.GetData(), expected.GetData(), 3 * 600 * 350), 0);
}

TEST_F(SplashScreen, DoesNothingUnlessItIsEnabled)
{
    sglSplashScreen::EnableSplashScreen("title", 0, "splash.png");
    sglSplashScreen::ShowSplashScreen(nullptr);
    EXPECT_EQ(sglSplashScreen::splash_screen(), nullptr);
}

TEST_F(SplashScreen, KeepsTheImageWhileItIsDisabled)
{
    sglSplashScreen::EnableSplashScreen("", 0, "another.png");
    sglSplashScreen::EnableSplashScreen("", 1, "splash.png");
    sglSplashScreen::EnableSplashScreen("", 0, "another.png");
    sglSplashScreen::ShowSplashScreen(nullptr);
    EXPECT_EQ(sglSplashScreen::splash_screen(), nullptr);
    sglSplashScreen::EnableSplashScreen("", 1, "splash.png");
    ASSERT_TRUE(show());
    EXPECT_EQ(picture().GetSize(), wxSize(600, 350));
}

TEST_F(SplashScreen, IsOneAtMost)
{
    auto * const window = show();
    sglSplashScreen::ShowSplashScreen(nullptr);
    EXPECT_EQ(sglSplashScreen::splash_screen(), window);
    EXPECT_EQ(wxTopLevelWindows.GetCount(), 1U);
}

TEST_F(SplashScreen, CanBeTakenAwayAndShownAgain)
{
    ASSERT_TRUE(show());
    sglSplashScreen::destroy_splash_screen();
    EXPECT_FALSE(sglSplashScreen::splash_screen()->IsShown());
    sglSplashScreen::destroy_splash_screen();
    expect_gone();
    sglSplashScreen::destroy_splash_screen();
    ASSERT_TRUE(show());
}

TEST_F(SplashScreen, WithoutItsPictureIsAWindowAllTheSame)
{
    sglSplashScreen::EnableSplashScreen("A title", 1, "kit-missing.png");
    ASSERT_TRUE(show());
    EXPECT_EQ(picture().GetSize(), wxSize(1, 1));
}

TEST_F(SplashScreen, GoesAtTheFirstActionOfTheUserAnywhereAndKeepsTheEvent)
{
    for (wxEventType const type : std::vector<wxEventType>{wxEVT_KEY_DOWN, wxEVT_LEFT_DOWN, wxEVT_RIGHT_DOWN,
                                                           wxEVT_MIDDLE_DOWN, wxEVT_MENU_OPEN}) {
        EXPECT_EQ(filtered(type), 0) << "there is no picture";
        ASSERT_TRUE(show());
        EXPECT_EQ(filtered(type), 1);
        EXPECT_FALSE(sglSplashScreen::splash_screen()->IsShown());
        expect_gone();
    }
}

TEST_F(SplashScreen, StaysAtOtherEventsOfTheApplication)
{
    ASSERT_TRUE(show());
    for (wxEventType const type : std::vector<wxEventType>{wxEVT_MOTION, wxEVT_LEFT_UP, wxEVT_KEY_UP,
                                                           wxEVT_AUX1_DOWN, wxEVT_MOUSEWHEEL, wxEVT_PAINT})
        EXPECT_EQ(filtered(type), 0);
    EXPECT_TRUE(sglSplashScreen::splash_screen()->IsShown());
}

TEST_F(SplashScreen, LeavesTheApplicationsFilterToTheApplication)
{
    ASSERT_TRUE(show());
    auto * const frame = new wxFrame(nullptr, wxID_ANY, "another window");
    wxMouseEvent event(wxEVT_AUX1_DOWN);
    frame->ProcessWindowEvent(event);
    wxKeyEvent key_event(wxEVT_KEY_DOWN);
    frame->ProcessWindowEvent(key_event);
    EXPECT_TRUE(sglSplashScreen::splash_screen()->IsShown());
}

TEST_F(SplashScreen, GoesWhenTheMouseMovesOverIt)
{
    auto * const window = show();
    wxUIActionSimulator().MouseMove(window->ClientToScreen(wxPoint(300, 200)));
    expect_gone();
}

TEST_F(SplashScreen, StaysWhenItComesUpUnderTheMouse)
{
    auto * const window = show();
    for (wxEventType const type : std::vector<wxEventType>{wxEVT_ENTER_WINDOW, wxEVT_LEAVE_WINDOW}) {
        wxMouseEvent event(type);
        window->ProcessWindowEvent(event);
        window->GetSplashWindow()->ProcessWindowEvent(event);
    }
    settle();
    ASSERT_TRUE(sglSplashScreen::splash_screen());
    EXPECT_TRUE(window->IsShown());
}

TEST_F(SplashScreen, GoesAtAClickAndAtAKey)
{
    for (int const kind : {0, 1, 2}) {
        auto * const window = show();
        auto * const inside = window->GetSplashWindow();
        if (kind == 0) {
            wxMouseEvent event(wxEVT_LEFT_DOWN);
            inside->ProcessWindowEvent(event);
        } else if (kind == 1) {
            wxKeyEvent event(wxEVT_KEY_DOWN);
            inside->ProcessWindowEvent(event);
        } else {
            wxMouseEvent event(wxEVT_MOUSEWHEEL);
            window->ProcessWindowEvent(event);
        }
        EXPECT_FALSE(sglSplashScreen::splash_screen()->IsShown());
        expect_gone();
    }
}

TEST_F(SplashScreen, WritesItsTitleInDarkRedIntoTheUpperLeftCorner)
{
    auto const pixels = with_title("Beta Release");
    int reddish = 0;
    int others = 0;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        if (pixels[i] == sglCOLORREF(0xFFFFFFFF))
            continue;
        auto const x = i % 200;
        auto const y = 59 - i / 200;
        EXPECT_GE(x, 3U);
        EXPECT_GE(y, 3U);
        // Between white and (153, 51, 51).
        bool const is_title = pixels[i].red >= 150 && pixels[i].green == pixels[i].blue;
        (is_title ? reddish : others) += 1;
    }
    EXPECT_GT(reddish, 100);
    EXPECT_EQ(others, 0);
}

TEST_F(SplashScreen, WithoutATitleHasNothingDrawnOnIt)
{
    sglSplashScreen::copyright_message("Copyright of somebody\nwith two lines");
    EXPECT_EQ(with_title(""), kitPixels(200 * 60, sglCOLORREF(0xFFFFFFFF)));
    wxBitmap none;
    Splash::add_bitmap_text(none);
    EXPECT_FALSE(none.IsOk());
}

TEST_F(SplashScreen, DrawsTheTitleOnThePictureThatIsShown)
{
    sglSplashScreen::EnableSplashScreen("Beta Release", 1, "splash.png");
    ASSERT_TRUE(show());
    wxImage const shown = picture().ConvertToImage();
    wxImage const plain = sglImageUtils(0).load_image_file("splash.png", 0).ConvertToImage();
    EXPECT_NE(std::memcmp(shown.GetData(), plain.GetData(), 3 * 600 * 30), 0);
    EXPECT_EQ(std::memcmp(shown.GetData() + 3 * 600 * 40, plain.GetData() + 3 * 600 * 40, 3 * 600 * 310), 0);
}

TEST_F(SplashScreen, SplitsTheCopyrightTextIntoLines)
{
    using Lines = std::vector<std::string>;
    EXPECT_EQ(copyright_lines("one\ntwo"), (Lines{"one", "two"}));
    EXPECT_EQ(copyright_lines("one\n\nthree\n"), (Lines{"one", "", "three"}));
    EXPECT_EQ(copyright_lines("one"), (Lines{"one"}));
    EXPECT_EQ(copyright_lines(""), Lines{});
}
