#include "step/stepTextEncoding.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace {

// What Open CASCADE writes for a tabulator; no other program knows it.
constexpr std::string_view tabulator = "\\T\\";
constexpr char32_t replacement = 0xFFFD;

std::string hexadecimal(unsigned number, int digits)
{
    char buffer[16];
    int const length = std::snprintf(buffer, sizeof buffer, "%0*X", digits, number);
    return {buffer, static_cast<std::size_t>(length)};
}

} // namespace

void stepTextEncoding::finish()
{
    close_directive();
    put(m_pending);
    m_pending.clear();
}

stepTextEncoding::int_type stepTextEncoding::overflow(int_type character)
{
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        take(static_cast<unsigned char>(character));
    }
    return m_good ? traits_type::not_eof(character) : traits_type::eof();
}

std::streamsize stepTextEncoding::xsputn(char const * text, std::streamsize length)
{
    std::string_view rest(text, static_cast<std::size_t>(length));
    while (!rest.empty() && m_good) {
        // Most of a file is numbers outside strings; they pass in one piece.
        auto const quote = m_in_string ? 0 : std::min(rest.find('\''), rest.size());
        if (quote > 0) {
            m_good = m_target.sputn(rest.data(), static_cast<std::streamsize>(quote)) ==
                     static_cast<std::streamsize>(quote);
            rest.remove_prefix(quote);
        } else {
            take(static_cast<unsigned char>(rest.front()));
            rest.remove_prefix(1);
        }
    }
    return m_good ? length : 0;
}

void stepTextEncoding::take(unsigned char byte)
{
    if (!m_in_string) {
        m_in_string = byte == '\'';
        put(static_cast<char>(byte));
    } else if (byte != '\n' && byte != '\r') {
        take_in_string(byte);
    }
}

void stepTextEncoding::take_in_string(unsigned char byte)
{
    if (byte >= 0x80 || m_missing > 0) {
        put(m_pending);
        m_pending.clear();
        take_beyond_ascii(byte);
        return;
    }
    close_directive();
    if (!m_pending.empty() || byte == '\\') {
        m_pending += static_cast<char>(byte);
        if (m_pending == tabulator) {
            put("\\X\\09");
            m_pending.clear();
        } else if (!tabulator.starts_with(m_pending)) {
            put(m_pending);
            m_pending.clear();
        }
    } else if (byte < 0x20 || byte == 0x7F) {
        put("\\X\\" + hexadecimal(byte, 2));
    } else {
        put(static_cast<char>(byte));
    }
    // A doubled quote inside the string leaves it and enters it again at once.
    m_in_string = byte != '\'';
}

void stepTextEncoding::take_beyond_ascii(unsigned char byte)
{
    if (m_missing > 0 && (byte & 0xC0) == 0x80) {
        m_code_point = m_code_point << 6 | (byte & 0x3F);
        if (--m_missing == 0) {
            add_code_point(m_code_point);
        }
        return;
    }
    if (m_missing > 0) {
        m_missing = 0;
        add_code_point(replacement);
    }
    if (byte < 0x80) {
        take_in_string(byte);
    } else if (byte >= 0xC2 && byte < 0xE0) {
        m_code_point = byte & 0x1F;
        m_missing = 1;
    } else if (byte >= 0xE0 && byte < 0xF0) {
        m_code_point = byte & 0x0F;
        m_missing = 2;
    } else if (byte >= 0xF0 && byte < 0xF5) {
        m_code_point = byte & 0x07;
        m_missing = 3;
    } else {
        add_code_point(replacement);
    }
}

void stepTextEncoding::add_code_point(char32_t code_point)
{
    int const digits = code_point > 0xFFFF ? 8 : 4;
    if (m_directive != digits) {
        close_directive();
        put(digits == 8 ? "\\X4\\" : "\\X2\\");
        m_directive = digits;
    }
    put(hexadecimal(code_point, digits));
}

void stepTextEncoding::close_directive()
{
    if (m_directive != 0) {
        put("\\X0\\");
        m_directive = 0;
    }
}

void stepTextEncoding::put(std::string const & text)
{
    m_good = m_good && m_target.sputn(text.data(), static_cast<std::streamsize>(text.size())) ==
                           static_cast<std::streamsize>(text.size());
}

void stepTextEncoding::put(char character)
{
    m_good = m_good && !traits_type::eq_int_type(m_target.sputc(character), traits_type::eof());
}
