#include "sglTabDlg.h"

#include "sglApp.h"
#include "sglBatchFiles.h"
#include "sglMergeFiles.h"
#include "sglMessageBox.h"
#include "sglResourceString.h"
#include "sglSingleFile.h"

#include "wxt/wxtStringConverter.h"

#include <memory>
#include <wx/button.h>
#include <wx/display.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/xrc/xmlres.h>

wxBEGIN_EVENT_TABLE(sglTabDlg, sglPropertySheet)
    EVT_BUTTON(wxID_CLOSE, sglTabDlg::OnExit)
    EVT_MENU(XRCID("IDM_FILE_OPEN"), sglTabDlg::OnOpen)
    EVT_MENU(XRCID("IDM_FILE_SAVE_AS"), sglTabDlg::OnSaveAs)
wxEND_EVENT_TABLE()

sglTabDlg::sglTabDlg(sglIMessageDisplayer const * displayer, wxWindow * parent)
    : sglPropertySheet(parent, 1, 1, displayer)
{
    OnInitDialog();
}

void sglTabDlg::OnInitDialog()
{
    auto & app = const_cast<sglApp &>(sglApp::app());
    // Told at once: a window that is there keeps its border and its buttons.
    Create(parent(), wxID_ANY, wxtStringConverter::to_wx(app.titlebar_string()), wxDefaultPosition,
           wxDefaultSize, wxDEFAULT_FRAME_STYLE & ~(wxRESIZE_BORDER | wxMAXIMIZE_BOX));
    SetSize(ConvertDialogToPixels(wxSize(450, 380)));
    SetIcon(app.main_icon());
    SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    m_notebook =
        new wxNotebook(this, wxID_ANY, wxDefaultPosition, ConvertDialogToPixels(wxSize(439, 316)), 0);
    add_pages();
    create_menu();

    auto * const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_notebook, 1, wxEXPAND | wxALL, 5);
    auto * const buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(5, 5, 1, wxALL | wxALIGN_CENTER_VERTICAL, 5);
    buttons->Add(
        new wxButton(this, wxID_CLOSE, wxtStringConverter::to_wx(sglResourceString("vmrgrlib", 1239))), 0,
        wxALL, 5);
    sizer->Add(buttons, 0, wxEXPAND, 0);
    SetSizer(sizer, true);
    // Long texts and large letters need more than the usual size, and the user cannot make the window larger.
    wxSize const needed = sizer->ComputeFittingWindowSize(this);
    wxSize const size(std::max(GetSize().x, needed.x), std::max(GetSize().y, needed.y));
    SetSize(size);
    m_first_size = size;
    CentreOnScreen(wxBOTH);
    // A desktop that tells the size of its decorations late has forgotten the place by then.
    Bind(wxEVT_SHOW, &sglTabDlg::OnFirstShow, this);
    Bind(wxEVT_SIZE, &sglTabDlg::OnSizeTold, this);
}

void sglTabDlg::OnSizeTold(wxSizeEvent & event)
{
    constexpr int most_corrections = 2; // a small screen has no room for the whole window
    event.Skip();
    // The toolkit guesses how large the decorations are, and is wrong with its first window.
    if (IsShown() && GetSize().y < m_first_size.y && m_corrections < most_corrections) {
        ++m_corrections;
        CallAfter([this] { SetSize(m_first_size); });
    }
}

void sglTabDlg::OnFirstShow(wxShowEvent & event)
{
    event.Skip();
    if (!event.IsShown())
        return;
    Unbind(wxEVT_SHOW, &sglTabDlg::OnFirstShow, this);
    // By what was asked for: the size that the window tells at this moment may be that of the decorations
    // alone.
    wxRect const screen = wxDisplay(this).GetClientArea();
    Move(screen.x + std::max(0, (screen.width - m_first_size.x) / 2),
         screen.y + std::max(0, (screen.height - m_first_size.y) / 2));
}

template <class Page>
Page * sglTabDlg::add_page(utString & missing)
{
    auto page = std::make_unique<Page>(m_notebook);
    // The window of a page is made after what the installation says of it.
    if (!page->create()) {
        missing += "\n" + page->caption();
        return nullptr;
    }
    m_notebook->AddPage(page.get(), wxtStringConverter::to_wx(page->caption()), false, -1);
    return page.release();
}

void sglTabDlg::add_pages()
{
    utString missing;
    m_single = add_page<sglSingleFile>(missing);
    m_merge = add_page<sglMergeFiles>(missing);
    m_batch = add_page<sglBatchFiles>(missing);
    if (!missing.empty())
        sgl_show_error_text(
            sglGUIString("d.messagebox::These pages cannot be shown, because their description "
                         "is missing from the installation or is damaged:\n%s\n\nPlease "
                         "install [[PROGRAM-NAME]] again.",
                         "vmrgrlib")
                .process(ut_text_arguments(missing)));
    if (m_single)
        m_single->make_default();
    m_notebook->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, &sglTabDlg::OnPageChanged, this);
}

void sglTabDlg::OnPageChanged(wxBookCtrlEvent & event)
{
    event.Skip();
    if (auto * const page = dynamic_cast<sglTranslateDialog *>(m_notebook->GetCurrentPage()))
        page->make_default();
}

void sglTabDlg::open_files(wxArrayString const & files)
{
    if (files.empty())
        return;
    sglTranslateDialog * page = m_single;
    if (files.size() > 1)
        page = m_merge;
    if (!page)
        return;
    m_notebook->SetSelection(static_cast<std::size_t>(m_notebook->FindPage(page)));
    page->handle_dropped_files(files);
}

utString sglTabDlg::help_topic(int command) const
{
    if (command != XRCID("ID_HELP"))
        return utString::make_invalid();
    wxWindow const * const page = m_notebook->GetCurrentPage();
    if (page == m_merge)
        return "source/pages/merge.htm";
    return page == m_batch ? "source/pages/batch.htm" : "source/pages/single.htm";
}

void sglTabDlg::check_menus()
{
    if (!has_menu())
        return;
    sglPropertySheet::check_menus();
    GetMenuBar()->Check(XRCID("IDM_VIEW_EXPERT"), true);
}

bool sglTabDlg::may_leave()
{
    return !m_batch || m_batch->may_leave();
}

void sglTabDlg::press_on_page(int on_single, int on_merge, int on_batch)
{
    wxWindow * const page = m_notebook->GetCurrentPage();
    // A page that is at work takes no command either.
    if (!page || !page->IsEnabled())
        return;
    int id = 0;
    if (page == m_single)
        id = on_single;
    else if (page == m_merge)
        id = on_merge;
    else if (page == m_batch)
        id = on_batch;
    wxCommandEvent event(wxEVT_BUTTON, id);
    event.StopPropagation();
    page->ProcessWindowEvent(event);
}

void sglTabDlg::OnOpen(wxCommandEvent &)
{
    press_on_page(XRCID("IDC_SINGLE_INPUT_BROWSE"), XRCID("IDC_MULTIPLE_INPUT_BROWSE"),
                  XRCID("IDC_BATCH_INPUT_BROWSE_BUTTON"));
}

void sglTabDlg::OnSaveAs(wxCommandEvent &)
{
    press_on_page(XRCID("IDC_SINGLE_OUTPUT_BROWSE"), XRCID("IDC_MULTIPLE_OUTPUT_BROWSE"),
                  XRCID("IDC_BATCH_OUTPUT_BROWSE_BUTTON"));
}
