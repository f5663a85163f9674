#pragma once

#include <wx/dnd.h>

#include "sglBatchItem.h"
#include "sglTranslateDialog.h"

class sglBatchFiles;
class wxListBox;

/// Takes files that are dropped on the queue of the page, which is not owned.
class sglBatchDropFiles : public wxFileDropTarget {
public:
    explicit sglBatchDropFiles(sglBatchFiles * page) : m_page(page) {}

    bool OnDropFiles(wxCoord x, wxCoord y, wxArrayString const & files) override;

private:
    sglBatchFiles * m_page;
};

/// The page that queues translations of one file into one file and runs them as one batch. What is set up in
/// the controls is a copy: the queue changes with Add, Save and Remove only.
class sglBatchFiles : public sglTranslateDialog {
public:
    explicit sglBatchFiles(wxWindow * parent);

    void handle_dropped_files(wxArrayString const & files) override; ///< the first one is taken
    int num_input_rows() const override { return m_items.count(); }
    sglRow const & input_row(int index) const override { return *m_items[index].input_row(); }
    int num_output_rows() const override { return m_items.count(); }
    sglRow const & output_row(int index) const override { return *m_items[index].output_row(); }

    /// Queues each file with the output that is proposed for it.
    virtual void files_dropped_into_list(wxArrayString const & files);

protected:
    int find_children() override;
    utString resource_id() const override { return "DLG_BATCH_DIALOG"; }
    char const * tag() const override { return "vmrgrlib"; }

    int add_details_to_batch(); ///< 0 when the details are refused
    /// Sets the details up from a file, without a dialog. Returns 0 when they cannot be translated.
    int create_details(utString const & input_file);
    /// Whether the output of the details goes with the outputs of the queue, but for the item at `exclude`,
    /// and with those inputs that it would overwrite. The user is told, and asked about an existing file.
    int current_details_valid(int exclude);
    void remove_translation(int index);
    void sort_button_status();

    wxDECLARE_EVENT_TABLE();

private:
    void sort_and_allow(bool add, bool save); ///< turns buttons off only
    void forget_input();
    sglBatchItem details() const;
    bool has_details() const;
    void show_file(wxListCtrl & list, sglRow const & row);

    void OnInputBrowse(wxCommandEvent & event);
    void OnOutputBrowse(wxCommandEvent & event);
    void OnInputResource(wxCommandEvent & event);
    void OnOutputResource(wxCommandEvent & event);
    void OnSelChangeInputFormat(wxCommandEvent & event);
    void OnSelChangeOutputFormat(wxCommandEvent & event);
    void OnAddDetails(wxCommandEvent & event);
    void OnSaveDetails(wxCommandEvent & event);
    void OnRemoveDetails(wxCommandEvent & event);
    void OnClickBatchList(wxCommandEvent & event);
    void OnBatchTranslate(wxCommandEvent & event);

    wxListBox * m_batch_list = nullptr;
    wxButton * m_add_button = nullptr;
    wxButton * m_save_button = nullptr;
    wxButton * m_remove_button = nullptr;
    sglBatchItemcoDList m_items;
    sglRowcoPrf m_current_input_row;
    sglRowcoPrf m_current_output_row;
};
