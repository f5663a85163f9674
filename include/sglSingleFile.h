#pragma once

#include "sglRow.h"
#include "sglTranslateDialog.h"

/// The page that translates one input file into one output file.
class sglSingleFile : public sglTranslateDialog {
public:
    explicit sglSingleFile(wxWindow * parent);

    void handle_dropped_files(wxArrayString const & files) override; ///< the first one is taken
    int num_input_rows() const override { return 1; }
    sglRow const & input_row(int) const override { return m_input_row; }
    int num_output_rows() const override { return 1; }
    sglRow const & output_row(int) const override { return m_output_row; }

protected:
    int find_children() override;
    utString resource_id() const override { return "DLG_SINGLE"; }
    char const * tag() const override { return "vmrgrlib"; }
    bool is_input(utString const & path) const override;

    wxDECLARE_EVENT_TABLE();

private:
    int InitialiseInputRow(); ///< 0 when the user keeps the options of the row, and with them its file
    /// Takes the input that is shown. When the user keeps the file before it, so does the output: `before`.
    void take_input(sglRow const & before);
    void enableTranslateButton();
    bool shows_file() const;

    void OnInputBrowse(wxCommandEvent & event);
    void OnOutputBrowse(wxCommandEvent & event);
    void OnInputResource(wxCommandEvent & event);
    void OnOutputResource(wxCommandEvent & event);
    void OnSelChangeInputFormat(wxCommandEvent & event);
    void OnSelChangeOutputFormat(wxCommandEvent & event);

    sglRow m_input_row;
    sglRow m_output_row;
};
