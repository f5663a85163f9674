#pragma once

#include "sglTranslationDataDisplayer.h"

#include <wx/treectrl.h>

/// Appends the report of a translation to a tree, below its root: an item for each line, nested by depth.
class sglTDTreeDisplayer : public sglTranslationDataDisplayer {
public:
    sglTDTreeDisplayer(sdbTranslationData const * record, vmrabsAppInfo const * info,
                       wxTreeCtrl * tree); ///< not owned; has a root
    virtual ~sglTDTreeDisplayer() = default;

protected:
    void display_text(utString const & text) override;
    void increment_depth(utString const & text) override;
    void decrement_depth() override;

    wxTreeItemId insert_item(utString const & text); ///< below the current item

private:
    wxTreeCtrl * m_tree;
    wxTreeItemId m_current;
};
