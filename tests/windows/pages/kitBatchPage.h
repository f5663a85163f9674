#pragma once

#include "sglBatchFiles.h"
#include "windows/pages/kitOpenPage.h"

#include <wx/button.h>

/// The batch page, and what a user does to its queue.
class kitBatchPageTest : public kitOpenPageTest {
protected:
    void SetUp() override
    {
        kitOpenPageTest::SetUp();
        m_batch = open<sglBatchFiles>(kit_batch_page);
    }
    wxListCtrl & queue() { return *find<wxListCtrl>(*m_page, "IDC_BATCH_BATCH_LIST"); }
    std::string line(int number, int column = 0) { return cell("IDC_BATCH_BATCH_LIST", column, number); }
    std::vector<int> chosen()
    {
        std::vector<int> lines;
        for (long one = -1; (one = queue().GetNextItem(one, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED)) != -1;)
            lines.push_back(static_cast<int>(one));
        return lines;
    }
    int queued() { return m_batch->num_input_rows(); }
    void add() { press(*m_page, "IDC_BATCH_ADD_BUTTON"); }
    void save() { press(*m_page, "IDC_BATCH_SAVE_BUTTON"); }
    bool can_add() { return enabled("IDC_BATCH_ADD_BUTTON"); }
    bool can_save() { return enabled("IDC_BATCH_SAVE_BUTTON"); }
    bool can_remove() { return enabled("IDC_BATCH_REMOVE_BUTTON"); }
    void drop_on_queue(std::vector<std::string> const & files) { drop_on(queue(), files); }
    void choose_lines(std::vector<int> const & lines)
    {
        for (int one = 0; one < queue().GetItemCount(); ++one) {
            bool const chosen = std::find(lines.begin(), lines.end(), one) != lines.end();
            queue().SetItemState(one, chosen ? wxLIST_STATE_SELECTED : 0, wxLIST_STATE_SELECTED);
        }
        settle();
    }
    void click_line(int line) { choose_lines({line}); }
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
