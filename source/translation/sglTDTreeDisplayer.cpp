#include "sglTDTreeDisplayer.h"

#include "controls/sglShownText.h"
#include "wxt/wxtStringConverter.h"

sglTDTreeDisplayer::sglTDTreeDisplayer(sdbTranslationData const * record, vmrabsAppInfo const * info,
                                       wxTreeCtrl * tree)
    : sglTranslationDataDisplayer(record, info), m_tree(tree)
{
}

void sglTDTreeDisplayer::display_text(utString const & text)
{
    insert_item(text);
}

void sglTDTreeDisplayer::increment_depth(utString const & text)
{
    m_current = insert_item(text);
}

void sglTDTreeDisplayer::decrement_depth()
{
    m_current = m_tree->GetItemParent(m_current);
}

wxTreeItemId sglTDTreeDisplayer::insert_item(utString const & text)
{
    return m_tree->AppendItem(m_current.IsOk() ? m_current : m_tree->GetRootItem(),
                              sgl_shown_text(wxtStringConverter::to_wx(text)));
}
