#include "sglSplashScreen.h"

#include "sglDib.h"
#include "sglImageUtils.h"
#include "source/imaging/kitDib.h"
#include "source/imaging/kitPicture.h"
#include "windows/kit/kitInstalledImages.h"
#include "windows/kit/kitWindowTest.h"

#include <algorithm>
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

wxBitmap white_bitmap()
{
    wxBitmap bitmap(200, 60);
    wxMemoryDC dc(bitmap);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    return bitmap;
}

kitPixels pixels_of(wxBitmap & bitmap)
{
    kitDib dib;
    dib.set_bitmap(&bitmap);
    return kit_pixels(dib);
}

/// A white bitmap after add_bitmap_text.
kitPixels with_title(char const * title)
{
    sglSplashScreen::EnableSplashScreen(title, 1, "splash.png");
    wxBitmap bitmap = white_bitmap();
    Splash::add_bitmap_text(bitmap);
    return pixels_of(bitmap);
}

/// A white bitmap with a text that is drawn here.
kitPixels with_text(char const * text, int points, int weight, wxColour const & colour, int x, int y)
{
    wxBitmap bitmap = white_bitmap();
    {
        wxMemoryDC dc(bitmap);
        dc.SetFont(wxFontInfo(points).Weight(weight));
        dc.SetTextForeground(colour);
        dc.DrawText(text, x, y);
    }
    return pixels_of(bitmap);
}

/// The events of the toolkit's mouse group but those of entering and leaving.
std::vector<wxEventType> const & mouse_events()
{
    static std::vector<wxEventType> const types = {
        wxEVT_LEFT_DOWN,     wxEVT_LEFT_UP,     wxEVT_LEFT_DCLICK, wxEVT_MIDDLE_DOWN,  wxEVT_MIDDLE_UP,
        wxEVT_MIDDLE_DCLICK, wxEVT_RIGHT_DOWN,  wxEVT_RIGHT_UP,    wxEVT_RIGHT_DCLICK, wxEVT_AUX1_DOWN,
        wxEVT_AUX1_UP,       wxEVT_AUX1_DCLICK, wxEVT_AUX2_DOWN,   wxEVT_AUX2_UP,      wxEVT_AUX2_DCLICK,
        wxEVT_MOTION,        wxEVT_MOUSEWHEEL,  wxEVT_MAGNIFY};
    return types;
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

TEST_F(SplashScreen, GoesAtEveryEventOfTheMouseOnItsFrameAndOnItsPicture)
{
    ASSERT_EQ(mouse_events().size(), 18u);
    for (wxEventType const type : mouse_events())
        for (bool const on_picture : {false, true}) {
            auto * const window = show();
            wxMouseEvent event(type);
            EXPECT_TRUE((on_picture ? window->GetSplashWindow() : static_cast<wxWindow *>(window))
                            ->ProcessWindowEvent(event));
            EXPECT_FALSE(window->IsShown()) << "event " << type << " " << on_picture;
            expect_gone();
        }
}

TEST_F(SplashScreen, GoesAtAKeyOnItsFrameAndOnItsPicture)
{
    for (bool const on_picture : {false, true}) {
        auto * const window = show();
        wxKeyEvent event(wxEVT_KEY_DOWN);
        (on_picture ? window->GetSplashWindow() : static_cast<wxWindow *>(window))->ProcessWindowEvent(event);
        EXPECT_FALSE(window->IsShown()) << on_picture;
        expect_gone();
    }
}

TEST_F(SplashScreen, WritesItsTitleInSixteenPointsBoldAtItsPlace)
{
    wxColour const red(153, 51, 51);
    auto const title = with_title("Beta Release");
    EXPECT_EQ(title, with_text("Beta Release", 16, 700, red, 3, 3));
    // What would not be the same.
    EXPECT_NE(title, with_text("Beta Release", 15, 700, red, 3, 3));
    EXPECT_NE(title, with_text("Beta Release", 16, 400, red, 3, 3));
    EXPECT_NE(title, with_text("Beta Release", 16, 700, red, 4, 3));
    EXPECT_NE(title, with_text("Beta Release", 16, 700, wxColour(51, 51, 153), 3, 3));
    EXPECT_NE(std::find(title.begin(), title.end(), sglCOLORREF::from_channels(153, 51, 51, 255)),
              title.end())
        << "nowhere is the colour whole";
}

TEST_F(SplashScreen, ShowsAPictureThatIsHalfTransparentOpaque)
{
    kitInstalledImages images;
    kitPixels const half(40 * 30, sglCOLORREF(0x80102030));
    sglSplashScreen::EnableSplashScreen("", 1, images.install("kit-half.png", kit_png(40, 30, half, true)));
    ASSERT_TRUE(show());
    EXPECT_FALSE(picture().HasAlpha());
    EXPECT_EQ(pixels_of(picture()), kitPixels(40 * 30, sglCOLORREF(0xFF102030)));
}

TEST_F(SplashScreen, KnowsWhetherItsPictureCanBeRead)
{
    EXPECT_TRUE(sglSplashScreen::has_picture());
    kitInstalledImages images;
    auto const whole = kit_png(4, 3, kitPixels(12, sglCOLORREF(0xFF102030)), true);
    std::string const damaged = whole.substr(0, whole.size() / 2);
    for (utString const & name :
         {utString("kit-missing.png"), images.install("kit-damaged.png", damaged),
          images.install("kit-text.png", "no picture"), images.install("kit-empty.png", "")}) {
        sglSplashScreen::EnableSplashScreen("", 1, name);
        EXPECT_FALSE(sglSplashScreen::has_picture()) << name.view();
    }
    sglSplashScreen::EnableSplashScreen("", 1, images.install("kit-whole.png", whole));
    EXPECT_TRUE(sglSplashScreen::has_picture());
    EXPECT_TRUE(sglSplashScreen::has_picture());
    ASSERT_TRUE(show());
    EXPECT_EQ(picture().GetSize(), wxSize(4, 3));
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
