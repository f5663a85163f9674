#include "brep/brepBinarySource.h"

#include "brep/brepDefect.h"
#include "sdk/sdkLimits.h"

#include <bit>
#include <charconv>
#include <cstring>

static_assert(std::endian::native == std::endian::little);

char const * brepBinarySource::take(std::size_t bytes)
{
    if (m_content.size() - m_at < bytes) {
        fail("the file ends too early");
    }
    auto const * const begin = m_content.data() + m_at;
    m_at += bytes;
    return begin;
}

void brepBinarySource::skip(std::size_t bytes)
{
    take(bytes);
}

int brepBinarySource::byte()
{
    return static_cast<unsigned char>(*take(1));
}

std::int64_t brepBinarySource::integer()
{
    std::int32_t value = 0;
    std::memcpy(&value, take(sizeof value), sizeof value);
    return value;
}

int brepBinarySource::degree()
{
    std::uint16_t value = 0;
    std::memcpy(&value, take(sizeof value), sizeof value);
    return value;
}

double brepBinarySource::real()
{
    double value = 0;
    std::memcpy(&value, take(sizeof value), sizeof value);
    if (!sdk_usable(value)) {
        m_at -= sizeof value;
        fail("a number is not finite or too large");
    }
    return value;
}

std::int64_t brepBinarySource::section(std::string_view heading)
{
    while (m_at < m_content.size() && m_content[m_at] == '\n') {
        ++m_at;
    }
    std::int64_t count = 0;
    auto const begin = m_at + heading.size() + 1;
    auto const line = m_content.find('\n', m_at);
    if (line == std::string_view::npos || !m_content.substr(m_at).starts_with(heading) || begin > line ||
        std::from_chars(m_content.data() + begin, m_content.data() + line, count).ec != std::errc()) {
        fail("the section " + std::string(heading) + " is missing");
    }
    m_at = line + 1;
    return count;
}

void brepBinarySource::fail(std::string const & reason) const
{
    throw brepDefect(reason, "byte " + std::to_string(m_at));
}
