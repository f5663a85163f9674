#include "sglBatchFiles.h"

#include "sglApp.h"
#include "sglComboBox.h"
#include "sglResourceString.h"

#include "pages/sglBatchList.h"
#include "wxt/wxtStringConverter.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/xrc/xmlres.h>

wxBEGIN_EVENT_TABLE(sglBatchFiles, sglTranslateDialog)
    EVT_COMBOBOX_CLOSEUP(XRCID("IDC_BATCH_INPUT_FORMAT_COMBO"), sglBatchFiles::OnSelChangeInputFormat)
    EVT_COMBOBOX_CLOSEUP(XRCID("IDC_BATCH_OUTPUT_FORMAT_COMBO"), sglBatchFiles::OnSelChangeOutputFormat)
    EVT_BUTTON(XRCID("IDC_BATCH_OUTPUT_BROWSE_BUTTON"), sglBatchFiles::OnOutputBrowse)
    EVT_BUTTON(XRCID("IDC_BATCH_INPUT_BROWSE_BUTTON"), sglBatchFiles::OnInputBrowse)
    EVT_BUTTON(XRCID("IDC_BATCH_TRANSLATE_BUTTON"), sglBatchFiles::OnBatchTranslate)
    EVT_BUTTON(XRCID("IDC_BATCH_INPUT_RESOURCE_BUTTON"), sglBatchFiles::OnInputResource)
    EVT_BUTTON(XRCID("IDC_BATCH_OUTPUT_RESOURCE_BUTTON"), sglBatchFiles::OnOutputResource)
    EVT_MENU(XRCID("IDM_FILE_OPEN"), sglBatchFiles::OnInputBrowse)
    EVT_MENU(XRCID("IDM_FILE_SAVE_AS"), sglBatchFiles::OnOutputBrowse)
    EVT_BUTTON(XRCID("IDC_BATCH_ADD_BUTTON"), sglBatchFiles::OnAddDetails)
    EVT_BUTTON(XRCID("IDC_BATCH_SAVE_BUTTON"), sglBatchFiles::OnSaveDetails)
    EVT_BUTTON(XRCID("IDC_BATCH_REMOVE_BUTTON"), sglBatchFiles::OnRemoveDetails)
    EVT_LIST_ITEM_SELECTED(XRCID("IDC_BATCH_BATCH_LIST"), sglBatchFiles::OnClickBatchList)
    EVT_LIST_ITEM_DESELECTED(XRCID("IDC_BATCH_BATCH_LIST"), sglBatchFiles::OnClickBatchList)
    EVT_LIST_ITEM_ACTIVATED(XRCID("IDC_BATCH_BATCH_LIST"), sglBatchFiles::OnClickBatchList)
wxEND_EVENT_TABLE()

sglBatchFiles::sglBatchFiles(wxWindow * parent) : sglTranslateDialog(parent)
{
    m_caption = sglResourceString("vmrgrlib", 1268);
}

sglBatchFiles::~sglBatchFiles() = default;

int sglBatchFiles::find_children()
{
    m_input_list = XRCCTRL(*this, "IDC_BATCH_INPUT_FILE_LIST", wxListCtrl);
    m_input_combo = XRCCTRL(*this, "IDC_BATCH_INPUT_FORMAT_COMBO", sglComboBox);
    m_input_resource_button = XRCCTRL(*this, "IDC_BATCH_INPUT_RESOURCE_BUTTON", wxButton);
    m_output_list = XRCCTRL(*this, "IDC_BATCH_OUTPUT_FILE_LIST", wxListCtrl);
    m_output_combo = XRCCTRL(*this, "IDC_BATCH_OUTPUT_FORMAT_COMBO", sglComboBox);
    m_output_resource_button = XRCCTRL(*this, "IDC_BATCH_OUTPUT_RESOURCE_BUTTON", wxButton);
    m_translate_button = XRCCTRL(*this, "IDC_BATCH_TRANSLATE_BUTTON", wxButton);
    m_batch_list = XRCCTRL(*this, "IDC_BATCH_BATCH_LIST", wxListCtrl);
    m_lines = std::make_unique<sglBatchList>(*m_batch_list);
    m_batch_list->Bind(wxEVT_CHAR_HOOK, &sglBatchFiles::OnListKey, this);
    m_add_button = XRCCTRL(*this, "IDC_BATCH_ADD_BUTTON", wxButton);
    m_save_button = XRCCTRL(*this, "IDC_BATCH_SAVE_BUTTON", wxButton);
    m_remove_button = XRCCTRL(*this, "IDC_BATCH_REMOVE_BUTTON", wxButton);
    m_batch_list->SetDropTarget(new sglBatchDropFiles(this));
    sort_button_status();
    return 1;
}

