#include "sglShownText.h"

wxString sgl_shown_text(wxString const & text)
{
    std::wstring shown = text.ToStdWstring();
    bool changed = false;
    for (wchar_t & character : shown)
        if (character >= 0xD800 && character <= 0xDFFF) {
            character = 0xFFFD;
            changed = true;
        }
    return changed ? wxString(shown) : text;
}
