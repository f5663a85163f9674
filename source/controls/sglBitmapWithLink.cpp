#include "sglBitmapWithLink.h"

#include "wxt/wxtStringConverter.h"

#include <wx/cursor.h>
#include <wx/utils.h>

wxIMPLEMENT_DYNAMIC_CLASS(sglBitmapWithLink, wxStaticBitmap);

wxBEGIN_EVENT_TABLE(sglBitmapWithLink, wxStaticBitmap)
    EVT_LEFT_DOWN(sglBitmapWithLink::OnLButtonDown)
wxEND_EVENT_TABLE()

void sglBitmapWithLink::set_link(utString const & link)
{
    m_link = link;
    SetCursor(wxCursor(wxCURSOR_HAND));
}

void sglBitmapWithLink::set_tooltip(utString const & text)
{
    SetToolTip(wxtStringConverter::to_wx(text));
}

void sglBitmapWithLink::OnLButtonDown(wxMouseEvent &)
{
    wxLaunchDefaultBrowser(wxtStringConverter::to_wx(m_link), 0);
}
