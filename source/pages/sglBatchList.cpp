#include "pages/sglBatchList.h"

#include "sglNlsHelp.h"
#include "sglPathText.h"

#include "ap/apSplitPath.h"
#include "wxt/wxtStringConverter.h"

#include <algorithm>
#include <wx/listctrl.h>

namespace {

enum Column { input_column, output_column, format_column, state_column };

constexpr sglBatchState all_states[] = {sglBatchState::waiting, sglBatchState::changed,
                                        sglBatchState::done,    sglBatchState::done_with_differences,
                                        sglBatchState::failed,  sglBatchState::cancelled};

wxString text(char const * key)
{
    return wxtStringConverter::to_wx(getNlsHelp()->gsprintf("vmrgrlib", key));
}

utString directory_of(utString const & path)
{
    utString directory, name, extension;
    apSplitPath::split_path(path, directory, name, extension);
    return directory;
}

/// An output beside its input by its name alone, so that there is room for it.
utString output_text(sglBatchItem const & item)
{
    utString const & path = item.output_row()->filename();
    return directory_of(path) == directory_of(item.input_row()->filename()) ? ExtractFile(path) : path;
}

} // namespace

utString sgl_batch_state_text(sglBatchState state)
{
    auto const * const help = getNlsHelp();
    switch (state) {
    case sglBatchState::changed:
        return help->gsprintf("vmrgrlib", "d.batch.state::Not saved");
    case sglBatchState::done:
        return help->gsprintf("vmrgrlib", "d.batch.state::Done");
    case sglBatchState::done_with_differences:
        return help->gsprintf("vmrgrlib", "d.batch.state::Done, with differences");
    case sglBatchState::failed:
        return help->gsprintf("vmrgrlib", "d.batch.state::Failed");
    case sglBatchState::cancelled:
        return help->gsprintf("vmrgrlib", "d.batch.state::Cancelled");
    default:
        return help->gsprintf("vmrgrlib", "d.batch.state::Waiting");
    }
}

sglBatchList::sglBatchList(wxListCtrl & list) : m_list(list)
{
    m_list.InsertColumn(input_column, text("d.batch::Input File"));
    m_list.InsertColumn(output_column, text("d.batch::Output File"));
    m_list.InsertColumn(format_column, text("d.batch.list::Format"));
    m_list.InsertColumn(state_column, text("d.batch.list::State"));
    m_list.Bind(wxEVT_SIZE, [this](wxSizeEvent & event) {
        event.Skip();
        fit_columns();
    });
    fit_columns();
}

void sglBatchList::fit_columns()
{
    constexpr int least_path = 120, room = 16, bar_and_border = 24;
    auto const width_of = [this](wxString const & shown) { return m_list.GetTextExtent(shown).x + room; };
    int const format_width = width_of(text("d.batch.list::Format") + "MM");
    int state_width = width_of(text("d.batch.list::State"));
    for (auto const one : all_states)
        state_width = std::max(state_width, width_of(wxtStringConverter::to_wx(sgl_batch_state_text(one))));
    int const rest = m_list.GetClientSize().x - format_width - state_width - bar_and_border;
    m_list.SetColumnWidth(input_column, std::max(least_path, rest * 3 / 5));
    m_list.SetColumnWidth(output_column, std::max(least_path, rest * 2 / 5));
    m_list.SetColumnWidth(format_column, format_width);
    m_list.SetColumnWidth(state_column, state_width);
}

void sglBatchList::append(sglBatchItem const & item)
{
    long const line = m_list.InsertItem(m_list.GetItemCount(),
                                        wxtStringConverter::path_to_wx(item.input_row()->filename()));
    update(static_cast<int>(line), item);
    set_state(static_cast<int>(line), sglBatchState::waiting);
}

void sglBatchList::update(int line, sglBatchItem const & item)
{
    m_list.SetItem(line, output_column, wxtStringConverter::path_to_wx(output_text(item)));
    m_list.SetItem(line, format_column, wxtStringConverter::to_wx(item.output_row()->file_type()));
}

void sglBatchList::set_state(int line, sglBatchState value)
{
    m_list.SetItem(line, state_column, wxtStringConverter::to_wx(sgl_batch_state_text(value)));
    m_list.SetItemData(line, static_cast<long>(value));
}

sglBatchState sglBatchList::state(int line) const
{
    return static_cast<sglBatchState>(m_list.GetItemData(line));
}

void sglBatchList::remove(int line)
{
    m_list.DeleteItem(line);
}

std::vector<int> sglBatchList::selected() const
{
    std::vector<int> lines;
    auto const next = [this](long from) {
        return m_list.GetNextItem(from, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    };
    for (long line = next(-1); line != wxNOT_FOUND; line = next(line))
        lines.push_back(static_cast<int>(line));
    return lines;
}

void sglBatchList::select(std::vector<int> const & lines)
{
    for (int const line : selected())
        if (std::find(lines.begin(), lines.end(), line) == lines.end())
            m_list.SetItemState(line, 0, wxLIST_STATE_SELECTED);
    for (int const line : lines)
        m_list.SetItemState(line, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    if (lines.empty())
        return;
    m_list.SetItemState(lines.back(), wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
    m_list.EnsureVisible(lines.back());
}

void sglBatchList::select_all()
{
    m_list.SetItemState(-1, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
}
