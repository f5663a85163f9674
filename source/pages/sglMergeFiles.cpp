#include "sglMergeFiles.h"

#include "sglApp.h"
#include "sglComboBox.h"
#include "sglMessageBox.h"
#include "sglResourceString.h"

#include "pages/sglListCell.h"
#include "pages/sglOccupiedPage.h"
#include "wxt/wxtStringConverter.h"

#include <utility>
#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/xrc/xmlres.h>

wxBEGIN_EVENT_TABLE(sglMergeFiles, sglTranslateDialog)
    EVT_COMBOBOX_CLOSEUP(XRCID("IDC_MULTIPLE_INPUT_FORMAT"), sglMergeFiles::OnSelChangeInputFormat)
    EVT_COMBOBOX_CLOSEUP(XRCID("IDC_MULTIPLE_OUTPUT_FORMAT"), sglMergeFiles::OnSelChangeOutputFormat)
    EVT_LIST_ITEM_SELECTED(XRCID("IDC_MULTIPLE_INPUT_FILE_LIST"), sglMergeFiles::OnClickInputList)
    EVT_LIST_ITEM_DESELECTED(XRCID("IDC_MULTIPLE_INPUT_FILE_LIST"), sglMergeFiles::OnClickInputList)
    EVT_LIST_ITEM_ACTIVATED(XRCID("IDC_MULTIPLE_INPUT_FILE_LIST"), sglMergeFiles::OnDblClickOptionsList)
    EVT_BUTTON(XRCID("IDC_MULTIPLE_INPUT_BROWSE"), sglMergeFiles::OnInputBrowse)
    EVT_BUTTON(XRCID("IDC_MULTIPLE_ADD"), sglMergeFiles::OnAddFile)
    EVT_BUTTON(XRCID("IDC_MULTIPLE_OUTPUT_BROWSE"), sglMergeFiles::OnOutputBrowse)
    EVT_BUTTON(XRCID("IDC_MULTIPLE_REMOVE"), sglMergeFiles::OnRemove)
    EVT_BUTTON(XRCID("IDC_MULTIPLE_UP"), sglMergeFiles::OnMoveUp)
    EVT_BUTTON(XRCID("IDC_MULTIPLE_DOWN"), sglMergeFiles::OnMoveDown)
    EVT_BUTTON(XRCID("IDC_MULTIPLE_TRANSLATE"), sglMergeFiles::OnTranslate)
    EVT_BUTTON(XRCID("IDC_MULTIPLE_INPUT_RESOURCES"), sglMergeFiles::OnInputResource)
    EVT_BUTTON(XRCID("IDC_MULTIPLE_OUTPUT_RESOURCES"), sglMergeFiles::OnOutputResource)
    EVT_MENU(XRCID("IDM_FILE_OPEN"), sglMergeFiles::OnInputBrowse)
    EVT_MENU(XRCID("IDM_FILE_SAVE_AS"), sglMergeFiles::OnOutputBrowse)
wxEND_EVENT_TABLE()

sglMergeFiles::sglMergeFiles(wxWindow * parent)
    : sglTranslateDialog(parent), m_file_list_details(this, m_info)
{
    m_caption = sglResourceString("vmrgrlib", 1238);
}

int sglMergeFiles::find_children()
{
    m_input_list = XRCCTRL(*this, "IDC_MULTIPLE_INPUT_FILENAME", wxListCtrl);
    m_input_combo = XRCCTRL(*this, "IDC_MULTIPLE_INPUT_FORMAT", sglComboBox);
    m_input_resource_button = XRCCTRL(*this, "IDC_MULTIPLE_INPUT_RESOURCES", wxButton);
    m_output_list = XRCCTRL(*this, "IDC_MULTIPLE_OUTPUT_FILENAME", wxListCtrl);
    m_output_combo = XRCCTRL(*this, "IDC_MULTIPLE_OUTPUT_FORMAT", sglComboBox);
    m_output_resource_button = XRCCTRL(*this, "IDC_MULTIPLE_OUTPUT_RESOURCES", wxButton);
    m_translate_button = XRCCTRL(*this, "IDC_MULTIPLE_TRANSLATE", wxButton);
    m_file_list = XRCCTRL(*this, "IDC_MULTIPLE_INPUT_FILE_LIST", wxListCtrl);
    m_add_button = XRCCTRL(*this, "IDC_MULTIPLE_ADD", wxButton);
    m_remove_button = XRCCTRL(*this, "IDC_MULTIPLE_REMOVE", wxButton);
    m_up_button = XRCCTRL(*this, "IDC_MULTIPLE_UP", wxButton);
    m_down_button = XRCCTRL(*this, "IDC_MULTIPLE_DOWN", wxButton);
    m_file_list_details.set_list_control(m_file_list);
    m_file_list_details.set_combo_box(m_input_combo);
    m_file_list_details.set_resource_button(m_input_resource_button);
    m_file_list_details.set_type(sglFileDialog::input);
    m_file_list_details.initialise();
    m_input_details.allow_multiple_files(1);
    m_add_button->Disable();
    enable_line_buttons();
    return 1;
}

void sglMergeFiles::EnableAddButton()
{
    auto const file = sgl_list_cell(*m_input_list, 0, 0);
    auto const resource = sgl_list_cell(*m_input_list, 0, 1);
    m_add_button->Enable(file && !file->empty() && resource != m_file_list_details.unknown_string());
}

void sglMergeFiles::enableTranslateButton()
{
    auto const file = sgl_list_cell(*m_file_list, 0, 0);
    sglTranslateDialog::enableTranslateButton(file && !file->empty());
}

int sglMergeFiles::selected_line() const
{
    return static_cast<int>(m_file_list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED));
}

