#pragma once

#include <wx/listctrl.h>

#include "co/coStrings.h"

/// A report list that is filled from a flat array of strings. Graphical thread.
class sglListCtrl : public wxListCtrl {
public:
    using wxListCtrl::wxListCtrl;

    /// Replaces the rows. The cells of one row stand side by side; the columns are there already, and callers
    /// pass whole rows. The data of a row is the index of its first cell.
    void fill(utStringcoPageArr const & cells);
    void adjust_columns(); ///< each as wide as its header and its cells need

private:
    wxDECLARE_DYNAMIC_CLASS(sglListCtrl);
};
