#include "pages/sglLastFolder.h"

#include "ap/apSplitPath.h"
#include "sdu/sduFileFunctions.h"
#include "wxt/wxtStringConverter.h"

#include <wx/config.h>

utString sglLastFolder::folder() const
{
    auto const * const settings = wxConfigBase::Get(false);
    wxString kept;
    if (!settings || !settings->Read(m_key, &kept))
        return utString();
    utString const path = wxtStringConverter::path_to_ut(kept);
    return sdu_check_directory_exists(path) == sduFileDirectoryExists ? path : utString();
}

void sglLastFolder::remember(utString const & file) const
{
    utString directory, name, extension;
    apSplitPath::split_path(file, directory, name, extension);
    if (auto * const settings = wxConfigBase::Get(false))
        settings->Write(m_key, wxtStringConverter::path_to_wx(directory));
}
