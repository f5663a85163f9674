#include "controls/sglSaveDialog.h"

#include "sglResourceString.h"

#include "ap/apPathName.h"
#include "nls/sglShownMessage.h"
#include "sdu/sduFileFunctions.h"
#include "wxt/wxtStringConverter.h"

sglSaveDialog::sglSaveDialog(wxWindow * parent, wxString const & title, wxString const & directory,
                             wxString const & name, wxString const & filter, char const * extension,
                             long style)
    // The toolkit's own question would be about the name as it is typed.
    : wxFileDialog(parent, title, directory, name, filter, style & ~wxFD_OVERWRITE_PROMPT),
      m_extension(extension)
{
    m_windowStyle = style;
    Bind(wxEVT_BUTTON, &sglSaveDialog::OnAccept, this, wxID_OK);
}

utString sglSaveDialog::chosen_path() const
{
    utString const path = wxtStringConverter::path_to_ut(GetPath());
    // The toolkit gives nothing at all for some names that are not UTF-8.
    bool const complete =
        path.empty() || GetFilterIndex() != 0 || !apPathName::from_utf8(path.view()).extension().empty();
    return complete ? path : path + "." + m_extension;
}

void sglSaveDialog::OnAccept(wxCommandEvent & event)
{
    utString const path = chosen_path();
    bool const agreed = !HasFlag(wxFD_OVERWRITE_PROMPT) || sdu_check_file_exists(path) != sduFileExists ||
                        sgl_show_message(this, sglResourceString("vmrgrlib", 1118, path),
                                         wxYES_NO | wxNO_DEFAULT | wxICON_EXCLAMATION) == wxID_YES;
    event.Skip(agreed);
}
