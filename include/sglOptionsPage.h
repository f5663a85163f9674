#pragma once

#include "ut/utString.h"

#include <wx/panel.h>
#include <wx/treebase.h>

/// One page of the options dialog: a panel that knows its place in the tree and is told of the buttons.
/// Graphical thread.
class sglOptionsPage : public wxPanel {
public:
    virtual utString const & name() const = 0; ///< the title, in the user's language

    sglOptionsPage * parent() const { return m_parent; } ///< the page above in the tree, or null
    void set_parent(sglOptionsPage * parent) { m_parent = parent; }
    wxTreeItemId const & tree_item() const { return m_tree_item; }
    void set_tree_item(wxTreeItemId const & item) { m_tree_item = item; }

protected:
    friend class sglOptionsDialog;

    sglOptionsPage() = default; ///< no window
    explicit sglOptionsPage(wxWindow * parent);

    /// The buttons of the dialog. The results are not looked at.
    virtual int ok_pressed() = 0;
    virtual int apply_pressed() = 0;
    virtual int cancel_pressed() = 0;
    virtual int defaults_pressed() = 0;

private:
    sglOptionsPage * m_parent = nullptr;
    wxTreeItemId m_tree_item;
};
