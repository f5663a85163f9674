#pragma once

#include "sglResourceDetails.h"
#include "ut/utString.h"

class sglResourceOptionsPage;
class wxWindow;

/// Binds the controls of one row of an options page to one resource. It is no window; its controls are
/// children of the page, which destroys them. Graphical thread.
class sglResourceWidget {
public:
    virtual void control_changed() = 0;  ///< the user changed the control
    virtual void resource_changed() = 0; ///< the table below the page was replaced
    virtual void set_value() = 0;        ///< shows the current value
    virtual ~sglResourceWidget();
    sglResourceWidget(sglResourceWidget const &) = delete;
    sglResourceWidget & operator=(sglResourceWidget const &) = delete;

    /// The long description and the resource's name as tooltip of the row.
    void add_tooltip();
    sglResourceDetails const & resource() const { return m_details; }

protected:
    sglResourceWidget(sglResourceDetails const & details, sglResourceOptionsPage * page);

    virtual wxWindow * tooltip_window() = 0; ///< null for a widget without a tooltip

    sglResourceOptionsPage * page() const { return m_page; }
    void add_resource(utString const & value);
    utString current_value() const;
    utString default_value() const;
    int validate_value(utString const & value) const;

private:
    sglResourceDetails m_details;
    sglResourceOptionsPage * m_page;
};
