#pragma once

#include "sglResourceLayoutMaker.h"

class sglOptionsDialog;
class vmrTableInstance;

/// Makes pages of a dialog and controls on them.
class sglResourceControlMaker : public sglResourceLayoutMaker {
public:
    sglResourceControlMaker(sglOptionsDialog * dialog, vmrTableInstance * table)
        : m_dialog(dialog), m_table(table)
    {
    }

    sglResourceOptionsPage * make_page(utString const & title, sglResourceOptionsPage * parent) override;
    void make_check_box(sglResourceDetails const & details, wxRect & row,
                        sglResourceOptionsPage * page) override;
    void make_edit_box(sglResourceDetails const & details, wxRect & row,
                       sglResourceOptionsPage * page) override;
    void make_combo_box(sdbOrderedStringPairs const & values, sglResourceDetails const & details,
                        wxRect & row, sglResourceOptionsPage * page) override;
    void make_group(sglResourceDetails const & details, wxRect & box, sglResourceOptionsPage * page) override;
    wxPoint to_pixels(wxPoint const & dialog_units) const override;
    wxPoint to_dialog_units(wxPoint const & pixels, sglResourceOptionsPage * page) const override;

private:
    sglOptionsDialog * m_dialog;
    vmrTableInstance * m_table;
};
