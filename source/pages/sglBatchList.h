#pragma once

#include <vector>

#include "sglBatchItem.h"

class wxListCtrl;

/// How far a translation of the queue is.
enum class sglBatchState {
    waiting,
    changed, ///< its details have been changed and not been saved
    done,
    done_with_differences, ///< the output lacks something of the input, or holds it otherwise
    failed,
    cancelled
};

/// What the list of the batch page shows of its queue: a line for each translation, of which several can be
/// chosen. The control is not owned. Graphical thread.
class sglBatchList {
public:
    /// Gives the control its columns, which follow its width.
    explicit sglBatchList(wxListCtrl & list);

    void append(sglBatchItem const & item); ///< as one that waits
    /// Shows the output of the item at `line`. The input stays the one with which the line was added.
    void update(int line, sglBatchItem const & item);
    void set_state(int line, sglBatchState state);
    sglBatchState state(int line) const;
    void remove(int line);

    std::vector<int> selected() const;           ///< in rising order
    void select(std::vector<int> const & lines); ///< these and no others
    void select_all();

private:
    void fit_columns();

    wxListCtrl & m_list;
};

/// What the user reads of a state.
utString sgl_batch_state_text(sglBatchState state);
