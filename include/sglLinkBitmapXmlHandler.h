#pragma once

#include <wx/xrc/xmlreshandler.h>

/// Builds `sglBitmapWithLink` controls out of XRC files, class "sglLinkBitmapCtrl".
class sglLinkBitmapXmlHandler : public wxXmlResourceHandler {
public:
    sglLinkBitmapXmlHandler();
    wxObject * DoCreateResource() override;
    bool CanHandle(wxXmlNode * node) override;
};
