#pragma once

#include "sglDialog.h"
#include "sglExportOptionsFile.h"

class wxListBox;

/// Lets the user choose a target system from the export options file. The systems live as long as the dialog.
class sglExportToDialog : public sglDialog {
public:
    explicit sglExportToDialog(wxWindow * parent);

    /// An invalid `file` stands for the default one. Non-zero when there are systems to choose from.
    int initialise(utString const & file);
    sglExportSystem const * selected_system() const; ///< null while none is selected

protected:
    void OnOk(wxCommandEvent & event);
    void OnCancel(wxCommandEvent & event);
    void OnInitDialog(wxInitDialogEvent & event);

private:
    wxListBox * m_list;
    sglExportOptionsFile m_options;

    wxDECLARE_EVENT_TABLE();
};
