#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

/// The 8-bit string of the system, UTF-8 by convention, with an invalid state that is distinct from empty.
/// An invalid string reads as empty text everywhere except in invalid(). Positions and lengths count bytes.
class utString {
public:
    utString() : m_text(std::in_place) {} ///< empty and valid
    utString(char const * text);          ///< a null pointer gives an invalid string
    utString(std::string text) : m_text(std::move(text)) {}
    utString(std::string_view text) : m_text(std::string(text)) {}
    static utString make_invalid();

    bool invalid() const { return !m_text; }
    void make_empty() { m_text.emplace(); }
    void invalidate() { m_text.reset(); }

    int length() const { return static_cast<int>(view().size()); }
    bool empty() const { return view().empty(); }
    std::string_view view() const { return m_text ? std::string_view(*m_text) : std::string_view(); }
    std::string str() const { return std::string(view()); }
    char const * c_str() const { return m_text ? m_text->c_str() : ""; }
    char operator[](int index) const; ///< 0 outside the text

    utString & operator+=(utString const & tail); ///< an invalid string becomes valid
    utString & operator<<(utString const & tail) { return *this += tail; }
    utString & operator<<(char const * tail) { return *this += utString(tail); }
    utString & operator<<(int value);
    utString & operator<<(double value); ///< shortest text that reads back as the same value, with "."

    /// The word cutter: skips leading bytes that are in `delimiters`, moves the text up to the next such byte
    /// into `out` and leaves that byte and all behind it here. Returns 0, with `out` empty, when nothing was
    /// left to take.
    int extract_string(char const * delimiters, utString & out);

    void remove_leading_chars(char const * set);  ///< drops every leading byte that is in `set`
    void remove_trailing_chars(char const * set); ///< drops every trailing byte that is in `set`
    void remove(int position, int count);         ///< clipped to the text
    void insert(int position, utString const & text);
    utString substring(int position, int count) const; ///< clipped to the text

    /// Position of `part` at or after `from`, or -1.
    int locate_substring(utString const & part, int from = 0) const;

    /// Reads a decimal integer at byte `position` and moves `position` behind it. Returns 0, changing
    /// nothing, when no integer stands there or it does not fit.
    int parse(int & value, int & position) const;

    /// Order of bytes: negative, 0 or positive.
    int compare(utString const & other) const { return view().compare(other.view()); }
    /// The same with ASCII letters of either case counting as equal.
    int case_compare(utString const & other) const;

    void to_lower(); ///< ASCII letters, byte by byte
    void to_upper();

    /// Equal text; an invalid string equals only an invalid one.
    friend bool operator==(utString const & a, utString const & b) { return a.m_text == b.m_text; }
    friend std::strong_ordering operator<=>(utString const & a, utString const & b)
    {
        return a.view().compare(b.view()) <=> 0;
    }
    friend utString operator+(utString a, utString const & b) { return a += b; }

private:
    std::optional<std::string> m_text;
};

template <>
struct std::hash<utString> {
    std::size_t operator()(utString const & text) const noexcept
    {
        return std::hash<std::string_view>()(text.view());
    }
};
