#include "sglMenu.h"

#include "sglResourceString.h"

#include "wxt/wxtStringConverter.h"

#include <wx/menu.h>
#include <wx/xrc/xmlres.h>

namespace {

/// Puts `text` into the user's language; false when it cannot be had. An accelerator behind a tab is no part
/// of the key.
bool translate(wxString & text, char const * domain)
{
    wxString accelerator;
    wxString const key = text.BeforeFirst('\t', &accelerator);
    if (key.empty())
        return true;
    utString const translated = sglGUIString(wxtStringConverter::to_ut(key), domain).process();
    if (translated.invalid())
        return false;
    text = wxtStringConverter::to_wx(translated);
    if (!accelerator.empty())
        text << '\t' << accelerator;
    return true;
}

} // namespace

wxMenuBar * sglMenu::create_menu_bar(utString const & name)
{
    wxMenuBar * const bar = wxXmlResource::Get()->LoadMenuBar(nullptr, wxtStringConverter::to_wx(name));
    if (!bar)
        return nullptr;
    for (std::size_t at = 0; at < bar->GetMenuCount(); ++at) {
        wxString label = bar->GetMenuLabel(at);
        if (!translate(label, m_domain))
            return bar;
        bar->SetMenuLabel(at, label);
        if (!translate_sub_menu_items(bar->GetMenu(at)))
            return bar;
    }
    return bar;
}

wxMenu * sglMenu::create_menu(utString const & name)
{
    wxMenu * const menu = wxXmlResource::Get()->LoadMenu(wxtStringConverter::to_wx(name));
    translate_sub_menu_items(menu);
    return menu;
}

int sglMenu::translate_sub_menu_items(wxMenu * menu)
{
    if (!menu)
        return 0;
    for (wxMenuItem * const item : menu->GetMenuItems()) {
        if (item->IsSeparator())
            continue;
        wxString label = item->GetItemLabel();
        if (!translate(label, m_domain))
            return 0;
        item->SetItemLabel(label);
        if (wxString help = item->GetHelp(); !help.empty()) {
            if (!translate(help, m_domain))
                return 0;
            item->SetHelp(help);
        }
        if (item->IsSubMenu() && !translate_sub_menu_items(item->GetSubMenu()))
            return 0;
    }
    return 1;
}
