// The sides of a page where they open the system's file dialog.

#include "sglFileDialog.h"

#include "sglApp.h"
#include "sglComboBox.h"
#include "sglDialogFilterIndexSet.h"
#include "sglMessageBox.h"
#include "sglNlsHelp.h"
#include "sglOutputName.h"
#include "sglPathText.h"
#include "sglResourceString.h"
#include "sglRow.h"
#include "sglTranslatedFilter.h"

#include "ap/apSplitPath.h"
#include "ap/apStringCompareInsensitive.h"
#include "controls/sglFileFilter.h"
#include "controls/sglSaveDialog.h"
#include "pages/sglLastFolder.h"
#include "sdu/sduFileFunctions.h"
#include "sdu/sduStartupKeys.h"
#include "wxt/wxtStringConverter.h"

#include <wx/button.h>
#include <wx/filedlg.h>
#include <wx/listctrl.h>

namespace {

apStringCompareInsensitive label_order(vmrabsAppInfo const & info)
{
    return apStringCompareInsensitive(utObserverPtr<apIStringEncoding const>(info.mb_encoding()));
}

wxString text(unsigned int id)
{
    return wxtStringConverter::to_wx(sglResourceString("vmrgrlib", id));
}

/// The folder of the file that is shown, else that of the last one; the empty text leaves it to the system.
wxString to_open_in(utString const & shown, sglLastFolder const & last)
{
    utString directory, name, extension;
    apSplitPath::split_path(shown, directory, name, extension);
    bool const is_there = sdu_check_directory_exists(directory) == sduFileDirectoryExists;
    return wxtStringConverter::path_to_wx(is_there ? directory : last.folder());
}

} // namespace

utString sglFileDialog::filter_text() const
{
    auto const order = label_order(*m_info);
    utString const formats = sglTranslatedFilter(dlls()->filter_elements(), m_info->mb_encoding(), &order)
                                 .translated_filter_string();
    utString patterns;
    for (auto const & endings : sgl_filter_endings(wxtStringConverter::to_wx(formats)))
        for (auto const & ending : endings)
            patterns << (patterns.empty() ? "*." : ";*.") << ending.c_str();
    return getNlsHelp()->gsprintf("vmrgrlib", "d.file_filter::All CAD Files") + "|" +
           (patterns.empty() ? utString("*.*") : patterns) + "|" + formats;
}

void sglFileDialog::choose_filter(wxFileDialog & dialog, char const * preferred_format_field) const
{
    auto const order = label_order(*m_info);
    sglDialogFilterIndexSet index_set(&dialog, 1);
    m_combo->set_filter_index(*dlls(), sglApp::app().startup_info().find_field(preferred_format_field),
                              &order, index_set);
}

int sglFileDialog::input_browse(utString & file)
{
    m_selected_files.clear();
    long const style = wxFD_OPEN | wxFD_FILE_MUST_EXIST | (m_allow_multiple ? wxFD_MULTIPLE : 0);
    sglLastFolder const last(sglLastFolder::inputs);
    wxFileDialog dialog(m_parent, text(1017), to_open_in(file_name(), last), wxString(),
                        sgl_toolkit_filter(wxtStringConverter::to_wx(filter_text())), style);
    choose_filter(dialog, sduPREFERREDINPUTFORMAT);
    int const code = dialog.ShowModal();
    if (code != wxID_OK)
        return code;

    wxArrayString paths;
    if (m_allow_multiple)
        dialog.GetPaths(paths);
    else
        paths.Add(dialog.GetPath());
    for (wxString const & path : paths)
        m_selected_files.append(wxtStringConverter::path_to_ut(path));
    if (!m_selected_files.empty())
        last.remember(m_selected_files[0]);
    if (m_selected_files.count() == 1) {
        file = m_selected_files[0];
        int failed = 0;
        set_details(file, failed);
    }
    return wxID_OK;
}

int sglFileDialog::output_browse(sglRow & row, int & user_edited)
{
    sglLastFolder const last(sglLastFolder::outputs);
    utString const proposed = file_name();
    wxString const filter = wxtStringConverter::to_wx(filter_text());
    auto endings = sgl_filter_endings(filter);
    // The filter for all formats stands for the one that is chosen.
    auto const * const translator = translator_for_format(format());
    if (translator)
        endings.front() = translator->declaration().extensions;
    else
        endings.front().clear();
    sglSaveDialog dialog(m_parent, text(1116), to_open_in(proposed, last),
                         wxtStringConverter::path_to_wx(ExtractFile(proposed)), sgl_toolkit_filter(filter),
                         std::move(endings), wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    choose_filter(dialog, sduPREFERREDOUTPUTFORMAT);
    int const code = dialog.ShowModal();
    if (code != wxID_OK)
        return code;

    utString const path = dialog.chosen_path();
    if (!file_is_writable(path)) {
        sglMessageBox("vmrgrlib", 1119, wxICON_ERROR);
        return wxID_CANCEL;
    }
    last.remember(path);
    bool const exists = sdu_check_file_exists(path) == sduFileExists;
    if (take_output(path, row)) {
        m_resource_button->Enable(!row.invalid());
        if (row.file_type() != unknown_format())
            m_combo->delete_unknown();
        user_edited = 1;
        // A file that comes later is one that the user was not asked about.
        m_confirmed = exists && row.filename() == path ? path : utString();
    }
    return wxID_OK;
}

int sglFileDialog::take_output(utString const & path, sglRow & row)
{
    int failed = 0;
    auto const * const translator = translator_for_file(path);
    if (!translator) {
        show_file(path);
        set_resource_file();
        initialise_row(row);
    } else if (row.update_is_ok(translator->format_name().ut_string(), 1)) {
        set_details(path, failed);
        initialise_row(row);
    } else {
        m_combo->SetStringSelection(wxtStringConverter::to_wx(row.file_type()));
    }
    return failed ? 0 : 1;
}
