#include "sglDialogMenuXmlHandler.h"

#include "sglDialogMenu.h"

wxObject * sglDialogMenuXmlHandler::DoCreateResource()
{
    XRC_MAKE_INSTANCE(menu, sglDialogMenu)
    if (GetBool("hidden"))
        menu->Hide();
    menu->Create(m_parentAsWindow, GetID(), GetText("label"), GetPosition(), GetSize(), GetStyle(),
                 GetName());
    SetupWindow(menu);
    if (HasParam("wrap"))
        menu->Wrap(GetDimension("wrap"));
    return menu;
}

bool sglDialogMenuXmlHandler::CanHandle(wxXmlNode * node)
{
    return IsOfClass(node, "sglDialogMenu");
}
