#include "brep/brepTextSource.h"

#include "brep/brepDefect.h"
#include "sdk/sdkLimits.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

namespace {

bool is_blank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

} // namespace

char brepTextSource::next()
{
    while (m_at < m_content.size() && is_blank(m_content[m_at])) {
        ++m_at;
    }
    m_token = m_at;
    return m_at < m_content.size() ? m_content[m_at] : '\0';
}

std::string_view brepTextSource::word()
{
    next();
    while (m_at < m_content.size() && !is_blank(m_content[m_at])) {
        ++m_at;
    }
    return m_content.substr(m_token, m_at - m_token);
}

std::int64_t brepTextSource::integer()
{
    bool const plus = next() == '+';
    std::int64_t value = 0;
    auto const * const begin = m_content.data() + m_at + (plus ? 1 : 0);
    auto const result = std::from_chars(begin, m_content.data() + m_content.size(), value);
    if (result.ec != std::errc()) {
        expected("a whole number");
    }
    m_at = static_cast<std::size_t>(result.ptr - m_content.data());
    return value;
}

double brepTextSource::real()
{
    auto token = word();
    token.remove_prefix(token.starts_with('+') ? 1 : 0);
    double value = 0;
    auto const * const end = token.data() + token.size();
    auto const result = std::from_chars(token.data(), end, value);
    if (result.ptr != end || token.empty() || result.ec == std::errc::invalid_argument) {
        expected("a number");
    }
    if (result.ec == std::errc::result_out_of_range) {
        // Too small to be told from zero is no fault.
        value = std::strtod(std::string(token).c_str(), nullptr);
    }
    if (!sdk_usable(value)) {
        fail("the number " + std::string(token.substr(0, 40)) + " is not finite or too large");
    }
    return value;
}

int brepTextSource::number(int least, int most)
{
    auto const value = integer();
    if (value < least || value > most) {
        fail(std::to_string(value) + " stands where " + std::to_string(least) + " to " +
             std::to_string(most) + " can stand");
    }
    return static_cast<int>(value);
}

void brepTextSource::continuity()
{
    auto const name = word();
    if (name.size() != 2 || (name[0] != 'C' && name[0] != 'G')) {
        expected("a continuity such as C0");
    }
}

std::int64_t brepTextSource::section(std::string_view heading)
{
    if (word() != heading) {
        expected(std::string(heading).c_str());
    }
    return integer();
}

char brepTextSource::mark(std::string_view marks)
{
    char const found = next();
    if (found == '\0' || marks.find(found) == std::string_view::npos) {
        expected("another entry of a list");
    }
    ++m_at;
    return found;
}

void brepTextSource::expected(char const * what) const
{
    constexpr std::size_t shown = 40;
    auto found = m_content.substr(std::min(m_token, m_content.size()), shown);
    found = found.substr(
        0, static_cast<std::size_t>(std::find_if(found.begin(), found.end(), is_blank) - found.begin()));
    if (found.empty()) {
        fail("the file ends too early");
    }
    fail("\"" + std::string(found) + "\" stands where " + what + " should be");
}

void brepTextSource::fail(std::string const & reason) const
{
    auto const line =
        1 + std::count(m_content.begin(), m_content.begin() + static_cast<std::ptrdiff_t>(m_token), '\n');
    throw brepDefect(reason, "line " + std::to_string(line));
}
