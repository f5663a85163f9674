#include "sglSingleFile.h"

#include "sglApp.h"
#include "sglComboBox.h"
#include "sglResourceString.h"

#include "pages/sglListCell.h"
#include "pages/sglReachedFile.h"
#include "wxt/wxtStringConverter.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/xrc/xmlres.h>

wxBEGIN_EVENT_TABLE(sglSingleFile, sglTranslateDialog)
    EVT_COMBOBOX_CLOSEUP(XRCID("IDC_SINGLE_INPUT_FORMAT"), sglSingleFile::OnSelChangeInputFormat)
    EVT_COMBOBOX_CLOSEUP(XRCID("IDC_SINGLE_OUTPUT_FORMAT"), sglSingleFile::OnSelChangeOutputFormat)
    EVT_BUTTON(XRCID("IDC_SINGLE_OUTPUT_BROWSE"), sglSingleFile::OnOutputBrowse)
    EVT_BUTTON(XRCID("IDC_SINGLE_INPUT_BROWSE"), sglSingleFile::OnInputBrowse)
    EVT_BUTTON(XRCID("IDC_SINGLE_TRANSLATE"), sglSingleFile::OnTranslate)
    EVT_BUTTON(XRCID("IDC_SINGLE_INPUT_RESOURCES"), sglSingleFile::OnInputResource)
    EVT_BUTTON(XRCID("IDC_SINGLE_OUTPUT_RESOURCES"), sglSingleFile::OnOutputResource)
    EVT_MENU(XRCID("IDM_FILE_OPEN"), sglSingleFile::OnInputBrowse)
    EVT_MENU(XRCID("IDM_FILE_SAVE_AS"), sglSingleFile::OnOutputBrowse)
wxEND_EVENT_TABLE()

sglSingleFile::sglSingleFile(wxWindow * parent) : sglTranslateDialog(parent)
{
    m_caption = sglResourceString("vmrgrlib", 1237);
}

int sglSingleFile::find_children()
{
    m_input_list = XRCCTRL(*this, "IDC_SINGLE_INPUT_FILENAME", wxListCtrl);
    m_input_combo = XRCCTRL(*this, "IDC_SINGLE_INPUT_FORMAT", sglComboBox);
    m_input_resource_button = XRCCTRL(*this, "IDC_SINGLE_INPUT_RESOURCES", wxButton);
    m_output_list = XRCCTRL(*this, "IDC_SINGLE_OUTPUT_FILENAME", wxListCtrl);
    m_output_combo = XRCCTRL(*this, "IDC_SINGLE_OUTPUT_FORMAT", sglComboBox);
    m_output_resource_button = XRCCTRL(*this, "IDC_SINGLE_OUTPUT_RESOURCES", wxButton);
    m_translate_button = XRCCTRL(*this, "IDC_SINGLE_TRANSLATE", wxButton);
    return 1;
}

bool sglSingleFile::shows_file() const
{
    auto const file = sgl_list_cell(*m_input_list, 0, 0);
    return file && !file->empty();
}

int sglSingleFile::InitialiseInputRow()
{
    if (m_input_row.update_is_ok(m_input_combo->selected_item(), 1)) {
        m_input_row.initialise(&sglApp::app().input_dlls(), *m_input_combo, *m_input_list, 0);
        m_input_resource_button->Enable(!m_input_row.invalid());
        return 1;
    }
    m_input_details.show_row(m_input_row);
    return 0;
}

// The row may still be that of the file before.
bool sglSingleFile::is_input(utString const & path) const
{
    return shows_input(sglReachedFile(path));
}

void sglSingleFile::take_input(sglRow const & before)
{
    if (!m_input_details.nothing_selected() && !InitialiseInputRow()) {
        m_output_row = before;
        m_output_details.show_row(m_output_row);
    }
    enableTranslateButton();
}

void sglSingleFile::enableTranslateButton()
{
    sglTranslateDialog::enableTranslateButton(shows_file() &&
                                              m_input_combo->selected_item() != unknown_format());
}

void sglSingleFile::OnInputBrowse(wxCommandEvent & event)
{
    sglRow const before = m_output_row;
    if (sglTranslateDialog::OnInputBrowse(event, m_output_row) == wxID_OK)
        take_input(before);
}

void sglSingleFile::OnOutputBrowse(wxCommandEvent & event)
{
    sglTranslateDialog::OnOutputBrowse(event, m_output_row);
    enableTranslateButton();
}

void sglSingleFile::OnInputResource(wxCommandEvent & event)
{
    sglTranslateDialog::OnInputResource(event, m_input_row, 0);
}

void sglSingleFile::OnOutputResource(wxCommandEvent & event)
{
    sglTranslateDialog::OnOutputResource(event, m_output_row);
}

void sglSingleFile::OnSelChangeInputFormat(wxCommandEvent &)
{
    m_input_details.format_closed();
    m_input_combo->load_selected();
    m_input_details.set_resource_file();
    if (!shows_file())
        return;
    InitialiseInputRow();
    enableTranslateButton();
}

void sglSingleFile::OnSelChangeOutputFormat(wxCommandEvent &)
{
    m_output_details.format_closed();
    m_output_details.set_row_details(m_output_row);
    enableTranslateButton();
}

void sglSingleFile::handle_dropped_files(wxArrayString const & files)
{
    if (files.empty() || files[0].empty())
        return;
    utString const file = wxtStringConverter::path_to_ut(files[0]);
    sglRow const before = m_output_row;
    int failed = 0;
    m_input_details.set_details(file, failed);
    if (!m_user_edited)
        fill_output_fields(file, m_output_row);
    take_input(before);
    tell_of_folder(file);
}
