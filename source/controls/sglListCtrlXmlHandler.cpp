#include "sglListCtrlXmlHandler.h"

#include "sglListCtrl.h"

wxObject * sglListCtrlXmlHandler::DoCreateResource()
{
    XRC_MAKE_INSTANCE(list, sglListCtrl)
    if (GetBool("hidden"))
        list->Hide();
    list->Create(m_parentAsWindow, GetID(), GetPosition(), GetSize(), GetStyle(), wxDefaultValidator,
                 GetName());
    SetupWindow(list);
    return list;
}

bool sglListCtrlXmlHandler::CanHandle(wxXmlNode * node)
{
    return IsOfClass(node, "sglListCtrl");
}
