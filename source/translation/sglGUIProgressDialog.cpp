// The dialog while the translation runs; its end is in sglGUIProgressDialogEnd.cpp.

#include "sglGUIProgressDialog.h"

#include "sglCEditDisplayer.h"
#include "sglEdit.h"
#include "sglResourceString.h"

#include "controls/sglShownText.h"
#include "nls/sglHelpKey.h"
#include "wxt/wxtStringConverter.h"

#include <climits>
#include <wx/button.h>
#include <wx/gauge.h>
#include <wx/notebook.h>
#include <wx/statline.h>
#include <wx/stattext.h>
#include <wx/xrc/xmlres.h>

namespace {

constexpr char const * domain = "vmrgrlib";
constexpr int output_page = 0;
constexpr int error_page = 1;

wxString resource_text(unsigned int id)
{
    return wxtStringConverter::to_wx(sglResourceString(domain, id));
}

} // namespace

sglGUIProgressDialog::sglGUIProgressDialog(vmrabsAppInfo const * info, wxWindow * parent,
                                           s2sThreadComm * channel)
    : sglProgressDialogBase(parent, channel, "DLG_PROGRESS"),
      m_success_message(sglResourceString(domain, 1121)),
      m_details_closed_label(sglResourceString(domain, 1124)),
      m_details_open_label(sglResourceString(domain, 1123)), m_info(info)
{
    find_controls();
    SetWindowStyleFlag(GetWindowStyleFlag() | wxMINIMIZE_BOX);
    SetEscapeId(XRCID("IDC_PROGRESS_CANCEL"));
    // The height without the details is less than what the layout asks for.
    SetMinSize(wxSize(GetMinSize().x, wxDefaultCoord));
    sgl_help_with_help_key(*this, "source/dialogs/progress.htm", [this] { return m_ok_button->IsEnabled(); });
}

sglGUIProgressDialog::~sglGUIProgressDialog() = default;

void sglGUIProgressDialog::find_controls()
{
    m_operation_label = XRCCTRL(*this, "IDC_PROGRESS_READ_WRITE", wxStaticText);
    m_file_label = XRCCTRL(*this, "IDC_PROGRESS_FILE_NAME", wxStaticText);
    m_gauge = XRCCTRL(*this, "IDC_PROGRESS_PROGRESS", wxGauge);
    m_details_button = XRCCTRL(*this, "IDC_PROGRESS_DETAILS", wxButton);
    m_tabs = XRCCTRL(*this, "IDC_PROGRESS_TAB", wxNotebook);
    m_output_pane = XRCCTRL(*this, "IDC_PROGRESS_OUTPUT", sglEdit);
    m_error_pane = XRCCTRL(*this, "IDC_PROGRESS_ERROR", sglEdit);
    m_ok_button = XRCCTRL(*this, "IDC_PROGRESS_OK", wxButton);
    m_separator = XRCCTRL(*this, "IDC_PROGRESS_HR", wxStaticLine);
    m_cancel_button = XRCCTRL(*this, "IDC_PROGRESS_CANCEL", wxButton);
}

vmrnlsDisplayer * sglGUIProgressDialog::output_display()
{
    return new sglCEditDisplayer(*m_output_pane);
}

vmrnlsDisplayer * sglGUIProgressDialog::error_display()
{
    return new sglCEditDisplayer(*m_error_pane);
}

int sglGUIProgressDialog::begin(sglTranslation const * translation)
{
    start_translation_data(translation);
    OnInitDialog();
    return sglProgressDialogBase::begin(translation);
}

int sglGUIProgressDialog::OnInitDialog()
{
    constexpr unsigned long no_limit = INT_MAX - 1;

    m_tabs->SetPageText(output_page, resource_text(1125));
    m_tabs->SetPageText(error_page, resource_text(1126));
    m_tabs->SetSelection(output_page);
    deactivateOKbutton();
    m_full_height = GetRect().height;
    m_short_height = m_separator->GetRect().y - GetRect().y;
    CentreOnParent(wxBOTH);
    show_details();
    m_details_shown = 1;
    for (auto * const pane : {m_output_pane, m_error_pane}) {
        pane->SetMaxLength(no_limit);
        pane->set_context_menu("MB_PROGRESS_POPUP");
    }
    if (!m_first_file.empty())
        show_file(m_first_file);
    m_gauge->SetRange(100);
    Unlock();
    return 1;
}

int sglGUIProgressDialog::set_gauge(int value)
{
    int const before = m_gauge->GetValue();
    m_gauge->SetValue(value);
    return value > before;
}

int sglGUIProgressDialog::progress(int percent)
{
    return set_gauge(percent);
}

void sglGUIProgressDialog::fileLabel(utString const & file)
{
    if (m_first_file.empty())
        m_first_file = file;
    show_file(file);
}

void sglGUIProgressDialog::show_file(utString const & file)
{
    wxString const text = sgl_shown_text(wxtStringConverter::to_wx(file));
    // A tooltip that is set anew on every tick would never stay on the screen.
    if (text == m_file_label->GetLabelText())
        return;
    m_file_label->SetLabelText(text);
    m_file_label->SetToolTip(text);
}

void sglGUIProgressDialog::operationLabel(utString const & label)
{
    m_operation_label->SetLabelText(wxtStringConverter::to_wx(label));
}

void sglGUIProgressDialog::reset()
{
    clear_cancelled();
    operationLabel(sglResourceString(domain, 1122));
    deactivateOKbutton();
    m_output_pane->Clear();
    m_output_pane->editable(0);
    m_error_pane->editable(0);
}

void sglGUIProgressDialog::activateOKbutton()
{
    m_cancel_button->Disable();
    m_ok_button->Enable();
    m_output_pane->editable(1);
    m_error_pane->editable(1);
    m_ok_button->SetFocus();
}

void sglGUIProgressDialog::deactivateOKbutton()
{
    m_ok_button->Disable();
    m_cancel_button->Enable();
}

void sglGUIProgressDialog::set_height(int height)
{
    SetSize(wxDefaultCoord, wxDefaultCoord, wxDefaultCoord, height, wxSIZE_AUTO);
}

void sglGUIProgressDialog::show_details()
{
    set_height(m_full_height);
    m_tabs->Enable();
    m_details_button->SetLabel(wxtStringConverter::to_wx(m_details_open_label));
}

void sglGUIProgressDialog::hide_details()
{
    set_height(m_short_height);
    m_tabs->Disable(); // out of sight, and so out of reach of the keyboard
    m_details_button->SetLabel(wxtStringConverter::to_wx(m_details_closed_label));
}

void sglGUIProgressDialog::clear_tabs()
{
    // What is still on its way belongs to what is cleared.
    for (auto * const pane : {m_output_pane, m_error_pane}) {
        pane->discard_waiting_text();
        pane->Clear();
    }
}

void sglGUIProgressDialog::ensure_visible()
{
    if (GetParent())
        GetParent()->Show();
}

void sglGUIProgressDialog::ShowErrors()
{
    if (!m_details_shown) {
        show_details();
        m_details_shown = 1;
    }
    // The notebook shows the pane of the page that is selected and hides the other; hidden by hand, the other
    // would lose its tab.
    m_tabs->SetSelection(m_error_pane->IsModified() ? error_page : output_page);
}

utString sglGUIProgressDialog::output_text()
{
    return m_output_pane->all_text_with_waiting();
}

utString sglGUIProgressDialog::error_text()
{
    return m_error_pane->all_text_with_waiting();
}