void sglMergeFiles::OnInputBrowse(wxCommandEvent & event)
{
    if (sglTranslateDialog::OnInputBrowse(event, m_output_row) != wxID_OK)
        return;
    if (m_input_details.num_selected() == 1)
        EnableAddButton();
    else
        add_multiple_files(m_input_details.selected_files());
    enableTranslateButton();
}

void sglMergeFiles::OnOutputBrowse(wxCommandEvent & event)
{
    sglTranslateDialog::OnOutputBrowse(event, m_output_row);
    enableTranslateButton();
}

void sglMergeFiles::OnOutputResource(wxCommandEvent & event)
{
    sglTranslateDialog::OnOutputResource(event, m_output_row);
}

// The toolkit's search takes names for the same that differ in case only; they are two files here.
bool sglMergeFiles::is_in_list(wxString const & name) const
{
    auto const next = [&](long from) { return m_file_list->FindItem(from, name, false); };
    for (long line = next(-1); line != wxNOT_FOUND; line = next(line + 1))
        if (m_file_list->GetItemText(line) == name)
            return true;
    return false;
}

// Remove turns the button for it on, so that there may be nothing to add.
bool sglMergeFiles::add_staged_file()
{
    auto const file = sgl_list_cell(*m_input_list, 0, 0);
    if (!file || file->empty())
        return false;
    wxString const name = wxtStringConverter::path_to_wx(*file);
    if (is_in_list(name)) {
        sglMessageBox("vmrgrlib", 1240, wxOK);
        return false;
    }
    long const line = m_file_list->InsertItem(m_file_list->GetItemCount(), name);
    m_file_list->SetItem(line, 1, m_input_list->GetItemText(0, 1));
    auto row = std::make_unique<sglRow>();
    row->initialise(&sglApp::app().input_dlls(), *m_input_combo, *m_input_list, 0);
    m_rows.append(std::move(row));
    enable_line_buttons();
    return true;
}

void sglMergeFiles::OnAddFile(wxCommandEvent &)
{
    if (add_staged_file())
        m_user_edited = 1;
    m_add_button->Disable();
    enableTranslateButton();
}

void sglMergeFiles::add_multiple_files(utStringcoPageArr files)
{
    sglOccupiedPage const occupied(*this);
    utString failures;
    for (auto const & file : files) {
        int failed = 0;
        m_input_details.set_details(file, failed);
        if (!m_user_edited)
            fill_output_fields(file, m_output_row);
        m_user_edited = 1;
        if (m_input_details.nothing_selected()) {
            failures = failures + file + "\n";
            EnableAddButton();
        } else {
            wxCommandEvent event;
            OnAddFile(event);
        }
    }
    if (!failures.empty())
        sglMessageBox("vmrgrlib", 1241, wxOK, failures);
}

void sglMergeFiles::handle_dropped_files(wxArrayString const & files)
{
    utStringcoPageArr names;
    for (auto const & file : files)
        if (!file.empty())
            names.append(wxtStringConverter::path_to_ut(file));
    add_multiple_files(names);
}

void sglMergeFiles::enable_line_buttons()
{
    int const line = selected_line();
    m_remove_button->Enable(line != -1);
    m_input_resource_button->Enable(line != -1);
    m_up_button->Enable(line > 0);
    m_down_button->Enable(line != -1 && line + 1 < m_file_list->GetItemCount());
}

void sglMergeFiles::OnClickInputList(wxListEvent &)
{
    enable_line_buttons();
}

void sglMergeFiles::OnInputResource(wxCommandEvent &)
{
    int const line = selected_line();
    if (line == -1)
        return;
    sglRow & row = *m_rows[line];
    if (m_input_details.edit_resources(row.resource_table(), row.file_type()) == wxID_OK)
        set_resource_file(row, m_file_list, line);
}

void sglMergeFiles::OnDblClickOptionsList(wxListEvent & event)
{
    if (selected_line() == -1)
        return;
    OnClickInputList(event);
    wxCommandEvent empty;
    OnInputResource(empty);
}

void sglMergeFiles::OnRemove(wxCommandEvent &)
{
    int const line = selected_line();
    if (line != -1) {
        m_file_list->DeleteItem(line);
        m_rows.remove(line);
    }
    enable_line_buttons();
    m_add_button->Enable();
    enableTranslateButton();
}

// The file stays selected, so that it can be moved on.
void sglMergeFiles::move_line(int from, int to)
{
    if (from < 0 || to < 0 || to >= m_file_list->GetItemCount())
        return;
    std::swap(m_rows[from], m_rows[to]);
    for (int const column : {0, 1}) {
        wxString const text = m_file_list->GetItemText(from, column);
        m_file_list->SetItem(from, column, m_file_list->GetItemText(to, column));
        m_file_list->SetItem(to, column, text);
    }
    constexpr long chosen = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
    m_file_list->SetItemState(to, chosen, chosen);
    m_file_list->EnsureVisible(to);
    enable_line_buttons();
}

void sglMergeFiles::OnMoveUp(wxCommandEvent &)
{
    move_line(selected_line(), selected_line() - 1);
}

void sglMergeFiles::OnMoveDown(wxCommandEvent &)
{
    move_line(selected_line(), selected_line() + 1);
}

void sglMergeFiles::OnSelChangeInputFormat(wxCommandEvent &)
{
    m_input_combo->load_selected();
    m_input_details.set_resource_file();
    EnableAddButton();
    enableTranslateButton();
}

// The format of the input is loaded here, unlike on the page for batches.
void sglMergeFiles::OnSelChangeOutputFormat(wxCommandEvent &)
{
    m_output_details.format_closed();
    m_input_combo->load_selected();
    m_output_details.set_row_details(m_output_row);
    enableTranslateButton();
}
