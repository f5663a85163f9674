#include "nls/vmrnlsFormatterSimple.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>

#include "nls/vmrnlsConversion.h"

namespace {

bool is_continuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// Bytes that the first `count` characters of a UTF-8 text take.
std::size_t bytes_of_characters(std::string_view text, int count)
{
    std::size_t position = 0;
    for (; position < text.size(); ++position) {
        if (!is_continuation(text[position]) && count-- == 0)
            break;
    }
    return position;
}

int count_characters(std::string_view text)
{
    int count = 0;
    for (char const c : text)
        count += !is_continuation(c);
    return count;
}

void append_utf8(std::int64_t code, std::string & out)
{
    auto const byte = [&out](std::int64_t value) { out += static_cast<char>(value); };
    if (code > 0x10FFFF || (code >= 0xD800 && code < 0xE000) || code < -128)
        return;
    if (code < 0x80) { // a negative one is a byte of a text, given by itself
        if (code != 0)
            byte(code);
    } else if (code < 0x800) {
        byte(0xC0 | code >> 6);
        byte(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        byte(0xE0 | code >> 12);
        byte(0x80 | (code >> 6 & 0x3F));
        byte(0x80 | (code & 0x3F));
    } else {
        byte(0xF0 | code >> 18);
        byte(0x80 | (code >> 12 & 0x3F));
        byte(0x80 | (code >> 6 & 0x3F));
        byte(0x80 | (code & 0x3F));
    }
}

/// The work on one text: where the result goes, and how numbers look.
class Writer {
public:
    Writer(std::string & out, std::string_view decimal_point) : m_out(out), m_decimal_point(decimal_point) {}

    void write(vmrnlsConversion const & conversion, std::int64_t value)
    {
        if (conversion.is_integer())
            write_integer(conversion, value);
        else if (conversion.is_real())
            write_number(conversion, "", static_cast<double>(value));
        else if (conversion.kind == 'c')
            write_character(conversion, value);
        else
            write_text(conversion, std::to_string(value));
    }

    void write(vmrnlsConversion const & conversion, double value)
    {
        constexpr double limit = 9.2e18; // just inside 64 bits
        if (conversion.is_real()) {
            write_number(conversion, "", value);
        } else if (conversion.is_integer() && std::fabs(value) < limit) {
            write_integer(conversion, static_cast<std::int64_t>(value));
        } else {
            char buffer[32];
            auto const end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
            write_text(conversion, localised(std::string(buffer, end), value));
        }
    }

    void write(vmrnlsConversion const & conversion, std::string const & value)
    {
        write_text(conversion, value);
    }

private:
    void write_integer(vmrnlsConversion const & conversion, std::int64_t value)
    {
        if (conversion.kind != 'd' && conversion.kind != 'i' && value < 0 &&
            value >= std::numeric_limits<std::int32_t>::min())
            value = static_cast<std::uint32_t>(value); // as printf shows a negative int there
        bool const plain =
            conversion.width < 0 && conversion.precision < 0 && !conversion.plus && !conversion.blank;
        if (plain && (conversion.kind == 'd' || conversion.kind == 'i')) {
            char buffer[24];
            m_out.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
        } else {
            write_number(conversion, "ll", static_cast<long long>(value));
        }
    }

    void write_character(vmrnlsConversion const & conversion, std::int64_t code)
    {
        std::string character;
        append_utf8(code, character);
        write_text(conversion, character);
    }

    void write_text(vmrnlsConversion const & conversion, std::string_view text)
    {
        if (conversion.kind == 's' && conversion.precision >= 0)
            text = text.substr(0, bytes_of_characters(text, conversion.precision));
        int const padding = conversion.width > 0 ? conversion.width - count_characters(text) : 0;
        if (padding > 0 && !conversion.left)
            m_out.append(static_cast<std::size_t>(padding), ' ');
        m_out.append(text);
        if (padding > 0 && conversion.left)
            m_out.append(static_cast<std::size_t>(padding), ' ');
    }

    template <class Number>
    void write_number(vmrnlsConversion const & conversion, char const * length, Number value)
    {
        auto const pattern = pattern_of(conversion, length);
        char buffer[128];
        auto const size =
            static_cast<std::size_t>(std::snprintf(buffer, sizeof buffer, pattern.c_str(), value));
        std::string text(buffer, std::min(size, sizeof buffer - 1));
        if (size >= sizeof buffer) {
            text.resize(size);
            std::snprintf(text.data(), size + 1, pattern.c_str(), value);
        }
        if constexpr (std::is_floating_point_v<Number>)
            text = localised(std::move(text), value);
        m_out += text;
    }

    static std::string pattern_of(vmrnlsConversion const & conversion, char const * length)
    {
        std::string pattern = "%";
        if (conversion.left)
            pattern += '-';
        if (conversion.plus)
            pattern += '+';
        if (conversion.blank)
            pattern += ' ';
        if (conversion.alternate)
            pattern += '#';
        if (conversion.zero)
            pattern += '0';
        if (conversion.width >= 0)
            pattern += std::to_string(conversion.width);
        if (conversion.precision >= 0)
            pattern.append(".").append(std::to_string(conversion.precision));
        return pattern.append(length) += conversion.kind;
    }

    /// Puts the decimal point in place of whatever the C library's locale has put there.
    std::string localised(std::string text, double value) const
    {
        constexpr std::string_view others = "0123456789+-eE ";
        auto const point = std::isfinite(value) ? text.find_first_not_of(others) : std::string::npos;
        if (point != std::string::npos) {
            auto const end = std::min(text.find_first_of(others, point), text.size());
            text.replace(point, end - point, m_decimal_point);
        }
        return text;
    }

    std::string & m_out;
    std::string_view m_decimal_point;
};

} // namespace

vmrnlsFormatterSimple::vmrnlsFormatterSimple(utString const & decimal_point)
    : m_decimal_point(decimal_point.empty() ? utString(".") : decimal_point)
{
}

utString vmrnlsFormatterSimple::format(utString const & text, utTextArguments const & arguments) const
{
    auto const source = text.view();
    std::string out;
    out.reserve(source.size() + 16 * arguments.size());
    Writer writer(out, m_decimal_point.view());
    std::size_t from = 0;
    std::size_t next_argument = 0;
    vmrnlsConversion conversion;
    while (vmrnlsConversion::next(source, from, conversion)) {
        out.append(source.substr(from, conversion.begin - from));
        from = conversion.end;
        if (conversion.kind == '%') {
            out += '%';
            continue;
        }
        auto const index =
            conversion.argument ? static_cast<std::size_t>(conversion.argument - 1) : next_argument++;
        if (index < arguments.size())
            std::visit([&](auto const & value) { writer.write(conversion, value); }, arguments[index]);
        else
            out.append(source.substr(conversion.begin, conversion.end - conversion.begin));
    }
    out.append(source.substr(from));
    return out;
}
