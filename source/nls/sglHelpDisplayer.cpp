#include "sglHelpDisplayer.h"

#include "sglApp.h"
#include "sglMessageBox.h"
#include "sglNlsHelp.h"

#include "nls/sglHelpColours.h"
#include "nls/sglHelpFilter.h"
#include "wxt/wxtStringConverter.h"

#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/filename.h>
#include <wx/filesys.h>
#include <wx/fs_arc.h>
#include <wx/html/helpdlg.h>
#include <wx/html/helpfrm.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/notebook.h>
#include <wx/settings.h>
#include <wx/splitter.h>
#include <wx/toolbar.h>
#include <wx/treectrl.h>

namespace {

/// A book is an archive, which the toolkit opens only with a handler for archives.
void read_archives()
{
    static bool const once = [] {
        wxFileSystem::AddHandler(new wxArchiveFSHandler);
        wxHtmlWindow::AddFilter(new sglHelpFilter);
        return true;
    }();
    static_cast<void>(once);
}

/// GTK complains of tools, and of scroll bars in pages, that have not got their size when the window comes
/// up.
void lay_out_children(wxWindow & window)
{
    for (wxWindow * const child : window.GetChildren()) {
        if (auto * const tools = dynamic_cast<wxToolBar *>(child))
            tools->SetSize(tools->GetBestSize());
        if (auto * const book = dynamic_cast<wxNotebook *>(child))
            for (std::size_t page = 0; page < book->GetPageCount(); ++page) {
                book->GetPage(page)->SetSize(book->GetClientSize());
                book->GetPage(page)->Layout();
            }
        lay_out_children(*child);
    }
}

/// The toolkit's usual size has no room for the lines of a table or the titles of the contents.
void make_roomy(wxTopLevelWindow & top, wxWindow & help)
{
    constexpr int width = 940, height = 660, contents = 290;
    wxRect const screen = wxDisplay(&top).GetClientArea();
    wxSize size = top.FromDIP(wxSize(width, height));
    size.DecTo(screen.GetSize());
    top.SetSize(size);
    top.CentreOnScreen();
    for (wxWindow * const child : help.GetChildren())
        if (auto * const splitter = dynamic_cast<wxSplitterWindow *>(child))
            splitter->SetSashPosition(top.FromDIP(contents));
    lay_out_children(help);
}

wxTreeCtrl * tree_of(wxWindow & window)
{
    for (wxWindow * const child : window.GetChildren()) {
        auto * const tree = dynamic_cast<wxTreeCtrl *>(child);
        if (auto * const found = tree ? tree : tree_of(*child))
            return found;
    }
    return nullptr;
}

/// The pages of the book are seen at once and not the name of the book alone.
void open_contents(wxWindow & help)
{
    auto * const tree = tree_of(help);
    if (!tree || !tree->GetRootItem().IsOk())
        return;
    wxTreeItemIdValue cookie;
    if (auto const book = tree->GetFirstChild(tree->GetRootItem(), cookie); book.IsOk())
        tree->Expand(book);
}

/// Everything has its size before the window is shown: GTK complains of what has not.
void prepare(wxTopLevelWindow & top, wxHtmlHelpWindow & help)
{
    // The pages have the colours of the desktop at this moment.
    help.GetHtmlWindow()->AddProcessor(new sglHelpColours(wxSystemSettings::GetAppearance().IsDark()));
    make_roomy(top, help);
    open_contents(help);
}

bool a_dialog_is_modal()
{
    for (wxWindow const * const window : wxTopLevelWindows)
        if (auto const * const dialog = dynamic_cast<wxDialog const *>(window); dialog && dialog->IsModal())
            return true;
    return false;
}

/// The name of a book in a language: vmrdoc.htb gives vmrdoc_de.htb.
utString in_language(utString const & book, utString const & language)
{
    std::string name = book.str();
    auto const dot = name.rfind('.');
    name.insert(dot == std::string::npos ? name.size() : dot, "_" + language.str());
    return utString(name);
}

void tell_that_there_is_no_help()
{
    sglMessageBox("vmrgrlib", 1001, wxICON_EXCLAMATION);
}

} // namespace

