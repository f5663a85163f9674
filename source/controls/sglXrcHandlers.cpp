#include "sglXrcHandlers.h"

#include "sglComboBoxXmlHandler.h"
#include "sglDialogMenuXmlHandler.h"
#include "sglEditXmlHandler.h"
#include "sglLinkBitmapXmlHandler.h"
#include "sglLinkTextXmlHandler.h"
#include "sglListCtrlXmlHandler.h"

#include <wx/xrc/xmlres.h>

void sgl_add_xrc_handlers(wxXmlResource & resource)
{
    resource.InitAllHandlers();
    resource.AddHandler(new sglComboBoxXmlHandler);
    resource.AddHandler(new sglDialogMenuXmlHandler);
    resource.AddHandler(new sglEditXmlHandler);
    resource.AddHandler(new sglLinkBitmapXmlHandler);
    resource.AddHandler(new sglLinkTextXmlHandler);
    resource.AddHandler(new sglListCtrlXmlHandler);
}
