#pragma once

#include "sglPropertySheet.h"

class sglBatchFiles;
class sglMergeFiles;
class sglSingleFile;
class wxArrayString;
class wxBookCtrlEvent;
class wxNotebook;

/// The main window of a program: the pages for one file, for several files merged into one and for a batch,
/// with a button to close it. Of a fixed size. Graphical thread.
class sglTabDlg : public sglPropertySheet {
public:
    /// The window is complete and not shown yet.
    sglTabDlg(sglIMessageDisplayer const * displayer, wxWindow * parent);

    /// Gives one file to the page for one, several to the page that merges them, and shows that page.
    void open_files(wxArrayString const & files);

    /// The topic of the help that a command of the help menu asks for: the page that is shown, or an invalid
    /// text for the contents.
    utString help_topic(int command) const;

protected:
    void check_menus() override;
    bool may_leave() override;

    wxDECLARE_EVENT_TABLE();

private:
    void OnInitDialog();
    void add_pages();
    /// Null for a page that cannot be made, whose name then joins the missing ones.
    template <class Page>
    Page * add_page(utString & missing);
    /// Presses the button of the present page that stands for a command of the menu.
    void press_on_page(int on_single, int on_merge, int on_batch);

    void OnFirstShow(wxShowEvent & event);
    void OnSizeTold(wxSizeEvent & event);
    void OnPageChanged(wxBookCtrlEvent & event);
    void OnOpen(wxCommandEvent & event);
    void OnSaveAs(wxCommandEvent & event);

    sglSingleFile * m_single = nullptr;
    sglMergeFiles * m_merge = nullptr;
    sglBatchFiles * m_batch = nullptr;
    wxNotebook * m_notebook = nullptr;
    wxSize m_first_size;
    int m_corrections = 0; // of a size that came out smaller than asked for
};
