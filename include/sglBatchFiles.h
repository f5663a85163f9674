#pragma once

#include <memory>
#include <vector>

#include <wx/dnd.h>

#include "sglBatchItem.h"
#include "sglTranslateDialog.h"

enum class sglBatchState;
class sglBatchFiles;
class sglBatchList;
class sglBatchTranslation;
class wxKeyEvent;
class wxListCtrl;
class wxListEvent;

/// Takes files that are dropped on the queue of the page, which is not owned.
class sglBatchDropFiles : public wxFileDropTarget {
public:
    explicit sglBatchDropFiles(sglBatchFiles * page) : m_page(page) {}

    bool OnDropFiles(wxCoord x, wxCoord y, wxArrayString const & files) override;

private:
    sglBatchFiles * m_page;
};

/// The page that queues translations of one file into one file and runs them as one batch. What is set up in
/// the controls is a copy: the queue changes with Add, Save and Remove only, and nothing that was changed in
/// the details of a translation of the queue goes without a question. Where several are chosen, the details
/// are those of the first, and Save gives the format of the output and the options that were changed to all
/// of them.
class sglBatchFiles : public sglTranslateDialog {
public:
    explicit sglBatchFiles(wxWindow * parent);
    ~sglBatchFiles() override;

    void handle_dropped_files(wxArrayString const & files) override; ///< the first one is taken
    int num_input_rows() const override { return m_items.count(); }
    sglRow const & input_row(int index) const override { return *m_items[index].input_row(); }
    int num_output_rows() const override { return m_items.count(); }
    sglRow const & output_row(int index) const override { return *m_items[index].output_row(); }

    /// Asks the user, where translations of the queue have not been made. False when he wants to stay.
    bool may_leave();

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
    bool output_goes_with_queue(utString const & name, int exclude);

    /// What has been changed in the details of the translations that are shown.
    struct Changes {
        bool files = false; ///< or the format of the input: what belongs to one translation only
        bool output_format = false;
        bool input_options = false;
        bool output_options = false;

        bool any() const { return files || output_format || input_options || output_options; }
    };
    void note_change(bool Changes::*what);
    bool reduce_to_first();   ///< of several; false when the user keeps to what he has changed in all
    void drop_changes();      ///< what is shown stays
    void forget_changes();    ///< shows the translations as they are in the queue
    bool ask_about_changes(); ///< false when they are neither saved nor given up
    bool save_changes(std::vector<int> const & lines);
    bool save_into(int line);
    void replace_item(int line, sglBatchItem item);
    void choose(std::vector<int> const & lines);
    void show_details_of(std::vector<int> const & lines);
    void show_selection();
    void begin_new_details();
    void show_outcome(sglBatchTranslation const & batch);

    void OnInputBrowse(wxCommandEvent & event);
    void OnOutputBrowse(wxCommandEvent & event);
    void OnInputResource(wxCommandEvent & event);
    void OnOutputResource(wxCommandEvent & event);
    void OnSelChangeInputFormat(wxCommandEvent & event);
    void OnSelChangeOutputFormat(wxCommandEvent & event);
    void OnAddDetails(wxCommandEvent & event);
    void OnSaveDetails(wxCommandEvent & event);
    void OnRemoveDetails(wxCommandEvent & event);
    void OnClickBatchList(wxListEvent & event);
    void OnListKey(wxKeyEvent & event);
    void OnBatchTranslate(wxCommandEvent & event);

    wxListCtrl * m_batch_list = nullptr;
    std::unique_ptr<sglBatchList> m_lines;
    wxButton * m_add_button = nullptr;
    wxButton * m_save_button = nullptr;
    wxButton * m_remove_button = nullptr;
    sglBatchItemcoDList m_items;
    sglRowcoPrf m_current_input_row;
    sglRowcoPrf m_current_output_row;
    std::vector<int> m_chosen; ///< the lines, as far as their being chosen has been dealt with
    std::vector<int> m_shown;  ///< the lines whose details are shown, if they are those of the queue
    Changes m_changes;
    std::vector<sglBatchState> m_states_before; ///< of the lines of m_shown, while there are changes
    bool m_selection_has_changed = false;
};
