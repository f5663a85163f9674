#include "sglLinkBitmapXmlHandler.h"

#include "sglBitmapWithLink.h"

#include "wxt/wxtStringConverter.h"

sglLinkBitmapXmlHandler::sglLinkBitmapXmlHandler()
{
    AddWindowStyles();
}

wxObject * sglLinkBitmapXmlHandler::DoCreateResource()
{
    XRC_MAKE_INSTANCE(bitmap, sglBitmapWithLink)
    if (GetBool("hidden"))
        bitmap->Hide();
    bitmap->Create(m_parentAsWindow, GetID(), GetBitmapBundle("bitmap", wxART_OTHER, GetSize()),
                   GetPosition(), GetSize(), GetStyle(), GetName());
    SetupWindow(bitmap);
    // As they stand: the escapes of labels would change the underscores of an address.
    if (HasParam("tooltip"))
        bitmap->set_tooltip(wxtStringConverter::to_ut(GetParamValue("tooltip")));
    if (HasParam("link"))
        bitmap->set_link(wxtStringConverter::to_ut(GetParamValue("link")));
    return bitmap;
}

bool sglLinkBitmapXmlHandler::CanHandle(wxXmlNode * node)
{
    return IsOfClass(node, "sglLinkBitmapCtrl");
}
