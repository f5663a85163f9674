#pragma once

#include <wx/xrc/xh_sttxt.h>

/// Builds `sglDialogMenu` controls out of XRC files, class "sglDialogMenu".
class sglDialogMenuXmlHandler : public wxStaticTextXmlHandler {
public:
    wxObject * DoCreateResource() override;
    bool CanHandle(wxXmlNode * node) override;
};
