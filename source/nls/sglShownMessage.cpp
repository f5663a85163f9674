#include "nls/sglShownMessage.h"

#include "sglApp.h"

#include "controls/sglShownText.h"
#include "nls/sglLongMessageDialog.h"
#include "wxt/wxtStringConverter.h"

#include <wx/display.h>
#include <wx/msgdlg.h>

namespace {

/// A box breaks its lines about here.
constexpr std::size_t columns = 60;

/// What the frame, the icon and the buttons of a box need, in lines of text.
constexpr int lines_around_text = 8;

int lines_of(wxString const & text)
{
    std::size_t lines = 1, column = 0;
    for (wxUniChar const character : text) {
        bool const ends = character == '\n' || column == columns;
        lines += ends;
        column = ends ? 0 : column + 1;
    }
    return static_cast<int>(lines);
}

bool fits_on_screen(wxString const & text)
{
    auto * const window = wxTheApp->GetTopWindow();
    wxDisplay const display(window ? std::max(wxDisplay::GetFromWindow(window), 0) : 0);
    int const line_height = wxNORMAL_FONT->GetPixelSize().GetHeight();
    return (lines_of(text) + lines_around_text) * line_height <= display.GetClientArea().GetHeight();
}

int ended(wxDialog & dialog)
{
    dialog.CentreOnParent(wxBOTH);
    return dialog.ShowModal();
}

} // namespace

int sgl_show_message(wxWindow * parent, utString const & text, long style)
{
    wxString const shown = sgl_shown_text(wxtStringConverter::to_wx(text));
    wxString const title = wxtStringConverter::to_wx(sglApp::app().application_name_no_version());
    if (fits_on_screen(shown)) {
        wxMessageDialog box(parent, shown, title, style);
        return ended(box);
    }
    sglLongMessageDialog dialog(parent, shown, title, style);
    return ended(dialog);
}
