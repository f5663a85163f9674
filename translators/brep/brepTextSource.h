#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The values of a BREP file in text form, one after the other. What cannot be read, and a number that is
// none, throws brepDefect with its line.
class brepTextSource {
public:
    // Begins at a byte of the content, behind its first line.
    brepTextSource(std::string_view content, std::size_t begin) : m_content(content), m_at(begin) {}

    std::int64_t integer();
    double real();
    bool boolean() { return number(0, 1) != 0; }
    // A degree, or a kind of curve or surface.
    int degree() { return number(0, 1000); }
    int kind() { return number(0, 1000); }
    void continuity();
    // The number behind the heading of a section.
    std::int64_t section(std::string_view heading);
    // One of the letters, as a name of shapes or the mark of an orientation.
    char mark(std::string_view marks);
    std::string_view word();
    // Up to the next value; 0 at the end.
    char next();

    // False when the rest of the file is too short for so many values.
    bool has_room(std::int64_t values) const
    {
        constexpr std::int64_t bytes = 2; // a digit and a blank
        return values <= static_cast<std::int64_t>(m_content.size() - m_at) / bytes + 1;
    }

    [[noreturn]] void fail(std::string const & reason) const;

private:
    int number(int least, int most);
    void expected(char const * what) const;

    std::string_view m_content;
    std::size_t m_at;
    std::size_t m_token = 0; // the begin of the last one
};
