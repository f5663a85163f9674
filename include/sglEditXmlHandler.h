#pragma once

#include <wx/xrc/xh_text.h>

/// Builds `sglEdit` controls out of XRC files, class "sglEdit".
class sglEditXmlHandler : public wxTextCtrlXmlHandler {
public:
    wxObject * DoCreateResource() override;
    bool CanHandle(wxXmlNode * node) override;
};
