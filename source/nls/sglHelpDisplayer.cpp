#include "sglHelpDisplayer.h"

#include "sglApp.h"
#include "sglMessageBox.h"

#include "wxt/wxtStringConverter.h"

#include <wx/filename.h>
#include <wx/filesys.h>
#include <wx/fs_arc.h>
#include <wx/msgdlg.h>

namespace {

/// A book is an archive, which the toolkit opens only with a handler for archives.
void read_archives()
{
    static bool const once = (wxFileSystem::AddHandler(new wxArchiveFSHandler), true);
    static_cast<void>(once);
}

} // namespace

sglHelpDisplayer::sglHelpDisplayer(sglApp const * app, wxWindow * parent)
    : wxHtmlHelpController(parent), m_app(app)
{
    // Closing the main window ends the program even while help is open.
    SetShouldPreventAppExit(false);
}

void sglHelpDisplayer::show_help()
{
    if (load_file())
        DisplayContents();
}

void sglHelpDisplayer::show_help(utString const & topic)
{
    if (load_file())
        DisplaySection(wxtStringConverter::to_wx("substituted/" + topic));
}

int sglHelpDisplayer::load_file()
{
    apFileName const name(m_app->application_information()->ut_encoding()->to_ap(m_file));
    apPathName const path = m_app->file_locator().search_path(sdbHRKDirectory::help).find_file(name);
    if (path.invalid()) {
        sglMessageBox("vmrgrlib", 1001, wxICON_EXCLAMATION);
        return 0;
    }
    LoadFile(wxtStringConverter::to_wx(utString(path.utf8())));
    return 1;
}

bool sglHelpDisplayer::LoadFile(wxString const & file)
{
    if (file == m_loaded)
        return true;
    m_loaded = file;
    read_archives();
    return AddBook(wxFileName(file));
}
