#pragma once

#include "sdb/sdbFilterIndexSet.h"

class wxFileDialog;

/// Opens a file dialog of the toolkit with a filter. An index that the dialog does not have, as for a label
/// that was not found, gives the last filter, which is the one for all files.
class sglDialogFilterIndexSet : public sdbFilterIndexSet {
public:
    explicit sglDialogFilterIndexSet(wxFileDialog * dialog) : m_dialog(dialog) {} ///< not owned

    void set_filter_index(int index) const override;

private:
    wxFileDialog * m_dialog;
};
