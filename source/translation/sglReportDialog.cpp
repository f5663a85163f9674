#include "sglReportDialog.h"

#include "sglApp.h"
#include "sglClipboard.h"
#include "sglEdit.h"
#include "sglLogFile.h"
#include "sglMessageBox.h"
#include "sglTDEditDisplayer.h"
#include "sglTDOstreamDisplayer.h"

#include "controls/sglSaveDialog.h"
#include "controls/sglShownText.h"
#include "nls/sglHelpKey.h"
#include "sdu/sduServices.h"
#include "sdu/ubStreams.h"
#include "wxt/wxtStringConverter.h"

#include <sstream>
#include <wx/treectrl.h>
#include <wx/wupdlock.h>
#include <wx/xrc/xmlres.h>

namespace {

constexpr char const * domain = "vmrgrlib";

void say_that_there_is_none()
{
    sglMessageBox(domain, 1219, wxOK);
}

} // namespace

// clang-format off
wxBEGIN_EVENT_TABLE(sglReportDialog, sglDialog)
    EVT_INIT_DIALOG(sglReportDialog::OnInitDialog)
    EVT_BUTTON(XRCID("IDC_REPORT_OK"), sglReportDialog::OnReportOk)
    EVT_MENU(XRCID("ID_REPORT_POPUP_SAVE"), sglReportDialog::OnSaveSelected)
    EVT_MENU(XRCID("ID_REPORT_POPUP_SAVE_ALL"), sglReportDialog::OnSaveAll)
    EVT_MENU(XRCID("ID_REPORT_COPY"), sglReportDialog::OnCopySelected)
    EVT_MENU(XRCID("ID_REPORT_COPY_ALL"), sglReportDialog::OnCopyAll)
    EVT_MENU(XRCID("ID_REPORT_COPY_TEXT"), sglReportDialog::OnCopyText)
    EVT_MENU(XRCID("ID_REPORT_SELECT_ALL"), sglReportDialog::OnSelectAll)
    EVT_TREE_SEL_CHANGED(XRCID("IDC_REPORT_TREE"), sglReportDialog::OnSelchangeTree)
wxEND_EVENT_TABLE()
// clang-format on

sglReportDialog::sglReportDialog(wxWindow * parent)
    : sglDialog("DLG_REPORT_DIALOG", domain, parent), m_info(sglApp::app().application_information())
{
    m_report = XRCCTRL(*this, "IDC_REPORT_EDIT", sglEdit);
    m_tree = XRCCTRL(*this, "IDC_REPORT_TREE", wxTreeCtrl);
    SetEscapeId(XRCID("IDC_REPORT_OK"));
    CentreOnParent(wxBOTH);
    sgl_help_with_help_key(*this, "source/dialogs/report.htm");
    m_info->services()->find_service(sdbSDBFILEFACTORY, m_files);
}

void sglReportDialog::OnInitDialog(wxInitDialogEvent & event)
{
    auto const & app = sglApp::app();
    wxTreeItemId const root = m_tree->AddRoot("Root");
    wxTreeItemId first;
    for (int i = 0; i < app.num_translations(); ++i) {
        utString const title =
            sglTranslationDataDisplayer::title(app.translation_details(i), m_files.pointer());
        wxTreeItemId const item = m_tree->AppendItem(root, sgl_shown_text(wxtStringConverter::to_wx(title)));
        if (i == 0)
            first = item;
    }
    m_tree->Expand(root);
    if (first.IsOk())
        m_tree->SelectItem(first);
    m_report->set_context_menu("MB_REPORT_POPUP");
    m_report->editable(1);
    event.Skip();
}

sdbTranslationData const * sglReportDialog::get_selected_data() const
{
    wxTreeItemId const root = m_tree->GetRootItem();
    wxTreeItemId selected = m_tree->GetSelection();
    if (!selected.IsOk() || selected == root)
        return nullptr;
    for (wxTreeItemId above = m_tree->GetItemParent(selected); above != root;
         above = m_tree->GetItemParent(selected))
        selected = above;
    int index = 0;
    wxTreeItemIdValue cookie;
    for (wxTreeItemId item = m_tree->GetFirstChild(root, cookie); item != selected;
         item = m_tree->GetNextChild(root, cookie))
        ++index;
    return sglApp::app().translation_details(index);
}

void sglReportDialog::OnSelchangeTree(wxTreeEvent &)
{
    auto const * const record = get_selected_data();
    if (!record)
        return;
    {
        // A report may have a hundred thousand lines, each of which the control would show by itself.
        wxWindowUpdateLocker const silence(m_report);
        m_report->Clear();
        sglTDEditDisplayer(record, m_info, m_report).display();
    }
    m_report->SetSelection(0, 0);
    m_report->ShowPosition(0);
}

utString sglReportDialog::get_save_file_name(utString const & name)
{
    utString const offered = name + "." + sgl_log_file_extension;
    sglSaveDialog dialog(this, wxString(), wxString(), sgl_shown_text(wxtStringConverter::to_wx(offered)),
                         sgl_log_file_filter(), sgl_log_file_extension, wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    return dialog.ShowModal() == wxID_OK ? dialog.chosen_path() : utString();
}

utString sglReportDialog::text_of(sdbTranslationData const & record) const
{
    std::ostringstream stream;
    sglTDOstreamDisplayer(&record, m_info, &stream).display();
    return stream.str();
}

utString sglReportDialog::text_of_all() const
{
    utString text;
    for (int i = 0; i < sglApp::app().num_translations(); ++i)
        text += text_of(*sglApp::app().translation_details(i)) + "\n\n";
    return text;
}

void sglReportDialog::save(utString const & file, utString const & text) const
{
    ubOFStream(file) << text.view();
    sglMessageBox(domain, 1131, wxOK, file);
}

void sglReportDialog::copy(utString const & text) const
{
    if (sglClipboardText(text).copy_to_clipboard() != sglClipboardStatus::copied)
        sglMessageBox(domain, 1220, wxOK | wxICON_EXCLAMATION);
}

void sglReportDialog::OnSaveSelected(wxCommandEvent &)
{
    auto const * const record = get_selected_data();
    if (!record) {
        say_that_there_is_none();
        return;
    }
    utString const file = get_save_file_name(record->input_file(0));
    if (!file.empty())
        save(file, text_of(*record));
}

void sglReportDialog::OnSaveAll(wxCommandEvent &)
{
    if (sglApp::app().num_translations() == 0) {
        say_that_there_is_none();
        return;
    }
    auto const first = m_files.pointer()->make_file(sglApp::app().translation_details(0)->input_file(0));
    utString const file = get_save_file_name(first.path_element(sdbPathDirectory) + "translation_details");
    if (!file.empty())
        save(file, text_of_all());
}

void sglReportDialog::OnCopySelected(wxCommandEvent &)
{
    if (auto const * const record = get_selected_data())
        copy(text_of(*record));
    else
        say_that_there_is_none();
}

void sglReportDialog::OnCopyAll(wxCommandEvent &)
{
    if (sglApp::app().num_translations() != 0)
        copy(text_of_all());
    else
        say_that_there_is_none();
}

void sglReportDialog::OnCopyText(wxCommandEvent & event)
{
    wxCommandEvent copy(event);
    copy.SetId(wxID_COPY);
    m_report->ProcessWindowEvent(copy);
}

void sglReportDialog::OnSelectAll(wxCommandEvent &)
{
    m_report->SetFocus();
    m_report->SetSelection(-1, -1);
}

void sglReportDialog::OnReportOk(wxCommandEvent &)
{
    EndModal(wxID_OK);
}
