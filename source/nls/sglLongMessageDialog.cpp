#include "nls/sglLongMessageDialog.h"

#include <algorithm>
#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/textctrl.h>

namespace {

constexpr int border = 12;

/// What a message box makes of its style.
long with_buttons(long style)
{
    return style & (wxYES_NO | wxOK) ? style : style | wxOK;
}

wxSize pane_size(wxWindow const & window)
{
    constexpr int columns = 80, lines = 25;
    return wxSize(window.GetCharWidth() * columns, window.GetCharHeight() * lines);
}

} // namespace

sglLongMessageDialog::sglLongMessageDialog(wxWindow * parent, wxString const & text, wxString const & title,
                                           long style)
    : wxDialog(parent, wxID_ANY, title, wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_style(with_buttons(style)), m_text(new wxTextCtrl(this, wxID_ANY, text, wxDefaultPosition,
                                                          pane_size(*this), wxTE_MULTILINE | wxTE_READONLY))
{
    auto * const upper = new wxBoxSizer(wxHORIZONTAL);
    if (style & wxICON_MASK) {
        auto const icon = wxArtProvider::GetMessageBoxIcon(static_cast<int>(style & wxICON_MASK));
        auto * const picture = new wxStaticBitmap(this, wxID_ANY, icon);
        upper->Add(picture, wxSizerFlags().Border(wxRIGHT, border));
    }
    upper->Add(m_text, wxSizerFlags(1).Expand());
    auto * const whole = new wxBoxSizer(wxVERTICAL);
    whole->Add(upper, wxSizerFlags(1).Expand().Border(wxALL, border));
    SetSizer(whole);
    add_buttons();
    whole->SetSizeHints(this);
}

void sglLongMessageDialog::add_buttons()
{
    long const wanted = m_style & (wxYES_NO | wxOK | wxCANCEL | wxNO_DEFAULT);
    auto * const buttons = CreateStdDialogButtonSizer(wanted & wxYES_NO ? wanted & ~wxOK : wanted);
    GetSizer()->Add(buttons, wxSizerFlags().Expand().Border(wxBOTTOM | wxRIGHT, border));
    SetAffirmativeId(m_style & wxYES_NO ? wxID_YES : wxID_OK);
    SetEscapeId(m_style & wxCANCEL ? wxID_CANCEL : m_style & wxYES_NO ? wxID_NO : wxID_OK);
    Bind(wxEVT_BUTTON, [this](wxCommandEvent & event) { EndModal(event.GetId()); });
    int const first = m_style & wxYES_NO ? (m_style & wxNO_DEFAULT ? wxID_NO : wxID_YES) : wxID_OK;
    if (auto * const button = FindWindow(first))
        button->SetFocus();
}

wxString sglLongMessageDialog::message() const
{
    return m_text->GetValue();
}
