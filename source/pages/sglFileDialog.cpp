#include "sglFileDialog.h"

#include "sglApp.h"
#include "sglComboBox.h"
#include "sglMessageBox.h"
#include "sglNlsHelp.h"
#include "sglOutputName.h"
#include "sglPathText.h"
#include "sglResourceString.h"
#include "sglResources.h"
#include "sglRow.h"

#include "pages/sglFileColumns.h"
#include "pages/sglListCell.h"
#include "sdu/sduFileFunctions.h"
#include "vmr/coResourceIterator.h"
#include "wxt/wxtStringConverter.h"

#include <algorithm>
#include <wx/button.h>
#include <wx/dcclient.h>
#include <wx/filefn.h>
#include <wx/listctrl.h>

sglFileDialog::sglFileDialog(wxWindow * parent, vmrabsAppInfo const * info) : m_parent(parent), m_info(info)
{
}

void sglFileDialog::initialise()
{
    add_list_control_headers();
}

void sglFileDialog::add_list_control_headers()
{
    wxWindowDC dc(m_parent);
    int const alphabet = dc.GetTextExtent("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz").x;
    auto const header = [](unsigned int id) {
        return wxtStringConverter::to_wx(sglResourceString("vmrgrlib", id));
    };
    m_list->InsertColumn(0, header(1203), wxLIST_FORMAT_LEFT, sgl_file_column_width(alphabet));
    m_list->InsertColumn(1, header(1204), wxLIST_FORMAT_LEFT);
    // Wider only where the user's letters and language need it.
    m_list->SetColumnWidth(1, wxLIST_AUTOSIZE_USEHEADER);
    m_list->SetColumnWidth(1, std::max(m_list->GetColumnWidth(1), sgl_resource_column_width));
}

int sglFileDialog::invalid() const
{
    return !m_list && !m_combo && !m_resource_button && !m_parent;
}

bool sglFileDialog::has_row() const
{
    return m_list && m_list->GetItemCount() > 0;
}

utString sglFileDialog::cell(int column) const
{
    return m_list ? sgl_list_cell(*m_list, 0, column).value_or(utString()) : utString();
}

utString sglFileDialog::file_name() const
{
    return cell(0);
}

utString sglFileDialog::resource_file() const
{
    return cell(1);
}

utString sglFileDialog::format() const
{
    return m_combo ? m_combo->selected_item() : utString();
}

sdbTranslatorDlls const * sglFileDialog::dlls() const
{
    auto const & app = sglApp::app();
    return m_type & input ? &app.input_dlls() : &app.output_dlls();
}

sdbTranslatorInfo const * sglFileDialog::translator_for_file(utString const & path) const
{
    return dlls()->translator_for_file(path);
}

sdbTranslatorInfo const * sglFileDialog::translator_for_format(utString const & name) const
{
    return dlls()->translator_for_format(name);
}

utString sglFileDialog::unknown_string() const
{
    return sglResourceString("vmrgrlib", 1205);
}

void sglFileDialog::format_selected()
{
    m_combo->delete_unknown();
}

void sglFileDialog::format_closed()
{
    m_combo->check_and_select_unknown();
}

void sglFileDialog::show_file(utString const & file)
{
    if (has_row())
        m_list->DeleteItem(0);
    m_list->InsertItem(0, wxtStringConverter::path_to_wx(file));
}

void sglFileDialog::set_details(utString const & file, int & failed)
{
    show_file(file);
    m_resource_button->Disable();
    set_format_type(failed);
    set_resource_file();
}

void sglFileDialog::set_format_type(int & failed)
{
    utString const file = file_name();
    auto const * const translator = translator_for_file(file);
    if (!translator && sdu_check_file_exists(file) == sduFileExists) {
        wxString const name = wxtStringConverter::path_to_wx(file);
        if (!wxFileExists(name) || !wxIsReadable(name))
            sglMessageBox("vmrgrlib", 1201, wxOK | wxICON_EXCLAMATION, file);
    }
    failed = m_combo->select_and_load(translator) ? 0 : 1;
}

void sglFileDialog::set_resource_file()
{
    if (!has_row())
        return;
    utString const chosen = m_combo->GetCurrentSelection() == -1
                                ? unknown_format()
                                : wxtStringConverter::to_ut(m_combo->GetValue());
    if (chosen == unknown_format())
        m_list->SetItem(0, 1, wxtStringConverter::to_wx(unknown_string()));
    else
        set_resource_file(chosen);
}

