#include "wxt/wxtStringConverter.h"

#include "wxt/wxtApStringConverter.h"

#include <wx/strconv.h>

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

wxString wxtStringConverter::path_to_wx(utString const & path)
{
    wxString const text(path.c_str(), *wxConvFileName);
    return text.empty() ? to_wx(path) : text;
}

utString wxtStringConverter::path_to_ut(wxString const & path)
{
    auto const bytes = path.mb_str(*wxConvFileName);
    return bytes.length() ? utString(std::string(bytes.data(), bytes.length())) : to_ut(path);
}
