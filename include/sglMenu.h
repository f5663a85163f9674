#pragma once

#include "ut/utString.h"

class wxMenu;
class wxMenuBar;

/// Builds menus and menu bars out of the XRC files with their labels and help texts in the user's language.
/// Graphical thread.
class sglMenu {
public:
    explicit sglMenu(char const * domain) : m_domain(domain) {} ///< the domain is not copied
    virtual ~sglMenu() = default;

    /// Both give null for a name that the XRC files do not have; the caller owns the result. A text that
    /// cannot be had ends the translation, and what comes back is translated as far as that.
    wxMenuBar * create_menu_bar(utString const & name);
    wxMenu * create_menu(utString const & name);

protected:
    /// Labels and help texts of all items, those of submenus included. Returns 0 for a null menu or when a
    /// text cannot be had.
    int translate_sub_menu_items(wxMenu * menu);

private:
    char const * m_domain;
};
