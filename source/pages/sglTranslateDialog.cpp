#include "sglTranslateDialog.h"

#include "sglApp.h"
#include "sglComboBox.h"
#include "sglDialog.h"
#include "sglDropFiles.h"
#include "sglMessageBox.h"
#include "sglNlsHelp.h"

#include "controls/sglButtonPictures.h"
#include "pages/sglLabelKeys.h"
#include "pages/sglListCell.h"
#include "pages/sglReachedFile.h"
#include "sdu/sduFileFunctions.h"
#include "wxt/wxtStringConverter.h"

#include <wx/button.h>
#include <wx/filename.h>
#include <wx/listctrl.h>
#include <wx/xrc/xmlres.h>

wxBEGIN_EVENT_TABLE(sglTranslateDialog, wxPanel)
    EVT_CHILD_FOCUS(sglTranslateDialog::OnChildFocus)
wxEND_EVENT_TABLE()

sglTranslateDialog::sglTranslateDialog(wxWindow * parent)
    : m_info(sglApp::app().application_information()), m_input_details(this, m_info),
      m_output_details(this, m_info), m_parent(parent)
{
}

int sglTranslateDialog::create()
{
    if (!wxXmlResource::Get()->LoadPanel(this, m_parent, wxtStringConverter::to_wx(resource_id())))
        return 0;
    if (!sglTranslateWndText(tag(), this, 1) || !find_children())
        return 0;

    m_input_details.set_list_control(m_input_list);
    m_input_details.set_combo_box(m_input_combo);
    m_input_details.set_resource_button(m_input_resource_button);
    m_input_details.set_type(sglFileDialog::input);
    m_output_details.set_list_control(m_output_list);
    m_output_details.set_combo_box(m_output_combo);
    m_output_details.set_resource_button(m_output_resource_button);
    m_output_details.set_type(sglFileDialog::output);
    m_output_details.set_is_input([this](utString const & path) { return is_input(path); });

    m_input_resource_button->Disable();
    m_output_resource_button->Disable();
    m_translate_button->Disable();
    sgl_add_button_pictures(*this);
    return OnInitDialog();
}

int sglTranslateDialog::OnInitDialog()
{
    m_input_details.initialise();
    m_output_details.initialise();
    sgl_add_label_keys(*this);
    m_input_list->SetDropTarget(new sglDropFiles(this));
    addFormatTypes();
    m_output_combo->resize(this);
    m_input_combo->resize(this);
    return 1;
}

// Each page of the window has a button that Enter presses; the focus tells which of them it is.
void sglTranslateDialog::OnChildFocus(wxChildFocusEvent & event)
{
    make_default();
    event.Skip();
}

void sglTranslateDialog::make_default()
{
    if (m_translate_button)
        m_translate_button->SetDefault();
}

void sglTranslateDialog::addFormatTypes()
{
    auto const add = [](sdbTranslatorDlls const & catalogue, sglComboBox & combo) {
        for (auto name = catalogue.formats(); ++name;)
            combo.Append(wxtStringConverter::to_wx(name().ut_string()));
        combo.add_and_select_unknown();
    };
    add(sglApp::app().input_dlls(), *m_input_combo);
    add(sglApp::app().output_dlls(), *m_output_combo);
}

int sglTranslateDialog::fill_output_fields(utString const & input_file, sglRow & output_row)
{
    int const filled =
        m_output_details.create_output_details(m_input_combo->selected_item(), input_file, output_row);
    if (filled)
        output_row.initialise(&sglApp::app().output_dlls(), *m_output_combo, *m_output_list, 0);
    return filled;
}

bool sglTranslateDialog::shows_input(sglReachedFile const & file) const
{
    auto const shown = sgl_list_cell(*m_input_list, 0, 0);
    return shown && file.is(*shown);
}

bool sglTranslateDialog::is_input(utString const & path) const
{
    sglReachedFile const file(path);
    bool found = shows_input(file);
    for (int i = 0; i < num_input_rows() && !found; ++i)
        found = file.is(input_row(i).filename());
    return found;
}

int sglTranslateDialog::OnInputBrowse(wxCommandEvent &, sglRow & output_row)
{
    utString name;
    int const code = m_input_details.input_browse(name);
    if (code == wxID_OK && !m_user_edited && m_input_details.num_selected() == 1)
        fill_output_fields(name, output_row);
    return code;
}

int sglTranslateDialog::OnOutputBrowse(wxCommandEvent &, sglRow & output_row)
{
    return m_output_details.output_browse(output_row, m_user_edited);
}

int sglTranslateDialog::OnInputResource(wxCommandEvent &, sglRow & row, int index)
{
    int const code = m_input_details.edit_resources(row.resource_table());
    if (code == wxID_OK)
        set_resource_file(row, m_input_list, index);
    return code;
}

int sglTranslateDialog::OnOutputResource(wxCommandEvent &, sglRow & row)
{
    int const code = m_output_details.edit_resources(row.resource_table());
    if (code == wxID_OK)
        set_resource_file(row, m_output_list, 0);
    return code;
}

void sglTranslateDialog::set_resource_file(sglRow const & row, wxListCtrl * list, int index)
{
    wxFileName const path(wxtStringConverter::path_to_wx(row.resource_table().resource_file()));
    if (index < 0)
        return;
    long const at =
        sgl_list_cell(*list, index, 1) ? index : list->InsertItem(list->GetItemCount(), wxString());
    list->SetItem(at, 1, path.GetFullName());
}

void sglTranslateDialog::tell_of_folder(utString const & path) const
{
    if (sdu_check_directory_exists(path) == sduFileDirectoryExists)
        sgl_show_error_text(getNlsHelp()->gsprintf(
            "vmrgrlib", "d.messagebox::%s is a folder. Please choose the files in it instead.", path));
}

void sglTranslateDialog::OnCloseInputFormat(wxCommandEvent &)
{
    m_input_details.format_closed();
}

void sglTranslateDialog::OnCloseOutputFormat(wxCommandEvent &)
{
    m_output_details.format_closed();
}

void sglTranslateDialog::OnSelInputFormat(wxCommandEvent &)
{
    m_input_details.format_selected();
}

void sglTranslateDialog::OnSelOutputFormat(wxCommandEvent &)
{
    m_output_details.format_selected();
}

void sglTranslateDialog::enableTranslateButton(int may_enable)
{
    bool const known = m_output_combo->FindString(wxtStringConverter::to_wx(unknown_format())) == -1;
    auto const file = sgl_list_cell(*m_output_list, 0, 0);
    m_translate_button->Enable(may_enable && known && file && !file->empty());
}
