// The queue of the batch page: what gets into it, and its run.

#include "sglBatchFiles.h"

#include "sglBatchProgressDialog.h"
#include "sglBatchTranslation.h"
#include "sglDropFiles.h"
#include "sglMessageBox.h"
#include "sglNlsHelp.h"

#include "ann/annDocument.h"
#include "nls/sglShownMessage.h"
#include "pages/sglBatchList.h"
#include "pages/sglOccupiedPage.h"
#include "pages/sglReachedFile.h"
#include "sdu/sduFileFunctions.h"
#include "wxt/wxtStringConverter.h"

#include <algorithm>
#include <wx/button.h>
#include <wx/listctrl.h>

namespace {

sglBatchState state_of(s2sTranslationDetails const & details)
{
    switch (details.status()) {
    case s2sThreadCompleted:
        if (details.num_processed() == 0)
            return sglBatchState::failed;
        return details.verdict() == sdbVerdictLosses || details.verdict() == sdbVerdictDiffers
                   ? sglBatchState::done_with_differences
                   : sglBatchState::done;
    case s2sThreadCancelled:
        return sglBatchState::cancelled;
    default:
        return sglBatchState::failed;
    }
}

bool is_done(sglBatchState state)
{
    return state == sglBatchState::done || state == sglBatchState::done_with_differences;
}

} // namespace

sglBatchItem sglBatchFiles::details() const
{
    return {sglRowcoPrf(m_current_input_row->clone()), sglRowcoPrf(m_current_output_row->clone())};
}

int sglBatchFiles::current_details_valid(int exclude)
{
    utString const name = m_current_output_row->filename(); // a box may be open for long
    return output_goes_with_queue(name, exclude) ? 1 : 0;
}

bool sglBatchFiles::output_goes_with_queue(utString const & name, int exclude)
{
    auto const refuse = [&](unsigned int message) {
        sglMessageBox("vmrgrlib", message, wxOK | wxICON_ERROR, name);
        return false;
    };
    sglReachedFile const file(name);
    // An output that is not there yet cannot overwrite an input, as long as it stays away until the run: the
    // run itself makes sure of that.
    if (sdu_check_file_exists(name) == sduFileExists) {
        if (std::any_of(m_items.begin(), m_items.end(),
                        [&](auto const & item) { return file.is(item.input_row()->filename()); }))
            return refuse(1271);
        if (sglMessageBox("vmrgrlib", 1270, wxYES_NO | wxNO_DEFAULT, name) != wxID_YES)
            return false;
    }
    for (int i = 0; i < m_items.count(); ++i)
        if (i != exclude && file.is(output_row(i).filename()))
            return refuse(1272);
    return true;
}

int sglBatchFiles::add_details_to_batch()
{
    if (!has_details() || !current_details_valid(-1))
        return 0;
    m_items.append(details());
    m_lines->append(m_items[m_items.count() - 1]);
    return 1;
}

void sglBatchFiles::OnAddDetails(wxCommandEvent &)
{
    if (!add_details_to_batch())
        return;
    drop_changes();
    choose({m_items.count() - 1});
    sort_and_allow(false, false);
}

void sglBatchFiles::OnSaveDetails(wxCommandEvent &)
{
    auto const lines = m_lines->selected();
    if (lines.empty() || !save_changes(lines))
        return;
    m_add_button->Disable();
    m_save_button->Disable();
}

void sglBatchFiles::OnRemoveDetails(wxCommandEvent &)
{
    auto const lines = m_lines->selected();
    m_changes = {};
    m_shown.clear();
    m_chosen.clear();
    for (auto line = lines.rbegin(); line != lines.rend(); ++line)
        remove_translation(*line);
}

void sglBatchFiles::remove_translation(int index)
{
    m_lines->remove(index);
    m_items.remove(index);
    sort_button_status();
    m_save_button->Disable();
}

void sglBatchFiles::files_dropped_into_list(wxArrayString const & files)
{
    if (!ask_about_changes())
        return;
    sglOccupiedPage const occupied(*this);
    int added = 0;
    bool last_added = false;
    utString failures;
    for (auto const & file : files) {
        utString const name = wxtStringConverter::path_to_ut(file);
        last_added = !name.empty() && create_details(name) && add_details_to_batch();
        if (last_added) {
            ++added;
            continue;
        }
        failures = failures + (failures.empty() ? "  " : "\n  ") + name;
    }
    if (added) {
        choose({m_items.count() - 1});
        if (!last_added)
            m_shown.clear(); // what is shown is the file that was refused
        sort_and_allow(false, false);
    } else {
        sort_and_allow(true, false);
    }
    if (!failures.empty())
        sglMessageBox("vmrgrlib", 1269, wxOK | wxICON_ERROR, failures);
}

void sglBatchFiles::OnBatchTranslate(wxCommandEvent &)
{
    if (!ask_about_changes())
        return;
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
    if (batch.execute().value() == sglTranslationResult::started)
        show_outcome(batch);
}

void sglBatchFiles::show_outcome(sglBatchTranslation const & batch)
{
    for (int i = 0; i < m_items.count(); ++i)
        m_lines->set_state(i, state_of(batch.communicator().translation_details(i)));
}

bool sglBatchFiles::may_leave()
{
    int waiting = 0;
    for (int i = 0; i < m_items.count(); ++i)
        waiting += !is_done(m_lines->state(i));
    if (waiting == 0)
        return true;
    utString const text = getNlsHelp()->gsprintf("vmrgrlib",
                                                 "d.batch.messagebox::Translations of the batch that have "
                                                 "not been made: %d\nThe batch is not kept. Do "
                                                 "you want to leave all the same?",
                                                 waiting);
    return sgl_show_message(this, text, wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION) == wxID_YES;
}

bool sglBatchDropFiles::OnDropFiles(wxCoord, wxCoord, wxArrayString const & files)
{
    if (!sgl_page_takes_files(*m_page))
        return false;
    sgl_raise_top_window(m_page);
    m_page->files_dropped_into_list(files);
    return true;
}
