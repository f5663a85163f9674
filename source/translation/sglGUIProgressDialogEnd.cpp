// The end of a translation: its record, what the user is told, and what the user may do then.

#include "sglGUIProgressDialog.h"

#include "sglApp.h"
#include "sglEdit.h"
#include "sglLogFile.h"
#include "sglMessageBox.h"
#include "sglResourceString.h"
#include "sglStreamText.h"
#include "sglTDOstreamDisplayer.h"
#include "sglTranslation.h"

#include "controls/sglSaveDialog.h"
#include "nls/sglShownMessage.h"
#include "sdu/ubStreams.h"
#include "wxt/wxtStringConverter.h"

#include <wx/button.h>
#include <wx/msgdlg.h>
#include <wx/notebook.h>
#include <wx/xrc/xmlres.h>

namespace {

constexpr char const * domain = "vmrgrlib";
constexpr int fatal_end = 9; // the modal result after a fatal error

} // namespace

wxDEFINE_EVENT(sglEVT_TRANSLATION_ENDED, wxCommandEvent);

// clang-format off
wxBEGIN_EVENT_TABLE(sglGUIProgressDialog, sglProgressDialogBase)
    EVT_BUTTON(XRCID("IDC_PROGRESS_DETAILS"), sglGUIProgressDialog::OnDetails)
    EVT_BUTTON(XRCID("IDC_PROGRESS_CANCEL"), sglGUIProgressDialog::OnCancel)
    EVT_BUTTON(XRCID("IDC_PROGRESS_OK"), sglGUIProgressDialog::OnOK)
    EVT_COMMAND(wxID_ANY, sglEVT_TRANSLATION_ENDED, sglGUIProgressDialog::OnUserMessage)
    EVT_MENU(XRCID("IDM_EDIT_COPY"), sglGUIProgressDialog::OnCopy)
    EVT_MENU(XRCID("ID_EDIT_SELECT_ALL"), sglGUIProgressDialog::OnSelectAll)
    EVT_MENU(XRCID("IDM_SAVE_DETAILS"), sglGUIProgressDialog::OnSaveDetails)
    EVT_CLOSE(sglGUIProgressDialog::OnClose)
wxEND_EVENT_TABLE()
// clang-format on

sdbTranslationData & sglGUIProgressDialog::start_record(sdbTranslationType type)
{
    m_unregistered = std::make_unique<sdbTranslationData>();
    m_record = m_unregistered.get();
    m_record->set_type(type);
    return *m_record;
}

void sglGUIProgressDialog::start_translation_data(sglTranslation const * translation)
{
    int const inputs = translation->num_input_files();
    start_record(inputs < 2 ? sdbTranslationSingle : sdbTranslationMerge);
    for (int i = 0; i < inputs; ++i) {
        m_record->set_input_file(translation->input_file(i));
        m_record->set_input_format(translation->input_format(i));
        m_record->set_input_resource_table(translation->input_resource_table(i));
    }
    m_record->set_output_file(translation->output_file(0));
    m_record->set_output_format(translation->output_format(0));
    m_record->set_output_resource_table(translation->output_resource_table(0));
}

void sglGUIProgressDialog::finish_translation_data(sdbProgressFinish status)
{
    bool const cancelled = status == sdbProgressCancelled;
    m_record->set_translation_status(status);
    m_record->set_output_messages(cancelled ? utString() : sgl_record_text(output_text()));
    m_record->set_error_messages(cancelled ? utString() : sgl_record_text(error_text()));
    auto const details = channel()->current_translation_details();
    m_record->set_verdict(details.verdict());
    m_record->set_findings(details.findings());
    register_record();
}

void sglGUIProgressDialog::register_record()
{
    if (m_unregistered)
        sglApp::app().register_translation(utPtrClaim, m_unregistered.release());
}

