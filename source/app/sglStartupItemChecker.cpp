#include "sglStartupItemChecker.h"

#include "sglApp.h"
#include "sglMessageBox.h"

#include "wxt/wxtStringConverter.h"

#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/xrc/xmlres.h>

void sglStartupItemChecker::check_startup_menu_item(utString const & item_id, utString const & field,
                                                    int checked_is_yes, int checked)
{
    auto & settings = sglApp::app().startup_info();
    int answer = wxID_YES;
    if (settings.changed())
        answer = sglMessageBox("vmrgrlib", 1151, wxYES_NO | wxCANCEL);
    if (answer == wxID_CANCEL)
        return;

    m_bar->Check(wxXmlResource::GetXRCID(wxtStringConverter::to_wx(item_id)), checked != 0);
    utString const value = (checked != 0) == (checked_is_yes != 0) ? "yes" : "no";
    if (answer == wxID_YES)
        settings.add_field(field, value);
    else if (answer == wxID_NO)
        settings.add_field_without_saving(field, value);
    if (settings.using_defaults())
        sglMessageBox("vmrgrlib", 1072, wxICON_EXCLAMATION);
}
