#include "sglComboBoxXmlHandler.h"

#include "sglComboBox.h"

sglComboBoxXmlHandler::sglComboBoxXmlHandler()
{
    XRC_ADD_STYLE(wxCB_SIMPLE);
    XRC_ADD_STYLE(wxCB_SORT);
    XRC_ADD_STYLE(wxCB_READONLY);
    XRC_ADD_STYLE(wxCB_DROPDOWN);
    AddWindowStyles();
}

wxObject * sglComboBoxXmlHandler::DoCreateResource()
{
    XRC_MAKE_INSTANCE(combo, sglComboBox)
    if (GetBool("hidden"))
        combo->Hide();
    combo->create(m_parentAsWindow, GetID(), GetText("value"), GetPosition(), GetSize(), GetStyle("style", 0),
                  wxDefaultValidator, GetName());
    SetupWindow(combo);
    return combo;
}

bool sglComboBoxXmlHandler::CanHandle(wxXmlNode * node)
{
    return IsOfClass(node, "sglComboBox");
}
