#include "sglConfigStore.h"

#include <wx/filename.h>
#include <wx/stdpaths.h>

bool sglConfigStore::Flush(bool current_only)
{
    // A home that was never used has no configuration directory yet, and the toolkit makes none.
    wxString const directory = wxStandardPaths::Get().GetUserConfigDir();
    if (!wxFileName::DirExists(directory) &&
        !wxFileName::Mkdir(directory, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL))
        return false;
    return wxFileConfig::Flush(current_only);
}
