#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The values of a BREP file in binary form, as brepTextSource gives those of a text; places are bytes.
class brepBinarySource {
public:
    // Begins at a byte of the content, behind its first line.
    brepBinarySource(std::string_view content, std::size_t begin) : m_content(content), m_at(begin) {}

    std::int64_t integer();
    double real();
    bool boolean() { return byte() != 0; }
    int degree();
    int kind() { return byte(); }
    void continuity() { byte(); }
    std::int64_t section(std::string_view heading);
    int byte();
    void skip(std::size_t bytes);

    bool has_room(std::int64_t values) const
    {
        return values <= static_cast<std::int64_t>(m_content.size() - m_at);
    }

    [[noreturn]] void fail(std::string const & reason) const;

private:
    char const * take(std::size_t bytes);

    std::string_view m_content;
    std::size_t m_at;
};