void sglBatchFiles::sort_button_status()
{
    bool const input_ok = m_current_input_row && !m_current_input_row->invalid();
    bool const output_ok = m_current_output_row && !m_current_output_row->invalid();
    m_input_resource_button->Enable(input_ok);
    m_output_resource_button->Enable(output_ok);
    m_add_button->Enable(input_ok && output_ok);
    auto const selected = m_lines->selected();
    // Details of none of them can only take the place of one.
    m_save_button->Enable(input_ok && output_ok && !m_items.empty() &&
                          (selected.size() < 2 || selected == m_shown));
    m_remove_button->Enable(!selected.empty());
    m_translate_button->Enable(!m_items.empty());
}

void sglBatchFiles::sort_and_allow(bool add, bool save)
{
    sort_button_status();
    if (!add)
        m_add_button->Disable();
    if (!save)
        m_save_button->Disable();
}

// The file that the page shows is then no longer the one of the row.
void sglBatchFiles::forget_input()
{
    m_current_input_row.reset();
    sort_button_status();
}

bool sglBatchFiles::has_details() const
{
    return m_current_input_row && !m_current_input_row->invalid() && m_current_output_row &&
           !m_current_output_row->invalid();
}

void sglBatchFiles::OnInputBrowse(wxCommandEvent & event)
{
    if (!ask_about_changes())
        return;
    auto output = std::make_shared<sglRow>();
    if (sglTranslateDialog::OnInputBrowse(event, *output) != wxID_OK)
        return;
    begin_new_details();
    if (m_input_details.nothing_selected()) {
        forget_input();
        return;
    }
    m_current_output_row = std::move(output);
    m_current_input_row = std::make_shared<sglRow>();
    m_current_input_row->initialise(&sglApp::app().input_dlls(), *m_input_combo, *m_input_list, 0);
    sort_and_allow(true, false);
}

void sglBatchFiles::OnOutputBrowse(wxCommandEvent & event)
{
    if (!reduce_to_first())
        return;
    auto output = std::make_shared<sglRow>();
    if (sglTranslateDialog::OnOutputBrowse(event, *output) != wxID_OK || m_output_details.nothing_selected())
        return;
    m_current_output_row = std::move(output);
    note_change(&Changes::files);
    sort_and_allow(true, true);
}

void sglBatchFiles::OnInputResource(wxCommandEvent & event)
{
    // Held here too: the page may get another row while the dialog is open.
    sglRowcoPrf const row = m_current_input_row;
    if (row && sglTranslateDialog::OnInputResource(event, *row, 0) == wxID_OK)
        note_change(&Changes::input_options);
    sort_button_status();
}

void sglBatchFiles::OnOutputResource(wxCommandEvent & event)
{
    sglRowcoPrf const row = m_current_output_row;
    if (row && sglTranslateDialog::OnOutputResource(event, *row) == wxID_OK)
        note_change(&Changes::output_options);
    sort_button_status();
}

void sglBatchFiles::OnSelChangeInputFormat(wxCommandEvent &)
{
    m_input_details.format_closed();
    bool const changes =
        m_current_input_row && m_current_input_row->file_type() != m_input_combo->selected_item();
    if (changes && !reduce_to_first()) {
        m_input_details.show_row(*m_current_input_row);
        return;
    }
    m_input_combo->load_selected();
    m_input_details.set_resource_file();
    if (!m_current_input_row)
        m_current_input_row = std::make_shared<sglRow>();
    sglRowcoPrf const row = m_current_input_row;
    utString const before = row->file_type();
    if (row->update_is_ok(m_input_combo->selected_item(), 1)) {
        row->initialise(&sglApp::app().input_dlls(), *m_input_combo, *m_input_list, 0);
    } else {
        m_input_details.show_row(*row);
    }
    if (row->file_type() != before)
        note_change(&Changes::files);
    sort_button_status();
}

void sglBatchFiles::OnSelChangeOutputFormat(wxCommandEvent &)
{
    m_output_details.format_closed();
    m_output_combo->load_selected();
    if (!m_current_output_row)
        m_current_output_row = std::make_shared<sglRow>();
    sglRowcoPrf const row = m_current_output_row;
    utString const before = row->file_type();
    m_output_details.set_row_details(*row);
    if (row->file_type() != before)
        note_change(&Changes::output_format);
    sort_button_status();
}

int sglBatchFiles::create_details(utString const & input_file)
{
    begin_new_details();
    int failed = 0;
    m_input_details.set_details(input_file, failed);
    if (m_input_details.nothing_selected()) {
        forget_input();
        return 0;
    }
    // Events are handled while a format is loaded, which may change the rows of the page.
    auto output = std::make_shared<sglRow>();
    fill_output_fields(input_file, *output);
    auto input = std::make_shared<sglRow>();
    input->initialise(&sglApp::app().input_dlls(), *m_input_combo, *m_input_list, 0);
    m_current_output_row = std::move(output);
    m_current_input_row = std::move(input);
    return has_details() ? 1 : 0;
}

void sglBatchFiles::handle_dropped_files(wxArrayString const & files)
{
    if (files.empty() || files[0].empty() || !ask_about_changes())
        return;
    utString const file = wxtStringConverter::path_to_ut(files[0]);
    create_details(file);
    sort_and_allow(true, false);
    tell_of_folder(file);
}
