// The queue of the batch page: what gets into it, and its run.

#include "sglBatchFiles.h"

#include "sglBatchProgressDialog.h"
#include "sglBatchTranslation.h"
#include "sglDropFiles.h"
#include "sglMessageBox.h"

#include "ann/annDocument.h"
#include "pages/sglOccupiedPage.h"
#include "pages/sglReachedFile.h"
#include "sdu/sduFileFunctions.h"
#include "wxt/wxtStringConverter.h"

#include <algorithm>
#include <wx/button.h>
#include <wx/listbox.h>

sglBatchItem sglBatchFiles::details() const
{
    return {sglRowcoPrf(m_current_input_row->clone()), sglRowcoPrf(m_current_output_row->clone())};
}

int sglBatchFiles::current_details_valid(int exclude)
{
    utString const name = m_current_output_row->filename(); // a box may be open for long
    auto const refuse = [&](unsigned int message) {
        sglMessageBox("vmrgrlib", message, wxOK | wxICON_ERROR, name);
        return 0;
    };
    sglReachedFile const file(name);
    // An output that is not there yet cannot overwrite an input, as long as it stays away until the run: the
    // run itself makes sure of that.
    if (sdu_check_file_exists(name) == sduFileExists) {
        if (std::any_of(m_items.begin(), m_items.end(),
                        [&](auto const & item) { return file.is(item.input_row()->filename()); }))
            return refuse(1271);
        if (sglMessageBox("vmrgrlib", 1270, wxYES_NO | wxNO_DEFAULT, name) != wxID_YES)
            return 0;
    }
    for (int i = 0; i < m_items.count(); ++i)
        if (i != exclude && file.is(output_row(i).filename()))
            return refuse(1272);
    return 1;
}

int sglBatchFiles::add_details_to_batch()
{
    if (!has_details() || !current_details_valid(-1))
        return 0;
    m_items.append(details());
    m_batch_list->Append(wxtStringConverter::path_to_wx(m_current_input_row->filename()));
    return 1;
}

void sglBatchFiles::OnAddDetails(wxCommandEvent &)
{
    if (!add_details_to_batch())
        return;
    m_batch_list->SetSelection(m_items.count() - 1);
    sort_and_allow(false, false);
}

void sglBatchFiles::OnSaveDetails(wxCommandEvent &)
{
    int const selection = m_batch_list->GetSelection();
    if (selection == wxNOT_FOUND || !has_details() || !current_details_valid(selection))
        return;
    m_items[selection] = details();
    m_add_button->Disable();
    m_save_button->Disable();
}

void sglBatchFiles::OnRemoveDetails(wxCommandEvent &)
{
    if (m_batch_list->GetSelection() != wxNOT_FOUND)
        remove_translation(m_batch_list->GetSelection());
}

void sglBatchFiles::remove_translation(int index)
{
    m_batch_list->Delete(static_cast<unsigned int>(index));
    m_items.remove(index);
    sort_button_status();
    m_save_button->Disable();
}

void sglBatchFiles::files_dropped_into_list(wxArrayString const & files)
{
    sglOccupiedPage const occupied(*this);
    int added = 0;
    utString failures;
    for (auto const & file : files) {
        utString const name = wxtStringConverter::path_to_ut(file);
        if (!name.empty() && create_details(name) && add_details_to_batch()) {
            ++added;
            continue;
        }
        failures = failures + (failures.empty() ? "  " : "\n  ") + name;
    }
    if (added) {
        m_batch_list->SetSelection(m_items.count() - 1);
        sort_and_allow(false, false);
    } else {
        sort_and_allow(true, false);
    }
    if (!failures.empty())
        sglMessageBox("vmrgrlib", 1269, wxOK | wxICON_ERROR, failures);
}

void sglBatchFiles::OnBatchTranslate(wxCommandEvent &)
{
    std::vector<std::unique_ptr<annDocument>> documents;
    sglBatchTranslation batch;
    for (int i = 0; i < m_items.count(); ++i) {
        documents.push_back(std::make_unique<annDocument>("Model"));
        auto & input = *m_items[i].input_row();
        batch.input_file(input.filename(), i);
        batch.input_resource_table(input.resource_table(), i);
        batch.input_format(input.file_type(), i);
        auto & output = *m_items[i].output_row();
        batch.output_file(output.filename(), i);
        batch.output_resource_table(output.resource_table(), i);
        batch.output_format(output.file_type(), i);
        batch.output_document(documents.back().get(), i);
    }
    sglBatchProgressDialog progress(m_info, this);
    batch.progress(&progress);
    batch.execute();
}

bool sglBatchDropFiles::OnDropFiles(wxCoord, wxCoord, wxArrayString const & files)
{
    if (!sgl_page_takes_files(*m_page))
        return false;
    sgl_raise_top_window(m_page);
    m_page->files_dropped_into_list(files);
    return true;
}
