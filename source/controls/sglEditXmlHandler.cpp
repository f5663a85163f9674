#include "sglEditXmlHandler.h"

#include "sglEdit.h"

wxObject * sglEditXmlHandler::DoCreateResource()
{
    XRC_MAKE_INSTANCE(edit, sglEdit)
    if (GetBool("hidden"))
        edit->Hide();
    edit->Create(m_parentAsWindow, GetID(), GetText("value"), GetPosition(), GetSize(), GetStyle(),
                 wxDefaultValidator, GetName());
    SetupWindow(edit);
    if (HasParam("maxlength"))
        edit->SetMaxLength(static_cast<unsigned long>(GetLong("maxlength")));
    return edit;
}

bool sglEditXmlHandler::CanHandle(wxXmlNode * node)
{
    return IsOfClass(node, "sglEdit");
}
