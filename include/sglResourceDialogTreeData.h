#pragma once

#include <wx/treebase.h>

class sglOptionsPage;

/// The link from an item of the options tree to its page. The tree owns it, and not the page.
class sglResourceDialogTreeData : public wxTreeItemData {
public:
    explicit sglResourceDialogTreeData(sglOptionsPage * page) : m_page(page) {}
    sglOptionsPage * page() const { return m_page; }

private:
    sglOptionsPage * m_page;
};
