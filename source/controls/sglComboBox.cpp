#include "sglComboBox.h"

#include "sglApp.h"
#include "sglListViewComboPopup.h"
#include "sglMessageBox.h"
#include "sglNlsHelp.h"
#include "sglResourceString.h"

#include "wxt/wxtApStringConverter.h"
#include "wxt/wxtStringConverter.h"

namespace {

utString & unknown_text()
{
    static utString text = utString::make_invalid();
    return text;
}

wxString unknown_shown()
{
    return wxtStringConverter::to_wx(unknown_format());
}

bool load_and_tell(sdbTranslatorInfo const & info)
{
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    info.load(status);
    if (!status.ok() && status.files_failed_to_load())
        sgl_show_error_text(
            getNlsHelp()->gsprintf("vmrgrlib", "Error : unable to load %s\n", info.file_ut()));
    return status.ok();
}

} // namespace

wxIMPLEMENT_DYNAMIC_CLASS(sglComboBox, wxComboCtrl);

wxBEGIN_EVENT_TABLE(sglComboBox, wxComboCtrl)
    EVT_COMBOBOX_CLOSEUP(wxID_ANY, sglComboBox::OnCloseUp)
wxEND_EVENT_TABLE()

utString unknown_format()
{
    if (unknown_text().invalid())
        unknown_text() = sglResourceString("vmrgrlib", 1094);
    return unknown_text();
}

void sglComboBox::set_unknown_format(utString const & text)
{
    unknown_text() = text;
}

int sglComboBox::create(wxWindow * parent, int id, wxString const & value, wxPoint const & position,
                        wxSize const & size, long style, wxValidator const & validator, wxString const & name)
{
    if (!wxComboCtrl::Create(parent, id, value, position, size, style, validator, name))
        return 0;
    // The list needs a window that takes the focus.
    UseAltPopupWindow(true);
    m_popup = new sglListViewComboPopup;
    SetPopupControl(m_popup);
    // For the Tab key: the toolkit expects a text field in the box that takes the focus in its place.
    SetCanFocus(true);
    return 1;
}

int sglComboBox::Append(wxString const & text)
{
    return m_popup->add_string(wxtStringConverter::to_ut(text));
}

int sglComboBox::FindString(wxString const & text) const
{
    return m_popup->find(text);
}

int sglComboBox::GetCurrentSelection() const
{
    return m_popup->value();
}

wxString sglComboBox::GetStringSelection() const
{
    return m_popup ? m_popup->GetStringValue() : wxString();
}

void sglComboBox::SetStringSelection(wxString const & text)
{
    // The toolkit hands on only a text that differs from the one shown.
    m_popup->SetStringValue(text);
    SetValue(text);
}

void sglComboBox::Clear()
{
    m_popup->remove_all();
}

void sglComboBox::fill(utStringcoPageArr const & names)
{
    Clear();
    for (auto const & name : names)
        m_popup->add_string(name);
}

void sglComboBox::check_and_select_unknown()
{
    if (m_popup->value() == -1)
        add_and_select_unknown();
}

void sglComboBox::add_and_select_unknown()
{
    wxString const text = unknown_shown();
    if (m_popup->find(text) < 0)
        m_popup->insert_first(text);
    SetStringSelection(text);
}

void sglComboBox::delete_unknown()
{
    m_popup->remove_row(m_popup->find(unknown_shown()));
}

int sglComboBox::select_and_load(sdbTranslatorInfo const * info)
{
    add_and_select_unknown();
    if (!info)
        return 1;
    utString const loading = getNlsHelp()->gsprintf("vmrgrlib", "Loading DLL...");
    m_popup->add_string(loading);
    wxString const loading_shown = wxtStringConverter::to_wx(loading);
    SetStringSelection(loading_shown);
    while (wxTheApp->Pending())
        wxTheApp->Dispatch();

    bool const loaded = load_and_tell(*info);
    // By its text: what was handled meanwhile may have changed the rows.
    m_popup->remove_row(m_popup->find(loading_shown));
    if (loaded) {
        SetStringSelection(wxtApStringConverter::to_wx(info->format_name().string()));
        delete_unknown();
    } else {
        add_and_select_unknown();
    }
    return loaded ? 1 : 0;
}

int sglComboBox::load_selected()
{
    auto const * const info = sglApp::app().input_dlls().translator_for_format(selected_item());
    return info ? select_and_load(info) : 0;
}

utString sglComboBox::selected_item() const
{
    return wxtStringConverter::to_ut(GetStringSelection());
}

utString sglComboBox::all_files_filter() const
{
    return sglResourceString("vmrgrlib", 1016);
}

void sglComboBox::ShowPopup()
{
    SetPopupMaxHeight((m_popup->GetItemCount() + 2) * GetCharHeight());
    if (!m_hiding) {
        delete_unknown();
        SetText(wxString());
    }
    wxComboCtrl::ShowPopup();
    // Only now has the list the height in which the row is to be seen.
    m_popup->show_value();
}

void sglComboBox::HidePopup(bool)
{
    // Hiding the window takes the focus from it, on which the toolkit asks to hide it once more.
    if (!IsPopupWindowState(Visible) || m_window_hiding)
        return;
    m_hiding = 1;
    m_window_hiding = true;
    check_and_select_unknown();
    wxComboCtrl::HidePopup(true);
    m_window_hiding = false;
    m_hiding = 0;
}

// The one place that every close comes to: a click beside the list closes it without HidePopup.
void sglComboBox::OnCloseUp(wxCommandEvent & event)
{
    m_hiding = 1;
    m_window_hiding = false;
    check_and_select_unknown();
    SetValue(m_popup->GetStringValue());
    wxCommandEvent chosen(wxEVT_COMBOBOX, GetId());
    chosen.SetEventObject(this);
    chosen.SetInt(m_popup->value());
    chosen.SetString(GetValue());
    ProcessWindowEvent(chosen);
    m_hiding = 0;
    event.Skip();
}
