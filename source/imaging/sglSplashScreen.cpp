#include "sglSplashScreen.h"

#include "sglDib.h"
#include "sglImageUtils.h"

#include "wxt/wxtStringConverter.h"

#include <string_view>
#include <utility>
#include <wx/dcmemory.h>
#include <wx/font.h>

int sglSplashScreen::s_enabled = 0;
utString sglSplashScreen::s_title;
utString sglSplashScreen::s_image_name;
utString sglSplashScreen::s_copyright_text;
wxBitmap sglSplashScreen::s_read_ahead;
sglSplashScreen * sglSplashScreen::s_current = nullptr;

wxBEGIN_EVENT_TABLE(sglSplashScreen, wxSplashScreen)
    EVT_MOUSE_EVENTS(sglSplashScreen::OnMouse)
    EVT_KEY_DOWN(sglSplashScreen::OnKeyDown)
wxEND_EVENT_TABLE()

namespace {

/// What the toolkit can make a window of.
wxBitmap shown(wxBitmap const & picture)
{
    return picture.IsOk() ? picture : wxBitmap(1, 1);
}

} // namespace

sglSplashScreen::sglSplashScreen(wxBitmap const & picture, long int splash_style, int timeout,
                                 wxWindow * parent, int id, wxPoint const & position, wxSize const & size,
                                 long int style)
    : wxSplashScreen(shown(picture), splash_style, timeout, parent, id, position, size, style),
      m_picture(picture)
{
    // The picture is a window inside of this one and gets the user's events.
    auto * const inside = GetSplashWindow();
    for (auto const & type :
         {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, wxEVT_LEFT_DCLICK, wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_UP,
          wxEVT_MIDDLE_DCLICK, wxEVT_RIGHT_DOWN, wxEVT_RIGHT_UP, wxEVT_RIGHT_DCLICK, wxEVT_AUX1_DOWN,
          wxEVT_AUX1_UP, wxEVT_AUX1_DCLICK, wxEVT_AUX2_DOWN, wxEVT_AUX2_UP, wxEVT_AUX2_DCLICK, wxEVT_MOTION,
          wxEVT_MOUSEWHEEL, wxEVT_MAGNIFY})
        inside->Bind(type, &sglSplashScreen::OnMouse, this);
    inside->Bind(wxEVT_KEY_DOWN, &sglSplashScreen::OnKeyDown, this);
}

sglSplashScreen::~sglSplashScreen()
{
    if (s_current == this)
        s_current = nullptr;
}

void sglSplashScreen::EnableSplashScreen(utString const & title, int enable, utString const & image)
{
    s_enabled = enable;
    s_title = title;
    if (enable)
        s_image_name = image;
    s_read_ahead = {};
}

bool sglSplashScreen::has_picture()
{
    if (!s_read_ahead.IsOk())
        s_read_ahead = sglImageUtils(0).load_image_file(s_image_name, 0);
    return s_read_ahead.IsOk();
}

void sglSplashScreen::ShowSplashScreen(wxWindow * parent)
{
    if (!s_enabled || s_current)
        return;
    has_picture();
    wxBitmap bitmap = std::exchange(s_read_ahead, {});
    sglDib picture;
    picture.set_bitmap(&bitmap);
    if (picture.has_alpha()) {
        picture.set_alpha(0);
        picture.get_bitmap(bitmap);
    }
    add_bitmap_text(bitmap);
    s_current = new sglSplashScreen(bitmap, wxSPLASH_CENTRE_ON_SCREEN, 0, parent, wxID_ANY, wxDefaultPosition,
                                    wxDefaultSize, wxSIMPLE_BORDER | wxSTAY_ON_TOP | wxFRAME_NO_TASKBAR);
}

void sglSplashScreen::add_bitmap_text(wxBitmap & bitmap)
{
    if (!bitmap.IsOk())
        return;
    wxMemoryDC dc(bitmap);
    dc.SetTextForeground(wxColour(51, 51, 153));
    int const background_mode = dc.GetBackgroundMode();
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    if (!s_title.empty()) {
        wxFont const old_font = dc.GetFont();
        wxFont const font(16, wxFONTFAMILY_DEFAULT, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_BOLD, false);
        if (font.IsOk())
            dc.SetFont(font);
        dc.SetTextForeground(wxColour(153, 51, 51));
        dc.DrawText(wxtStringConverter::to_wx(s_title), 3, 3);
        if (old_font.IsOk())
            dc.SetFont(old_font);
    }
    dc.SetBackgroundMode(background_mode);
}

void sglSplashScreen::copyright_message(utString const & text)
{
    s_copyright_text = text;
}

int sglSplashScreen::calculate_copyright_lines(utStringcoPageArr & lines)
{
    std::string_view rest = s_copyright_text.view();
    for (std::size_t end = 0; (end = rest.find('\n')) != std::string_view::npos; rest.remove_prefix(end + 1))
        lines.append(utString(rest.substr(0, end)));
    if (!rest.empty())
        lines.append(utString(rest));
    return 1;
}

void sglSplashScreen::destroy_splash_screen()
{
    if (s_current)
        s_current->HideSplashScreen();
}

int sglSplashScreen::PreTranslateAppMessage(wxEvent & event)
{
    auto const type = event.GetEventType();
    bool const is_user_action = type == wxEVT_KEY_DOWN || type == wxEVT_LEFT_DOWN ||
                                type == wxEVT_RIGHT_DOWN || type == wxEVT_MIDDLE_DOWN ||
                                type == wxEVT_MENU_OPEN;
    if (!s_current || !is_user_action)
        return 0;
    s_current->HideSplashScreen();
    return 1;
}

int sglSplashScreen::FilterEvent(wxEvent &)
{
    return Event_Skip;
}

void sglSplashScreen::HideSplashScreen()
{
    Hide();
    Destroy();
}

void sglSplashScreen::OnMouse(wxMouseEvent & event)
{
    // The picture is entered too when it comes up under a mouse that nobody moves, and that must not take it
    // away before it has been seen.
    if (!event.Entering() && !event.Leaving())
        HideSplashScreen();
}

void sglSplashScreen::OnKeyDown(wxKeyEvent &)
{
    HideSplashScreen();
}
