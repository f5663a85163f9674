// The translations of the queue that are chosen: their details above it, and what is changed in them.

#include "sglBatchFiles.h"

#include "sglMessageBox.h"
#include "sglNlsHelp.h"

#include "nls/sglShownMessage.h"
#include "pages/sglBatchList.h"

#include <algorithm>
#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/msgdlg.h>

void sglBatchFiles::choose(std::vector<int> const & lines)
{
    m_lines->select(lines);
    m_chosen = lines;
    m_shown = lines;
}

// A click tells of each line that changes its state by itself; the details follow once, when all have.
void sglBatchFiles::OnClickBatchList(wxListEvent & event)
{
    if (event.GetEventType() == wxEVT_LIST_ITEM_ACTIVATED && !m_changes.any())
        m_chosen.clear();
    if (!m_selection_has_changed)
        CallAfter([this] { show_selection(); });
    m_selection_has_changed = true;
}

void sglBatchFiles::show_selection()
{
    m_selection_has_changed = false;
    auto const lines = m_lines->selected();
    if (lines == m_chosen)
        return;
    if (!ask_about_changes()) {
        m_lines->select(m_chosen);
        return;
    }
    if (lines.empty()) {
        choose({});
        sort_button_status();
        m_save_button->Disable();
        return;
    }
    m_lines->select(lines);
    show_details_of(lines);
}

void sglBatchFiles::show_details_of(std::vector<int> const & lines)
{
    m_chosen = lines;
    m_shown = lines;
    m_current_input_row.reset(input_row(lines.front()).clone());
    m_current_output_row.reset(output_row(lines.front()).clone());
    m_input_details.show_row(*m_current_input_row);
    m_output_details.show_row(*m_current_output_row);
    sort_and_allow(false, false);
}

void sglBatchFiles::begin_new_details()
{
    drop_changes();
    m_shown.clear();
}

bool sglBatchFiles::reduce_to_first()
{
    auto const lines = m_lines->selected();
    if (lines.size() < 2)
        return true;
    if (!ask_about_changes())
        return false;
    bool const shown = !m_shown.empty();
    choose({lines.front()});
    if (!shown)
        m_shown.clear();
    return true;
}

void sglBatchFiles::note_change(bool Changes::*what)
{
    if (m_shown.empty())
        return;
    if (!m_changes.any()) {
        m_states_before.clear();
        for (int const line : m_shown) {
            m_states_before.push_back(m_lines->state(line));
            m_lines->set_state(line, sglBatchState::changed);
        }
    }
    m_changes.*what = true;
}

void sglBatchFiles::drop_changes()
{
    if (!m_changes.any())
        return;
    m_changes = {};
    for (std::size_t i = 0; i < m_shown.size(); ++i)
        m_lines->set_state(m_shown[i], m_states_before[i]);
}

void sglBatchFiles::forget_changes()
{
    drop_changes();
    show_details_of(m_shown);
}

bool sglBatchFiles::ask_about_changes()
{
    if (!m_changes.any())
        return true;
    utString const text = getNlsHelp()->gsprintf("vmrgrlib",
                                                 "d.batch.messagebox::The changes to the translation of %s "
                                                 "have not been saved.\nDo you want to save them?",
                                                 input_row(m_shown.front()).filename());
    switch (sgl_show_message(this, text, wxYES_NO | wxCANCEL | wxICON_QUESTION)) {
    case wxID_YES:
        return save_changes(m_shown);
    case wxID_NO:
        forget_changes();
        return true;
    default:
        return false;
    }
}

bool sglBatchFiles::save_changes(std::vector<int> const & lines)
{
    if (!has_details())
        return false;
    if (lines.size() == 1) {
        if (!current_details_valid(lines.front()))
            return false;
        replace_item(lines.front(), details());
        m_changes = {};
        choose(lines);
        return true;
    }
    bool saved = true;
    for (int const line : lines)
        saved = save_into(line) && saved;
    drop_changes();
    show_details_of(lines);
    return saved;
}

// Several have in common what was changed; each keeps its files, but for the ending of a new format.
bool sglBatchFiles::save_into(int line)
{
    sglBatchItem item(sglRowcoPrf(input_row(line).clone()), sglRowcoPrf(output_row(line).clone()));
    auto & input = *item.input_row();
    if (m_changes.input_options && input.file_type() == m_current_input_row->file_type())
        input.take_options(*m_current_input_row);
    auto & output = *item.output_row();
    utString const & format = m_current_output_row->file_type();
    if (output.file_type() == format) {
        if (m_changes.output_options || m_changes.output_format)
            output.take_options(*m_current_output_row);
    } else if (m_changes.output_format) {
        utString const name = m_output_details.name_for_format(output.filename(), format);
        if (!output_goes_with_queue(name, line))
            return false;
        output.take_format(*m_current_output_row, name);
    }
    replace_item(line, std::move(item));
    return true;
}

void sglBatchFiles::replace_item(int line, sglBatchItem item)
{
    m_items[line] = std::move(item);
    m_lines->update(line, m_items[line]);
    m_lines->set_state(line, sglBatchState::waiting);
    auto const shown = std::find(m_shown.begin(), m_shown.end(), line);
    if (m_changes.any() && shown != m_shown.end())
        m_states_before[static_cast<std::size_t>(shown - m_shown.begin())] = sglBatchState::waiting;
}

void sglBatchFiles::OnListKey(wxKeyEvent & event)
{
    int const key = event.GetKeyCode();
    if ((key == WXK_DELETE || key == WXK_NUMPAD_DELETE) && !m_lines->selected().empty()) {
        wxCommandEvent remove;
        OnRemoveDetails(remove);
    } else if (key == 'A' && event.ControlDown()) {
        m_lines->select_all();
    } else {
        event.Skip();
    }
}