void sglFileDialog::set_resource_file(utString const & format)
{
    utString path;
    if (auto const * const translator = translator_for_format(format)) {
        sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
        translator->load(status);
        if (status.ok())
            path = sglApp::app().rsc_dir(translator->resource_file_name());
        else
            sgl_show_error_text(getNlsHelp()->gsprintf("vmrgrlib", "Error : unable to load %s\n", format));
    }
    if (has_row())
        m_list->SetItem(0, 1, wxtStringConverter::to_wx(resource_text_for(path)));
}

utString sglFileDialog::resource_text_for(utString const & resource_path) const
{
    if (!resource_path.empty() && sdu_check_file_exists(resource_path) == sduFileExists) {
        vmrTableInstance table;
        table.initialise(resource_path);
        table.set_resource_file(resource_path);
        if (++coResourceIterator(table.default_table()))
            return ExtractFile(resource_path);
    }
    return sglResourceString("vmrgrlib", 1202);
}

int sglFileDialog::initialise_row(sglRow & row) const
{
    return row.initialise(dlls(), *m_combo, *m_list, 0);
}

utString sglFileDialog::proposal(utString const & name)
{
    utString const result = sgl_numbered_name(name, m_is_input);
    if (result != name) {
        m_wanted = name;
        m_numbered = result;
    }
    return result;
}

int sglFileDialog::create_output_details(utString const & input_format, utString const & input_file,
                                         sglRow & row)
{
    utString chosen = format();
    if (chosen == input_format)
        chosen = unknown_format();
    utString name;
    int const ok = outfile_name(input_format, input_file, m_combo, chosen, name);
    bool const kept = !row.update_is_ok(chosen, 1);
    if (!ok)
        return 0;
    if (kept) {
        show_row(row);
        if (has_row())
            m_list->SetItem(0, 0, wxtStringConverter::path_to_wx(proposal(row.filename())));
        return 1;
    }
    int failed = 0;
    set_details(proposal(name), failed);
    m_resource_button->Enable(!failed);
    return 1;
}

utString sglFileDialog::name_for_format(utString const & file, utString const & format)
{
    utString const & wanted = file == m_numbered ? m_wanted : file;
    auto const * const translator = translator_for_format(format);
    return proposal(translator ? sgl_change_extension(*translator, wanted) : wanted);
}

void sglFileDialog::set_row_details(sglRow & row)
{
    utString const name = row.filename(); // before the user's consent clears the row
    if (name.empty())
        return;
    utString const chosen = format();
    if (row.update_is_ok(chosen, 1)) {
        int failed = 0;
        set_details(name_for_format(name, chosen), failed);
        initialise_row(row);
    } else {
        m_combo->SetStringSelection(wxtStringConverter::to_wx(row.file_type()));
    }
    m_resource_button->Enable(!row.invalid());
}

void sglFileDialog::show_row(sglRow const & row)
{
    bool const known = !row.file_type().empty() && row.file_type() != unknown_format();
    if (known) {
        m_combo->SetStringSelection(wxtStringConverter::to_wx(row.file_type()));
        m_combo->delete_unknown();
    } else {
        m_combo->add_and_select_unknown();
    }
    if (row.filename().empty()) {
        m_list->DeleteAllItems();
    } else {
        show_file(row.filename());
        utString const resources =
            known ? ExtractFile(row.resource_table().resource_file()) : unknown_string();
        m_list->SetItem(0, 1, wxtStringConverter::path_to_wx(resources));
    }
    m_resource_button->Enable(!row.invalid());
}

int sglFileDialog::edit_resources(vmrTableInstance & table)
{
    return edit_resources(table, format());
}

int sglFileDialog::edit_resources(vmrTableInstance & table, utString const & format_name)
{
    auto const * const translator = translator_for_format(format_name);
    if (!translator) {
        sglMessageBox("vmrgrlib", m_type & input ? 1165 : 1166, wxICON_ERROR);
        return wxID_CANCEL;
    }
    sglResources dialog(table, m_parent, translator, m_info, "DLG_RESOURCES");
    dialog.dialog_type(m_type);
    return dialog.ShowModal();
}

int sglFileDialog::nothing_selected() const
{
    utString const resources = resource_file();
    utString const chosen = format();
    return resources.empty() || resources == unknown_string() || chosen.empty() || chosen == unknown_format();
}
