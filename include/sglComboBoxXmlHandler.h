#pragma once

#include <wx/xrc/xmlres.h>

/// Builds `sglComboBox` controls out of XRC files, class "sglComboBox".
class sglComboBoxXmlHandler : public wxXmlResourceHandler {
public:
    sglComboBoxXmlHandler();

    wxObject * DoCreateResource() override;
    bool CanHandle(wxXmlNode * node) override;
};
