#pragma once

#include <wx/xrc/xh_listc.h>

/// Builds `sglListCtrl` controls out of XRC files, class "sglListCtrl".
class sglListCtrlXmlHandler : public wxListCtrlXmlHandler {
public:
    wxObject * DoCreateResource() override;
    bool CanHandle(wxXmlNode * node) override;
};
