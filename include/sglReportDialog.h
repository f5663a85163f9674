#pragma once

#include "sdb/sdbSdbFileFactory.h"
#include "sdb/sdbTranslationData.h"
#include "sdu/sduServicePtr.h"
#include "sglDialog.h"
#include "vmr/vmrabsAppInfo.h"

class sglEdit;
class wxTreeCtrl;
class wxTreeEvent;

/// Shows all translations that the application has registered so far: a list of them, and the report of the
/// one selected, to be saved and copied. The list is that of the moment of opening.
class sglReportDialog : public sglDialog {
public:
    explicit sglReportDialog(wxWindow * parent);

protected:
    sdbTranslationData const * get_selected_data() const; ///< null when there is none, or for the root
    utString get_save_file_name(utString const & name);   ///< asks the user; empty when nothing was chosen

    wxDECLARE_EVENT_TABLE();

private:
    utString text_of(sdbTranslationData const & record) const;
    utString text_of_all() const; ///< one report after the other, two line ends behind each
    void save(utString const & file, utString const & text) const;
    void copy(utString const & text) const;

    void OnInitDialog(wxInitDialogEvent & event);
    void OnReportOk(wxCommandEvent & event);
    void OnSaveSelected(wxCommandEvent & event);
    void OnSaveAll(wxCommandEvent & event);
    void OnCopySelected(wxCommandEvent & event);
    void OnCopyAll(wxCommandEvent & event);
    void OnCopyText(wxCommandEvent & event);
    void OnSelectAll(wxCommandEvent & event);
    void OnSelchangeTree(wxTreeEvent & event);

    sglEdit * m_report = nullptr;
    wxTreeCtrl * m_tree = nullptr;
    vmrabsAppInfo const * m_info;
    sduServicePtr<sdbSdbFileFactory const> m_files;
};
