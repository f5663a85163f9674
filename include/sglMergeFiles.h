#pragma once

#include "sglRow.h"
#include "sglTranslateDialog.h"

class wxListEvent;

/// The page that merges several input files, each with a format and options of its own, into one output
/// file. A file is set up in the controls first and then added to the list of inputs.
class sglMergeFiles : public sglTranslateDialog {
public:
    explicit sglMergeFiles(wxWindow * parent);

    void handle_dropped_files(wxArrayString const & files) override; ///< adds all of them
    int num_input_rows() const override { return m_rows.count(); }
    sglRow const & input_row(int index) const override { return *m_rows[index]; }
    int num_output_rows() const override { return 1; }
    sglRow const & output_row(int) const override { return m_output_row; }

protected:
    int find_children() override;
    utString resource_id() const override { return "DLG_MERGE"; }
    char const * tag() const override { return "vmrgrlib"; }

    wxDECLARE_EVENT_TABLE();

private:
    void EnableAddButton();
    void enableTranslateButton();
    void add_multiple_files(utStringcoPageArr files); ///< its own: what is handled meanwhile may change them
    int selected_line() const;                        ///< or -1
    void enable_line_buttons();                       ///< those that act on the selected line
    void move_line(int from, int to);                 ///< to the place of a neighbour, which takes its own
    bool add_staged_file();
    bool is_in_list(wxString const & name) const; ///< by its whole text, byte for byte

    void OnInputBrowse(wxCommandEvent & event);
    void OnOutputBrowse(wxCommandEvent & event);
    /// The options are those of the selected line, in the format that it was added with.
    void OnInputResource(wxCommandEvent & event);
    void OnOutputResource(wxCommandEvent & event);
    void OnSelChangeInputFormat(wxCommandEvent & event);
    void OnSelChangeOutputFormat(wxCommandEvent & event);
    void OnClickInputList(wxListEvent & event);
    void OnDblClickOptionsList(wxListEvent & event);
    void OnAddFile(wxCommandEvent & event);
    void OnRemove(wxCommandEvent & event);
    void OnMoveUp(wxCommandEvent & event);
    void OnMoveDown(wxCommandEvent & event);

    wxListCtrl * m_file_list = nullptr;
    wxButton * m_add_button = nullptr;
    wxButton * m_remove_button = nullptr;
    wxButton * m_up_button = nullptr;
    wxButton * m_down_button = nullptr;
    sglFileDialog m_file_list_details;
    sglRowcoDListPrgcoPrgcoDList m_rows; ///< one for each line of the list
    sglRow m_output_row;
};
