#pragma once

#include <compare>
#include <string>
#include <string_view>

/// The string of the platform layer: Unicode text, and besides any bytes that a file name may hold. Bytes
/// that are not UTF-8 are kept as they are; in the wide form they appear as the code points U+DC80 to U+DCFF.
class apString {
public:
    apString() = default;
    apString(wchar_t const * text) : apString(text ? std::wstring_view(text) : std::wstring_view()) {}
    explicit apString(std::wstring_view text);
    static apString from_utf8(std::string_view bytes); ///< keeps every byte, well-formed or not

    std::string const & utf8() const { return m_bytes; } ///< the bytes, as the file system takes them
    std::wstring wide() const;
    bool well_formed() const; ///< the bytes are UTF-8
    bool empty() const { return m_bytes.empty(); }

    apString & operator+=(apString const & tail);
    friend apString operator+(apString a, apString const & b) { return a += b; }
    friend bool operator==(apString const & a, apString const & b) = default;
    friend std::strong_ordering operator<=>(apString const & a, apString const & b)
    {
        return a.m_bytes.compare(b.m_bytes) <=> 0;
    }

private:
    std::string m_bytes;
};
