#pragma once

#include "ut/utString.h"

class wxMenuBar;

/// Binds a menu item with a tick to a field of the startup settings. Graphical thread.
class sglStartupItemChecker {
public:
    explicit sglStartupItemChecker(wxMenuBar * bar) : m_bar(bar) {} ///< the bar is not taken over

    /// Sets the tick of the item and stores "yes" in the field when `checked` and `checked_is_yes` agree,
    /// else "no". When another program has written the settings meanwhile the user is asked first: No keeps
    /// the value to this run, Cancel changes nothing. The user is told when the settings cannot be saved.
    void check_startup_menu_item(utString const & item_id, utString const & field, int checked_is_yes,
                                 int checked);

private:
    wxMenuBar * m_bar;
};
