#pragma once

#include <streambuf>
#include <string>

// Stands between the writer of a STEP file, which puts names into strings as UTF-8 and breaks long ones
// across lines, and the file: inside strings, all beyond ASCII becomes the directives \X2\ and \X4\ of ISO
// 10303-21, control characters become \X\, and line breaks go. Outside strings nothing changes.
class stepTextEncoding : public std::streambuf {
public:
    explicit stepTextEncoding(std::streambuf & target) : m_target(target) {}

    // Ends what is open; to be called after the last character.
    void finish();

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(char const * text, std::streamsize length) override;

private:
    void take(unsigned char byte);
    void take_in_string(unsigned char byte);
    void take_beyond_ascii(unsigned char byte);
    void add_code_point(char32_t code_point);
    void close_directive();
    void put(std::string const & text);
    void put(char character);

    std::streambuf & m_target;
    bool m_in_string = false;
    bool m_good = true;
    // The width in digits of the directive that is open; 0 when none is.
    int m_directive = 0;
    // A character of several bytes that is not complete yet.
    char32_t m_code_point = 0;
    int m_missing = 0;
    // The first characters of what may be the writer's own directive for a tabulator.
    std::string m_pending;
};