sglHelpDisplayer::sglHelpDisplayer(sglApp const * app, wxWindow * parent)
    : wxHtmlHelpController(parent), m_app(app)
{
    // Closing the main window ends the program even while help is open.
    SetShouldPreventAppExit(false);
    SetTitleFormat(title_format());
}

wxString sglHelpDisplayer::title_format() const
{
    return wxtStringConverter::to_wx(m_app->application_name_no_version()) + ": %s";
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
    // The toolkit gives only the frame a title after its format.
    if (auto const & books = data->GetBookRecArray(); !books.empty())
        dialog->SetTitle(wxString::Format(title_format(), books[0].GetTitle()));
    prepare(*dialog, *dialog->GetHelpWindow());
    m_dialog = dialog;
    return dialog;
}

/// A help window that belongs to nothing else goes when Esc is pressed, as the one over a dialog does.
wxHtmlHelpFrame * sglHelpDisplayer::CreateHelpFrame(wxHtmlHelpData * data)
{
    auto * const frame = wxHtmlHelpController::CreateHelpFrame(data);
    prepare(*frame, *frame->GetHelpWindow());
    frame->Bind(wxEVT_CHAR_HOOK, [frame](wxKeyEvent & event) {
        if (event.GetKeyCode() == WXK_ESCAPE && event.GetModifiers() == wxMOD_NONE)
            frame->Close();
        else
            event.Skip();
    });
    return frame;
}

/// The toolkit does not delete its dialog when the user closes it, and forgets it only when that is done by
/// the frame: with Esc or the dialog's button it would go on with a window that is gone.
void sglHelpDisplayer::remove_closed_dialog()
{
    if (!m_dialog || m_dialog->IsShown())
        return;
    if (GetHelpWindow()) {
        wxCloseEvent event(wxEVT_CLOSE_WINDOW, m_dialog->GetId());
        OnCloseFrame(event);
    }
    m_dialog->Destroy();
}

utString sglHelpDisplayer::language() const
{
    utString const requested = getNlsHelp()->requested_language();
    return requested.invalid() ? utString() : requested;
}

apPathName sglHelpDisplayer::find_book() const
{
    auto const find = [this](utString const & book) {
        apFileName const name(m_app->application_information()->ut_encoding()->to_ap(book));
        return m_app->file_locator().search_path(sdbHRKDirectory::help).find_file(name);
    };
    utString own = language();
    while (!own.empty()) {
        if (apPathName const path = find(in_language(m_file, own)); !path.invalid())
            return path;
        if (!getNlsHelp()->strip_country(own))
            break;
    }
    return find(m_file);
}

int sglHelpDisplayer::load_file()
{
    apPathName const path = find_book();
    if (path.invalid()) {
        tell_that_there_is_no_help();
        return 0;
    }
    LoadFile(wxtStringConverter::to_wx(utString(path.utf8())));
    return 1;
}

bool sglHelpDisplayer::LoadFile(wxString const & file)
{
    if (file == m_loaded)
        return true;
    read_archives();
    // What it has to say about a damaged book would come in a box of its own.
    wxLogNull const quiet;
    if (!AddBook(wxFileName(file)))
        return false;
    m_loaded = file;
    return true;
}

bool sglHelpDisplayer::have_book()
{
    if (!GetHelpData()->GetBookRecArray().empty())
        return true;
    tell_that_there_is_no_help();
    return false;
}

bool sglHelpDisplayer::DisplayContents()
{
    return have_book() && wxHtmlHelpController::DisplayContents();
}

bool sglHelpDisplayer::DisplaySection(wxString const & section)
{
    return have_book() && wxHtmlHelpController::DisplaySection(section);
}
