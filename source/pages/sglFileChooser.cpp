#include "sglFileChooser.h"

#include "sglResourceString.h"

#include "controls/sglFileFilter.h"
#include "wxt/wxtStringConverter.h"

#include <wx/dirdlg.h>
#include <wx/filedlg.h>

int sglWxFileChooser::file_dialog(utString const & title, utString const & filter, long style,
                                  utString & file) const
{
    wxFileDialog dialog(m_parent, wxtStringConverter::to_wx(title), wxString(), wxString(),
                        sgl_toolkit_filter(wxtStringConverter::to_wx(filter)), style);
    bool const chosen = dialog.ShowModal() == wxID_OK;
    file = chosen ? wxtStringConverter::path_to_ut(dialog.GetPath()) : utString();
    return chosen ? 1 : 0;
}

int sglWxFileChooser::choose_input_file(utString const & filter, utString & file) const
{
    return file_dialog(sglResourceString("vmrgrlib", 1017), filter, wxFD_OPEN, file);
}

int sglWxFileChooser::choose_output_file(utString const & filter, int confirm_overwrite,
                                         utString & file) const
{
    long const style = wxFD_SAVE | (confirm_overwrite ? wxFD_OVERWRITE_PROMPT : 0);
    return file_dialog(sglResourceString("vmrgrlib", 1116), filter, style, file);
}

int sglWxFileChooser::choose_output_directory(utString & directory) const
{
    return sglBrowseDialog(m_parent, directory);
}

int sglBrowseDialog(wxWindow * parent, utString & directory)
{
    wxDirDialog dialog(parent, wxtStringConverter::to_wx(sglResourceString("vmrgrlib", 1051)), wxString(),
                       wxDD_DEFAULT_STYLE);
    bool const chosen = dialog.ShowModal() == wxID_OK;
    directory = chosen ? wxtStringConverter::path_to_ut(dialog.GetPath()) : utString();
    return chosen ? 1 : 0;
}
