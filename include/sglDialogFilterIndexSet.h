#pragma once

#include "sdb/sdbFilterIndexSet.h"

class wxFileDialog;

/// Opens a file dialog of the toolkit with a filter, counted behind those that the dialog has in front of the
/// list. An index that the dialog does not have, as for a label that was not found, gives the last filter,
/// which is the one for all files.
class sglDialogFilterIndexSet : public sdbFilterIndexSet {
public:
    explicit sglDialogFilterIndexSet(wxFileDialog * dialog, int in_front = 0) ///< not owned
        : m_dialog(dialog), m_in_front(in_front)
    {
    }

    void set_filter_index(int index) const override;

private:
    wxFileDialog * m_dialog;
    int m_in_front;
};
