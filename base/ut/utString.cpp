#include "ut/utString.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace {

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

char upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

template <class Number>
std::string number_text(Number value)
{
    char buffer[64];
    auto const end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    return std::string(buffer, end);
}

} // namespace

utString::utString(char const * text)
{
    if (text)
        m_text.emplace(text);
}

utString utString::make_invalid()
{
    utString text;
    text.invalidate();
    return text;
}

char utString::operator[](int index) const
{
    return index >= 0 && index < length() ? view()[static_cast<std::size_t>(index)] : '\0';
}

utString & utString::operator+=(utString const & tail)
{
    if (!m_text)
        m_text.emplace();
    *m_text += tail.view();
    return *this;
}

utString & utString::operator<<(int value)
{
    return *this += utString(number_text(value));
}

utString & utString::operator<<(double value)
{
    return *this += utString(number_text(value));
}

int utString::extract_string(char const * delimiters, utString & out)
{
    out.make_empty();
    auto const text = view();
    auto const begin = text.find_first_not_of(delimiters);
    if (begin == std::string_view::npos) {
        make_empty();
        return 0;
    }
    auto const end = std::min(text.find_first_of(delimiters, begin), text.size());
    out = utString(text.substr(begin, end - begin));
    *this = utString(text.substr(end));
    return 1;
}

void utString::remove_leading_chars(char const * set)
{
    if (m_text)
        m_text->erase(0, std::min(m_text->find_first_not_of(set), m_text->size()));
}

void utString::remove_trailing_chars(char const * set)
{
    if (m_text)
        m_text->erase(m_text->find_last_not_of(set) + 1);
}

void utString::remove(int position, int count)
{
    if (m_text && position >= 0 && position < length() && count > 0)
        m_text->erase(static_cast<std::size_t>(position), static_cast<std::size_t>(count));
}

void utString::insert(int position, utString const & text)
{
    if (!m_text)
        m_text.emplace();
    m_text->insert(static_cast<std::size_t>(std::clamp(position, 0, length())), text.view());
}

utString utString::substring(int position, int count) const
{
    if (position < 0 || position >= length() || count <= 0)
        return {};
    return utString(view().substr(static_cast<std::size_t>(position), static_cast<std::size_t>(count)));
}

int utString::locate_substring(utString const & part, int from) const
{
    if (from < 0)
        return -1;
    auto const at = view().find(part.view(), static_cast<std::size_t>(from));
    return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

int utString::parse(int & value, int & position) const
{
    if (position < 0 || position >= length())
        return 0;
    auto const text = view();
    auto const result = std::from_chars(text.data() + position, text.data() + text.size(), value);
    if (result.ec != std::errc())
        return 0;
    position = static_cast<int>(result.ptr - text.data());
    return 1;
}

int utString::case_compare(utString const & other) const
{
    auto const a = view();
    auto const b = other.view();
    auto const both = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < both; ++i)
        if (int const order =
                static_cast<unsigned char>(lower(a[i])) - static_cast<unsigned char>(lower(b[i])))
            return order;
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

void utString::to_lower()
{
    if (m_text)
        std::transform(m_text->begin(), m_text->end(), m_text->begin(), lower);
}

void utString::to_upper()
{
    if (m_text)
        std::transform(m_text->begin(), m_text->end(), m_text->begin(), upper);
}
