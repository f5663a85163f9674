#include "wxt/wxtApStringConverter.h"

// Both sides know the wide form, in which the platform layer has a place for bytes that are no text; the
// toolkit's own conversion from UTF-8 would drop the whole string.

wxString wxtApStringConverter::to_wx(apString const & text)
{
    return wxString(text.wide());
}

wxString wxtApStringConverter::to_wx(apPathName const & path)
{
    return to_wx(path.string());
}

wxString wxtApStringConverter::to_wx(apFileName const & name)
{
    return to_wx(name.string());
}

apString wxtApStringConverter::to_ap(wxString const & text)
{
    return apString(std::wstring_view(text.wc_str(), text.length()));
}

apPathName wxtApStringConverter::to_path(wxString const & path)
{
    return apPathName(to_ap(path));
}

apFileName wxtApStringConverter::to_file_name(wxString const & name)
{
    return apFileName(to_ap(name));
}
