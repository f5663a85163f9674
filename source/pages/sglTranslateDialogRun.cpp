// The pages where they translate.

#include "sglTranslateDialog.h"

#include "sglGUIProgressDialog.h"
#include "sglMessageBox.h"
#include "sglTranslation.h"

#include "sdu/sduFileFunctions.h"

bool sglTranslateDialog::may_overwrite(utString const & file) const
{
    if (m_output_details.confirmed(file) || sdu_check_file_exists(file) != sduFileExists)
        return true;
    return sglMessageBox("vmrgrlib", 1118, wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION, file) == wxID_YES;
}

void sglTranslateDialog::OnTranslate(wxCommandEvent &)
{
    annDocument document("Model");
    sglTranslation translation;
    int const rows = num_input_rows();
    if (rows < 1) {
        m_user_edited = 0;
        return;
    }
    for (int i = 0; i < rows; ++i) {
        sglRow const & row = input_row(i);
        vmrTableInstance options = row.resource_table();
        translation.input_file(row.filename(), i);
        translation.input_resource_table(options, i);
        translation.input_format(row.file_type(), i);
    }
    sglRow const & row = output_row(0);
    vmrTableInstance options = row.resource_table();
    translation.output_file(row.filename(), 0);
    translation.output_resource_table(options, 0);
    translation.output_format(row.file_type(), 0);
    translation.output_document(&document, 0);
    if (!may_overwrite(row.filename()))
        return;

    sglGUIProgressDialog dialog(m_info, this, nullptr);
    translation.progress(&dialog);
    switch (translation.execute().value()) {
    case sglTranslationResult::started:
        m_user_edited = 0;
        m_output_details.forget_confirmed();
        break;
    case sglTranslationResult::no_input_translator:
        sglMessageBox("vmrgrlib", 1165, wxICON_ERROR);
        break;
    case sglTranslationResult::no_output_translator:
        sglMessageBox("vmrgrlib", 1166, wxICON_ERROR);
        break;
    default:
        break;
    }
}
