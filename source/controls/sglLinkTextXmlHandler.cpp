#include "sglLinkTextXmlHandler.h"

#include "sglNlsHelp.h"
#include "sglStaticWithLink.h"

#include "wxt/wxtStringConverter.h"

#include <wx/settings.h>

sglLinkTextXmlHandler::sglLinkTextXmlHandler()
{
    XRC_ADD_STYLE(wxTE_PROCESS_ENTER);
    XRC_ADD_STYLE(wxTE_PROCESS_TAB);
    XRC_ADD_STYLE(wxTE_MULTILINE);
    XRC_ADD_STYLE(wxTE_READONLY);
    XRC_ADD_STYLE(wxTE_AUTO_URL);
    AddWindowStyles();
}

wxObject * sglLinkTextXmlHandler::DoCreateResource()
{
    XRC_MAKE_INSTANCE(text, sglStaticWithLink)
    if (GetBool("hidden"))
        text->Hide();
    text->Create(m_parentAsWindow, GetID(), GetText("value"), GetPosition(), GetSize(), GetStyle(),
                 wxDefaultValidator, GetName());
    SetupWindow(text);
    text->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));

    // As they stand: the escapes of labels would change the underscores of an address.
    utString label;
    if (HasParam("label"))
        label = getNlsHelp()->gsprintf("vmrgrlib", wxtStringConverter::to_ut(GetParamValue("label")).c_str());
    utString link = utString::make_invalid();
    if (HasParam("link"))
        link = wxtStringConverter::to_ut(GetParamValue("link"));
    text->set_text(label, link);
    return text;
}

bool sglLinkTextXmlHandler::CanHandle(wxXmlNode * node)
{
    return IsOfClass(node, "sglLinkTextCtrl");
}
