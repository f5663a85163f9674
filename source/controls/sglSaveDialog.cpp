#include "controls/sglSaveDialog.h"

#include "sglResourceString.h"

#include "ap/apPathName.h"
#include "nls/sglShownMessage.h"
#include "sdu/sduFileFunctions.h"
#include "wxt/wxtStringConverter.h"

#include <algorithm>

namespace {

std::string extension_of(utString const & path)
{
    return apPathName::from_utf8(path.view()).extension().utf8();
}

} // namespace

sglSaveDialog::sglSaveDialog(wxWindow * parent, wxString const & title, wxString const & directory,
                             wxString const & name, wxString const & filter, char const * extension,
                             long style)
    : sglSaveDialog(parent, title, directory, name, filter, Extensions{{extension}}, style)
{
}

sglSaveDialog::sglSaveDialog(wxWindow * parent, wxString const & title, wxString const & directory,
                             wxString const & name, wxString const & filter, Extensions extensions,
                             long style)
    // The toolkit's own question would be about the name as it is typed.
    : wxFileDialog(parent, title, directory, name, filter, style & ~wxFD_OVERWRITE_PROMPT),
      m_extensions(std::move(extensions)), m_offered(extension_of(wxtStringConverter::path_to_ut(name)))
{
    m_windowStyle = style;
    Bind(wxEVT_BUTTON, &sglSaveDialog::OnAccept, this, wxID_OK);
}

int sglSaveDialog::ShowModal()
{
    m_first_filter = GetFilterIndex();
    return wxFileDialog::ShowModal();
}

std::string sglSaveDialog::extension_for(std::string const & typed) const
{
    int const filter = GetFilterIndex();
    bool const has_extensions = filter >= 0 && filter < static_cast<int>(m_extensions.size()) &&
                                !m_extensions[static_cast<std::size_t>(filter)].empty();
    if (!has_extensions)
        return typed;
    auto const & extensions = m_extensions[static_cast<std::size_t>(filter)];
    bool const offered = filter != m_first_filter && typed == m_offered &&
                         std::find(extensions.begin(), extensions.end(), typed) == extensions.end();
    return typed.empty() || offered ? extensions.front() : typed;
}

utString sglSaveDialog::chosen_path() const
{
    utString const path = wxtStringConverter::path_to_ut(GetPath());
    // The toolkit gives nothing at all for some names that are not UTF-8.
    if (path.empty())
        return path;
    std::string const typed = extension_of(path), extension = extension_for(typed);
    if (extension == typed)
        return path;
    return apPathName::from_utf8(path.view()).change_extension(apString::from_utf8(extension)).utf8();
}

void sglSaveDialog::OnAccept(wxCommandEvent & event)
{
    utString const path = chosen_path();
    bool const agreed = !HasFlag(wxFD_OVERWRITE_PROMPT) || sdu_check_file_exists(path) != sduFileExists ||
                        sgl_show_message(this, sglResourceString("vmrgrlib", 1118, path),
                                         wxYES_NO | wxNO_DEFAULT | wxICON_EXCLAMATION) == wxID_YES;
    event.Skip(agreed);
}
