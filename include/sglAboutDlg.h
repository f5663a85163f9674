#pragma once

#include "ap/apPathName.h"
#include "sglDialog.h"

/// The about box: what the program is, the libraries and languages that it runs with, and the way to the
/// trademarks and credits. Graphical thread.
class sglAboutDlg : public sglDialog {
public:
    explicit sglAboutDlg(wxWindow * parent);

    wxDECLARE_EVENT_TABLE();

protected:
    /// Opens a file in the browser by way of a small page that leads there. Nothing is said when the page
    /// cannot be written; it stays behind as a temporary file.
    void open_redirect_file(apPathName const & path);

private:
    void OnInitDialog(wxInitDialogEvent & event);
    void OnTrademarksAndCredits(wxCommandEvent & event);

    void show_product();
    void show_surroundings();
};
