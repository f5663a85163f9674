#include "sglXrcHandlers.h"

#include "sglEditXmlHandler.h"
#include "sglListCtrlXmlHandler.h"

#include <wx/xrc/xmlres.h>

void sgl_add_xrc_handlers(wxXmlResource & resource)
{
    resource.InitAllHandlers();
    resource.AddHandler(new sglEditXmlHandler);
    resource.AddHandler(new sglListCtrlXmlHandler);
}
