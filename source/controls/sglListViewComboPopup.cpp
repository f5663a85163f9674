#include "sglListViewComboPopup.h"

#include "wxt/wxtStringConverter.h"

wxBEGIN_EVENT_TABLE(sglListViewComboPopup, wxListView)
    EVT_MOTION(sglListViewComboPopup::OnMouseMove)
    EVT_LEFT_DOWN(sglListViewComboPopup::OnMouseClick)
    EVT_KEY_DOWN(sglListViewComboPopup::OnKeyDown)
wxEND_EVENT_TABLE()

void sglListViewComboPopup::Init()
{
    m_value = -1;
    m_hover_row = -1;
}

bool sglListViewComboPopup::Create(wxWindow * parent)
{
    constexpr long style =
        wxLC_REPORT | wxLC_NO_HEADER | wxLC_SINGLE_SEL | wxLC_SORT_ASCENDING | wxSIMPLE_BORDER;
    if (!wxListView::Create(parent, 1, wxPoint(0, 0), wxDefaultSize, style))
        return false;
    InsertColumn(0, wxString());
    return true;
}

int sglListViewComboPopup::find(wxString const & text) const
{
    return static_cast<int>(const_cast<sglListViewComboPopup *>(this)->wxListView::FindItem(-1, text));
}

void sglListViewComboPopup::SetStringValue(wxString const & text)
{
    int const row = find(text);
    if (row < 0 || row >= GetItemCount())
        return;
    SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    m_value = row;
}

wxString sglListViewComboPopup::GetStringValue() const
{
    return m_value >= 0 && m_value < GetItemCount() ? GetItemText(m_value) : wxString();
}

wxSize sglListViewComboPopup::GetAdjustedSize(int min_width, int pref_height, int max_height)
{
    return wxSize(min_width, wxMin(pref_height, max_height));
}

int sglListViewComboPopup::add_string(utString const & text)
{
    // The toolkit's list orders its rows on some platforms only.
    wxString const added = wxtStringConverter::to_wx(text);
    int row = 0;
    while (row < GetItemCount() && GetItemText(row).CmpNoCase(added) <= 0)
        ++row;
    return insert(row, added);
}

int sglListViewComboPopup::insert_first(wxString const & text)
{
    return insert(0, text);
}

int sglListViewComboPopup::insert(int row, wxString const & text)
{
    int const inserted = static_cast<int>(InsertItem(row, text));
    if (m_value >= inserted)
        ++m_value;
    SetColumnWidth(0, wxLIST_AUTOSIZE);
    return inserted;
}

void sglListViewComboPopup::remove_row(int row)
{
    if (row < 0 || row >= GetItemCount())
        return;
    DeleteItem(row);
    if (m_value == row)
        m_value = -1;
    else if (m_value > row)
        --m_value;
    m_hover_row = -1;
}

void sglListViewComboPopup::remove_all()
{
    DeleteAllItems();
    Init();
}

void sglListViewComboPopup::show_value()
{
    m_hover_row = -1;
    if (m_value >= 0 && m_value < GetItemCount()) {
        SetItemState(m_value, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
        EnsureVisible(m_value);
    } else if (long const selected = GetFirstSelected(); selected >= 0) {
        SetItemState(selected, 0, wxLIST_STATE_SELECTED);
    }
}

void sglListViewComboPopup::OnMouseMove(wxMouseEvent & event)
{
    int flags = 0;
    long const row = HitTest(event.GetPosition(), flags);
    if (row >= 0) {
        SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
        m_hover_row = static_cast<int>(row);
    }
    event.Skip();
}

void sglListViewComboPopup::OnMouseClick(wxMouseEvent & event)
{
    // The list may have opened under a mouse that has not moved since.
    int flags = 0;
    if (long const row = HitTest(event.GetPosition(), flags); row >= 0)
        m_hover_row = static_cast<int>(row);
    if (m_hover_row >= 0)
        m_value = m_hover_row;
    Dismiss();
}

void sglListViewComboPopup::OnKeyDown(wxKeyEvent & event)
{
    switch (event.GetKeyCode()) {
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
        m_value = static_cast<int>(GetFirstSelected());
        Dismiss();
        break;
    case WXK_ESCAPE:
        Dismiss();
        break;
    default:
        event.Skip();
    }
}
