#include "sglStaticWithLink.h"

#include "wxt/wxtStringConverter.h"

#include <wx/gdicmn.h>
#include <wx/utils.h>

wxIMPLEMENT_DYNAMIC_CLASS(sglStaticWithLink, wxRichTextCtrl);

wxBEGIN_EVENT_TABLE(sglStaticWithLink, wxRichTextCtrl)
    EVT_TEXT_URL(wxID_ANY, sglStaticWithLink::OnURL)
wxEND_EVENT_TABLE()

void sglStaticWithLink::set_text(utString const & text, utString const & link)
{
    int const position = link.invalid() ? -1 : text.locate_substring(link);
    if (position < 0) {
        WriteText(wxtStringConverter::to_wx(text));
        return;
    }
    if (position > 0)
        WriteText(wxtStringConverter::to_wx(text.substring(0, position)));

    wxRichTextAttr style;
    style.SetTextColour(*wxStockGDI::GetColour(wxStockGDI::COLOUR_BLUE));
    style.SetFontUnderlined(true);
    BeginStyle(style);
    GetBuffer().BeginURL(wxtStringConverter::to_wx(link), "");
    WriteText(wxtStringConverter::to_wx(link));
    GetBuffer().EndURL();
    EndStyle();

    if (int const behind = position + link.length(); behind < text.length())
        WriteText(wxtStringConverter::to_wx(text.substring(behind, text.length() - behind)));
}

void sglStaticWithLink::OnURL(wxTextUrlEvent & event)
{
    wxLaunchDefaultBrowser(event.GetString(), 0);
}
