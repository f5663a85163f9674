#include "wxt/wxtStringConverter.h"

#include "wxt/wxtApStringConverter.h"

#include <algorithm>
#include <string>
#include <wx/strconv.h>

namespace {

// Where the two forms keep a byte that is not UTF-8: U+DC80 to U+DCFF here, and the toolkit from U+100080.
constexpr wchar_t first_escaped_byte = 0xDC80;
constexpr wchar_t first_byte_of_toolkit = 0x100080;

bool is_surrogate(wchar_t character)
{
    return character >= 0xD800 && character <= 0xDFFF;
}

bool has_surrogate(wxString const & text)
{
    return std::any_of(text.begin(), text.end(), [](wxUniChar const & character) {
        return is_surrogate(static_cast<wchar_t>(character.GetValue()));
    });
}

} // namespace

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
    if (!text.empty() && !has_surrogate(text))
        return text;
    std::wstring shown = to_wx(path).ToStdWstring();
    for (wchar_t & character : shown)
        if (is_surrogate(character))
            character += first_byte_of_toolkit - first_escaped_byte;
    return wxString(shown);
}

utString wxtStringConverter::path_to_ut(wxString const & path)
{
    auto const bytes = path.mb_str(*wxConvFileName);
    return has_surrogate(path) || !bytes.length() ? to_ut(path)
                                                  : utString(std::string(bytes.data(), bytes.length()));
}
