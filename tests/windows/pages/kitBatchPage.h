#pragma once

#include "sglBatchFiles.h"
#include "windows/pages/kitOpenPage.h"

#include <wx/button.h>
#include <wx/listbox.h>

/// The batch page, and what a user does to its queue.
class kitBatchPageTest : public kitOpenPageTest {
protected:
    void SetUp() override
    {
        kitOpenPageTest::SetUp();
        m_batch = open<sglBatchFiles>(kit_batch_page);
    }
    wxListBox & queue() { return *find<wxListBox>(*m_page, "IDC_BATCH_BATCH_LIST"); }
    int queued() { return m_batch->num_input_rows(); }
    void add() { press(*m_page, "IDC_BATCH_ADD_BUTTON"); }
    void save() { press(*m_page, "IDC_BATCH_SAVE_BUTTON"); }
    bool can_add() { return enabled("IDC_BATCH_ADD_BUTTON"); }
    bool can_save() { return enabled("IDC_BATCH_SAVE_BUTTON"); }
    bool can_remove() { return enabled("IDC_BATCH_REMOVE_BUTTON"); }
    void drop_on_queue(std::vector<std::string> const & files) { drop_on(queue(), files); }
    void click_line(int line)
    {
        queue().SetSelection(line);
        wxCommandEvent event(wxEVT_LISTBOX, queue().GetId());
        event.SetEventObject(&queue());
        event.SetInt(line);
        queue().ProcessWindowEvent(event);
    }
    /// Queues a file with an output of the user's own choice.
    void queue_pair(std::string const & input, std::string const & output)
    {
        drop({input});
        browse_output(output);
        add();
    }
    std::string queued_output(int index) { return m_batch->output_row(index).filename().str(); }

    sglBatchFiles * m_batch = nullptr;

private:
    kitModal m_no_boxes; // a box that a test does not expect fails it, where it would wait for an answer
};
