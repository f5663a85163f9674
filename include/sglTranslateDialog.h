#pragma once

#include <wx/panel.h>

#include "sglFileDialog.h"
#include "sglRow.h"

class sglComboBox;
class sglReachedFile;
class vmrabsAppInfo;
class wxArrayString;
class wxButton;
class wxListCtrl;

/// The base of the pages of the main window: an input side and an output side, out of which translations are
/// made. The window is there after create(). Graphical thread.
class sglTranslateDialog : public wxPanel {
public:
    explicit sglTranslateDialog(wxWindow * parent); ///< the notebook

    int create(); ///< makes the window; non-zero when the page is ready
    utString const & caption() const { return m_caption; }

    /// Non-zero: the name of the output is the user's own and no longer follows that of the input.
    void UserEdited(int edited) { m_user_edited = edited; }

    void make_default(); ///< Enter in the window translates what is on this page

    virtual void handle_dropped_files(wxArrayString const & files) = 0;

protected:
    virtual int OnInitDialog();
    virtual int find_children() = 0;          ///< finds the page's controls; 1 on success
    virtual utString resource_id() const = 0; ///< the panel's name in the resource files
    virtual char const * tag() const = 0;     ///< the domain of the window's texts

    virtual int num_input_rows() const = 0;
    virtual sglRow const & input_row(int index) const = 0;
    virtual int num_output_rows() const = 0;
    virtual sglRow const & output_row(int index) const = 0;

    /// What the pages' handlers have in common. These return the code of the dialog that they open.
    int OnInputBrowse(wxCommandEvent & event, sglRow & output_row);
    int OnOutputBrowse(wxCommandEvent & event, sglRow & output_row);
    int OnInputResource(wxCommandEvent & event, sglRow & row, int index);
    int OnOutputResource(wxCommandEvent & event, sglRow & row);
    /// Translates all the input rows into the first output row, behind a progress dialog.
    void OnTranslate(wxCommandEvent & event);
    void OnCloseInputFormat(wxCommandEvent & event);
    void OnCloseOutputFormat(wxCommandEvent & event);
    void OnSelInputFormat(wxCommandEvent & event);
    void OnSelOutputFormat(wxCommandEvent & event);

    /// The button is on when the page allows it, the output format is known and there is an output file.
    void enableTranslateButton(int may_enable);
    /// Proposes an output for the input file. Returns 0, changing nothing, when no format can be proposed.
    int fill_output_fields(utString const & input_file, sglRow & output_row);
    void set_resource_file(sglRow const & row, wxListCtrl * list, int index);
    /// Where a page takes one file, a folder is of no use to it; says so.
    void tell_of_folder(utString const & path) const;
    void addFormatTypes();

    /// Whether the path is a file that the page reads, under whatever name.
    virtual bool is_input(utString const & path) const;
    bool shows_input(sglReachedFile const & file) const;

    vmrabsAppInfo const * m_info;
    int m_user_edited = 0;
    utString m_caption;
    wxListCtrl * m_input_list = nullptr;
    wxListCtrl * m_output_list = nullptr;
    sglComboBox * m_input_combo = nullptr;
    sglComboBox * m_output_combo = nullptr;
    wxButton * m_input_resource_button = nullptr;
    wxButton * m_output_resource_button = nullptr;
    wxButton * m_translate_button = nullptr;
    sglFileDialog m_input_details;
    sglFileDialog m_output_details;

    wxDECLARE_EVENT_TABLE();

private:
    bool may_overwrite(utString const & file) const;
    void OnChildFocus(wxChildFocusEvent & event);

    wxWindow * m_parent;
};
