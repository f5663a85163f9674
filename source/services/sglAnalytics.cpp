#include "sglAnalytics.h"

#include "ani/aniUsageDialogs.h"
#include "ap/apIStringEncoding.h"

#include <wx/window.h>

namespace {

wchar_t const product_identifier[] = L"CRSWLK0100";

void * handle_of(wxWindow const * window)
{
    return window ? window->GetHandle() : nullptr;
}

} // namespace

void sglAnalytics::initialise(utObserverPtr<vmrabsAppInfo const> info, utString const & a, utString const & b,
                              utString const & text)
{
    auto const & encoding = *info->ut_encoding();
    s2sAnalytics::initialise(apString(product_identifier), encoding.to_ap(a), encoding.to_ap(b));
    m_text = encoding.to_ap(text);
}

void sglAnalytics::show_menu_dialog(wxWindow * parent) const
{
    if (is_initialised())
        aniUsageDialogs::display_dialog(aniUsageDialogsFromMenu, handle_of(parent), m_text);
}

void sglAnalytics::show_startup_dialog(wxWindow * parent) const
{
    if (is_initialised())
        aniUsageDialogs::display_dialog(aniUsageDialogsAtStartUp, handle_of(parent), m_text);
}
