#include "wxt/wxtStringConverter.h"

#include "wxt/wxtApStringConverter.h"

wxString wxtStringConverter::to_wx(utString const & text)
{
    return to_wx(text.view());
}

wxString wxtStringConverter::to_wx(std::string_view text)
{
    return wxtApStringConverter::to_wx(apString::from_utf8(text));
}

utString wxtStringConverter::to_ut(wxString const & text)
{
    return utString(wxtApStringConverter::to_ap(text).utf8());
}
