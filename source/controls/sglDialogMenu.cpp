#include "sglDialogMenu.h"

#include <algorithm>
#include <wx/dcclient.h>
#include <wx/settings.h>

wxIMPLEMENT_DYNAMIC_CLASS(sglDialogMenu, wxGenericStaticText);

wxBEGIN_EVENT_TABLE(sglDialogMenu, wxGenericStaticText)
    EVT_LEFT_DOWN(sglDialogMenu::OnLButtonDown)
    EVT_LEFT_DCLICK(sglDialogMenu::OnLButtonDown)
    EVT_ENTER_WINDOW(sglDialogMenu::OnMouseEnter)
    EVT_LEAVE_WINDOW(sglDialogMenu::OnMouseLeave)
    EVT_SET_FOCUS(sglDialogMenu::OnGainFocus)
    EVT_KILL_FOCUS(sglDialogMenu::OnKillFocus)
    EVT_KEY_DOWN(sglDialogMenu::OnKeyDown)
wxEND_EVENT_TABLE()

sglDialogMenu::sglDialogMenu(wxWindow * parent, wxWindowID id, wxString const & label,
                             wxPoint const & position, wxSize const & size, long style, wxString const & name)
{
    Create(parent, id, label, position, size, style, name);
}

bool sglDialogMenu::Create(wxWindow * parent, wxWindowID id, wxString const & label, wxPoint const & position,
                           wxSize const & size, long style, wxString const & name)
{
    // The base binds a paint handler of its own, which a handler bound later comes before.
    if (!wxGenericStaticText::Create(parent, id, label, position, size, style | wxWANTS_CHARS, name))
        return false;
    Bind(wxEVT_PAINT, &sglDialogMenu::OnPaint, this);
    SetLabel(label);
    return true;
}

void sglDialogMenu::SetLabel(wxString const & text)
{
    wxGenericStaticText::SetLabel(text);
    std::size_t const ampersand = text.find('&');
    std::size_t const split = ampersand == wxString::npos ? 0 : ampersand;
    m_before = text.Left(split);
    m_mnemonic = text.Mid(split + 1, 1);
    m_after = text.length() > split + 2 ? text.Mid(split + 2) : wxString();

    m_normal_font = GetFont();
    m_underlined_font = m_normal_font;
    m_underlined_font.SetUnderlined(true);
    wxClientDC dc(this);
    dc.SetFont(m_normal_font);
    m_size_whole = dc.GetTextExtent(text);
    m_size_before = dc.GetTextExtent(m_before);
    m_size_after = dc.GetTextExtent(m_after);
    dc.SetFont(m_underlined_font);
    m_size_mnemonic = dc.GetTextExtent(m_mnemonic);

    InvalidateBestSize();
    SetSize(needed_size());
    Refresh();
}

wxSize sglDialogMenu::needed_size() const
{
    return {m_size_before.x + m_size_mnemonic.x + m_size_after.x + 2 * m_margin_x,
            m_size_whole.y + 2 * m_margin_y};
}

wxSize sglDialogMenu::DoGetBestClientSize() const
{
    return needed_size();
}

void sglDialogMenu::highlight(int on)
{
    if (std::exchange(m_highlight, on) != on)
        Refresh();
}

void sglDialogMenu::menu_dismissed()
{
    if (std::exchange(m_menu_open, 0))
        Refresh();
}

void sglDialogMenu::press()
{
    if (!std::exchange(m_menu_open, 1))
        Refresh();
    wxCommandEvent pressed(wxEVT_BUTTON, GetId());
    pressed.SetEventObject(this);
    GetParent()->ProcessWindowEvent(pressed);
}

void sglDialogMenu::OnLButtonDown(wxMouseEvent &)
{
    press();
}

void sglDialogMenu::OnMouseEnter(wxMouseEvent &)
{
    highlight(1);
}

void sglDialogMenu::OnMouseLeave(wxMouseEvent &)
{
    highlight(0);
}

void sglDialogMenu::OnGainFocus(wxFocusEvent & event)
{
    highlight(1);
    event.Skip();
}

void sglDialogMenu::OnKillFocus(wxFocusEvent & event)
{
    highlight(0);
    event.Skip();
}

void sglDialogMenu::OnKeyDown(wxKeyEvent & event)
{
    switch (event.GetKeyCode()) {
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
    case WXK_SPACE:
    case WXK_DOWN:
        press();
        break;
    case WXK_TAB:
        Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
        break;
    default:
        event.Skip();
    }
}

void sglDialogMenu::OnPaint(wxPaintEvent &)
{
    wxPaintDC dc(this);
    auto const face = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE);
    dc.SetBrush(wxBrush(face));
    dc.SetPen(wxPen(face));
    dc.DrawRectangle(GetClientRect());
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    dc.SetTextForeground(GetForegroundColour());

    int x = m_margin_x;
    dc.SetFont(m_normal_font);
    dc.DrawText(m_before, x, m_margin_y);
    x += m_size_before.x;
    dc.SetFont(m_underlined_font);
    dc.DrawText(m_mnemonic, x, m_margin_y);
    x += m_size_mnemonic.x;
    dc.SetFont(m_normal_font);
    dc.DrawText(m_after, x, m_margin_y);
    if (!m_highlight && !m_menu_open)
        return;

    // The last pixels inside the control.
    int const right = x + m_size_after.x + m_margin_x - 1;
    int const bottom = m_size_whole.y + 2 * m_margin_y - 1;
    wxPen light(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNHIGHLIGHT));
    wxPen dark(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW));
    if (m_menu_open)
        std::swap(light, dark);
    dc.SetPen(light);
    dc.DrawLine(0, 0, right + 1, 0);
    dc.DrawLine(0, 0, 0, bottom + 1);
    dc.SetPen(dark);
    dc.DrawLine(0, bottom, right + 1, bottom);
    dc.DrawLine(right, 0, right, bottom + 1);
}
