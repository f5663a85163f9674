#include "nls/vmrnlsKey.h"

#include <algorithm>

namespace {

bool is_word_character(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' ||
           c == '_' || c == '-';
}

} // namespace

vmrnlsKey::vmrnlsKey(std::string_view key) : text(key)
{
    auto const end = key.find("::");
    if (end == std::string_view::npos || !std::all_of(key.begin(), key.begin() + end, is_word_character))
        return;
    context = key.substr(0, end);
    text = key.substr(end + 2);
}
