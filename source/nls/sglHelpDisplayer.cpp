#include "sglHelpDisplayer.h"

#include "sglApp.h"
#include "sglMessageBox.h"

#include "wxt/wxtStringConverter.h"

#include <wx/dialog.h>
#include <wx/filename.h>
#include <wx/filesys.h>
#include <wx/fs_arc.h>
#include <wx/html/helpdlg.h>
#include <wx/msgdlg.h>

namespace {

/// A book is an archive, which the toolkit opens only with a handler for archives.
void read_archives()
{
    static bool const once = (wxFileSystem::AddHandler(new wxArchiveFSHandler), true);
    static_cast<void>(once);
}

bool a_dialog_is_modal()
{
    for (wxWindow const * const window : wxTopLevelWindows)
        if (auto const * const dialog = dynamic_cast<wxDialog const *>(window); dialog && dialog->IsModal())
            return true;
    return false;
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
    if (!load_file())
        return;
    choose_window();
    DisplayContents();
    remove_closed_dialog();
}

void sglHelpDisplayer::show_help(utString const & topic)
{
    if (!load_file())
        return;
    choose_window();
    DisplaySection(wxtStringConverter::to_wx("substituted/" + topic));
    remove_closed_dialog();
}

void sglHelpDisplayer::choose_window()
{
    // Over a modal dialog the toolkit's help frame gets no events, or ends badly when it is closed.
    bool const modal = a_dialog_is_modal();
    if (modal && GetFrame())
        DestroyHelpWindow();
    m_FrameStyle = wxHF_DEFAULT_STYLE | (modal ? wxHF_DIALOG | wxHF_MODAL : wxHF_FRAME);
}

wxHtmlHelpDialog * sglHelpDisplayer::CreateHelpDialog(wxHtmlHelpData * data)
{
    auto * const dialog = wxHtmlHelpController::CreateHelpDialog(data);
    m_dialog = dialog;
    return dialog;
}

/// The toolkit forgets its dialog when the user closes it, and does not delete it.
void sglHelpDisplayer::remove_closed_dialog()
{
    if (m_dialog && !m_dialog->IsShown())
        m_dialog->Destroy();
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