void sglGUIProgressDialog::end_with(sdbProgressFinish outcome, utString const & text)
{
    wxCommandEvent event(sglEVT_TRANSLATION_ENDED);
    event.SetInt(outcome);
    event.SetString(wxtStringConverter::to_wx(text));
    ProcessEvent(event);
}

void sglGUIProgressDialog::translation_ended_ok()
{
    end_with(sdbProgressCompleted);
}

void sglGUIProgressDialog::translation_cancelled()
{
    end_with(sdbProgressCancelled);
}

void sglGUIProgressDialog::translation_error(utString const & text)
{
    end_with(sdbProgressFailed, text);
}

void sglGUIProgressDialog::OnUserMessage(wxCommandEvent & event)
{
    auto const outcome = static_cast<sdbProgressFinish>(event.GetInt());
    finish_translation_data(outcome);
    if (outcome == sdbProgressCompleted)
        OnEndOk();
    else if (outcome == sdbProgressCancelled)
        OnClosing();
    else
        OnError(wxtStringConverter::to_ut(event.GetString()));
}

void sglGUIProgressDialog::OnEndOk()
{
    ensure_visible();
    if (channel()->current_translation_details().num_failed() != 0) {
        sgl_show_message(this, sglResourceString(domain, 1128), wxICON_EXCLAMATION);
        ShowErrors();
    } else {
        utString message = m_success_message;
        if (m_error_pane->IsModified()) {
            message = sglResourceString(domain, 1129);
            ShowErrors();
        }
        if (message.empty())
            EndModal(wxID_OK);
        else
            sgl_show_message(this, message, wxICON_INFORMATION);
    }
    activateOKbutton();
}

void sglGUIProgressDialog::OnClosing()
{
    ensure_visible();
    clear_tabs();
    sgl_show_message(this, sglResourceString(domain, 1127), wxICON_INFORMATION);
    EndModal(wxID_CANCEL);
}

void sglGUIProgressDialog::OnError(utString const & text)
{
    ensure_visible();
    ShowErrors();
    set_ended_badly();
    sgl_show_message(this, text, wxICON_HAND);
    activateOKbutton();
}

void sglGUIProgressDialog::OnDetails(wxCommandEvent &)
{
    if (m_details_shown)
        hide_details();
    else
        show_details();
    m_details_shown = !m_details_shown;
}

void sglGUIProgressDialog::OnCancel(wxCommandEvent &)
{
    sglProgressDialogBase::OnCancel();
}

void sglGUIProgressDialog::OnOK(wxCommandEvent &)
{
    EndModal(ended_well() ? static_cast<int>(wxID_OK) : fatal_end);
}

void sglGUIProgressDialog::OnClose(wxCloseEvent & event)
{
    if (!m_ok_button->IsEnabled() && event.CanVeto())
        event.Veto();
}

void sglGUIProgressDialog::OnCopy(wxCommandEvent & event)
{
    wxWindow * const focus = wxWindow::FindFocus();
    if (!focus)
        return;
    wxCommandEvent copy(event);
    copy.SetId(wxID_COPY);
    focus->ProcessWindowEvent(copy);
}

void sglGUIProgressDialog::OnSelectAll(wxCommandEvent &)
{
    auto * const text = dynamic_cast<wxTextCtrl *>(m_tabs->GetCurrentPage());
    if (!text)
        return;
    text->SetFocus();
    text->SetSelection(-1, -1);
}

void sglGUIProgressDialog::OnSaveDetails(wxCommandEvent &)
{
    save_details();
}

void sglGUIProgressDialog::save_details()
{
    sglSaveDialog dialog(this, wxString(), wxString(), wxString(), sgl_log_file_filter(),
                         sgl_log_file_extension, wxFD_SAVE);
    if (dialog.ShowModal() != wxID_OK)
        return;
    utString const path = dialog.chosen_path();
    ubOFStream stream(path);
    sglTDOstreamDisplayer(m_record, m_info, &stream).display();
    sglMessageBox(domain, 1131, wxOK, path);
}
