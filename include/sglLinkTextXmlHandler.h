#pragma once

#include <wx/xrc/xmlreshandler.h>

/// Builds `sglStaticWithLink` controls out of XRC files, class "sglLinkTextCtrl".
class sglLinkTextXmlHandler : public wxXmlResourceHandler {
public:
    sglLinkTextXmlHandler();
    wxObject * DoCreateResource() override;
    bool CanHandle(wxXmlNode * node) override;
};
