#pragma once

#include <wx/bitmap.h>
#include <wx/splash.h>

#include "co/coStrings.h"
#include "ut/utString.h"

/// The picture that stands on the screen while the program starts: one at most, reached through the static
/// operations. It stays until the program takes it away or the user presses a key or a mouse button, for
/// which the program's event filter calls PreTranslateAppMessage. Graphical thread.
class sglSplashScreen : public wxSplashScreen {
public:
    sglSplashScreen(wxBitmap const & picture, long int splash_style, int timeout, wxWindow * parent, int id,
                    wxPoint const & position, wxSize const & size, long int style);
    ~sglSplashScreen() override;

    /// Says whether ShowSplashScreen does anything, with what title on the picture, and with which of the
    /// installation's images; the image is left as it was when `enable` is 0.
    static void EnableSplashScreen(utString const & title, int enable, utString const & image);
    /// Whether the picture can be read. It is kept for the next ShowSplashScreen, so that it is read once.
    static bool has_picture();
    /// Shows the picture, which may be missing: the window then has next to no size. Does nothing while there
    /// is one.
    static void ShowSplashScreen(wxWindow * parent);
    static void copyright_message(utString const & text); ///< kept, and not drawn
    static void destroy_splash_screen();
    static sglSplashScreen * splash_screen() { return s_current; } ///< null when there is none
    /// Takes the picture away at a key, a button of the mouse or the opening of a menu, and says by 1 that
    /// the event is to go no further.
    static int PreTranslateAppMessage(wxEvent & event);

    /// Leaves it to PreTranslateAppMessage what takes the picture away.
    int FilterEvent(wxEvent & event) override;

protected:
    static void add_bitmap_text(wxBitmap & bitmap); ///< the title, unless it is empty
    static int calculate_copyright_lines(utStringcoPageArr & lines);

    void HideSplashScreen();
    void OnMouse(wxMouseEvent & event); ///< buttons, movement and the wheel
    void OnKeyDown(wxKeyEvent & event);

private:
    wxBitmap m_picture;

    static int s_enabled;
    static utString s_title;
    static utString s_image_name;
    static utString s_copyright_text;
    static wxBitmap s_read_ahead;
    static sglSplashScreen * s_current;

    wxDECLARE_EVENT_TABLE();
};
