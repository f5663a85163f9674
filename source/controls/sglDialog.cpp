#include "sglDialog.h"

#include "sglApp.h"
#include "sglResourceString.h"

#include "wxt/wxtStringConverter.h"

#include <wx/toplevel.h>
#include <wx/xrc/xmlres.h>

wxBEGIN_EVENT_TABLE(sglDialog, wxDialog)
wxEND_EVENT_TABLE()

sglDialog::sglDialog(sglDialog const &) : wxDialog() {}

sglDialog::sglDialog(utString const & template_name, wxWindow * parent)
{
    load(template_name, parent);
}

sglDialog::sglDialog(utString const & template_name, char const * domain, wxWindow * parent)
{
    load(template_name, parent);
    if (GetHandle())
        sglTranslateWndText(domain, this, 1);
}

void sglDialog::load(utString const & template_name, wxWindow * parent)
{
    if (sglApp::app().has_display())
        wxXmlResource::Get()->LoadDialog(this, parent, wxtStringConverter::to_wx(template_name));
}

int sglTranslateWndText(char const * domain, wxWindow * window, int recursive)
{
    if (!window)
        return 0;
    auto * const top_level = dynamic_cast<wxTopLevelWindow *>(window);
    wxString const text = top_level ? top_level->GetTitle() : window->GetLabel();
    if (!text.empty()) {
        utString const translated = sglGUIString(wxtStringConverter::to_ut(text), domain).process();
        if (translated.invalid())
            return 0;
        // For a static text the lowest style bit is wxST_NO_AUTORESIZE: the label must not change the
        // control's size.
        long const style = window->GetWindowStyle();
        window->SetWindowStyle(style | 1);
        if (top_level)
            top_level->SetTitle(wxtStringConverter::to_wx(translated));
        else
            window->SetLabel(wxtStringConverter::to_wx(translated));
        window->SetWindowStyle(style);
    }
    if (recursive)
        for (wxWindow * const child : window->GetChildren())
            if (!sglTranslateWndText(domain, child, recursive))
                return 0;
    return 1;
}
