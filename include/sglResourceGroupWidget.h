#pragma once

#include "sglResourceWidget.h"

#include <wx/gdicmn.h>

class wxStaticBox;

/// A box around rows. It stands for no resource.
class sglResourceGroupWidget : public sglResourceWidget {
public:
    /// The rectangle is in pixels of the page.
    sglResourceGroupWidget(sglResourceDetails const & details, wxRect & rectangle,
                           sglResourceOptionsPage * page);

    void control_changed() override {}
    void resource_changed() override {}
    void set_value() override {}

protected:
    wxWindow * tooltip_window() override { return nullptr; }
    int create(wxRect & rectangle);

private:
    wxStaticBox * m_box = nullptr;
};
