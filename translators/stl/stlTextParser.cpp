#include "stl/stlTextParser.h"

#include "sdk/sdkFiles.h"
#include "sdk/sdkLimits.h"
#include "stl/stlName.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace {

constexpr std::ptrdiff_t stride = 4 * 1024 * 1024; // bytes between two looks at the user's wish to cancel

bool is_blank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool same_word(std::string_view found, std::string_view lower)
{
    return found.size() == lower.size() &&
           std::equal(found.begin(), found.end(), lower.begin(), [](char one, char other) {
               return (one >= 'A' && one <= 'Z' ? static_cast<char>(one - 'A' + 'a') : one) == other;
           });
}

} // namespace

stlTextParser::stlTextParser(std::string_view content, stlInput & input, Message_ProgressRange const & range)
    : m_input(input), m_begin(content.data()), m_end(content.data() + content.size()), m_at(m_begin),
      m_word(m_begin), m_reported(m_begin), m_scope(range, nullptr, static_cast<double>(content.size()))
{
    if (content.starts_with("\xEF\xBB\xBF")) {
        m_at += 3;
    }
}

sdkResult stlTextParser::parse()
{
    while (!at_end()) {
        if (!solid()) {
            return m_cancelled ? sdkResult::cancelled() : sdkResult::read_error(m_failure);
        }
    }
    return sdkResult::completed();
}

bool stlTextParser::solid()
{
    if (!expect("solid")) {
        return false;
    }
    auto const name = stl_name_of(rest_of_line());
    auto & mesh = m_input.solids.emplace_back(name, m_input.tolerance, 0);
    for (;;) {
        auto const word = next_word();
        if (same_word(word, "endsolid")) {
            rest_of_line();
            return true;
        }
        if (!same_word(word, "facet")) {
            return unexpected(word, "facet or endsolid");
        }
        if (!facet(mesh)) {
            return false;
        }
        if (m_at - m_reported > stride) {
            m_scope.Next(static_cast<double>(m_at - m_reported));
            m_reported = m_at;
            if (m_scope.UserBreak()) {
                m_cancelled = true;
                return false;
            }
        }
    }
}

bool stlTextParser::facet(stlMesh & mesh)
{
    gp_XYZ normal;
    stlCorners corners;
    if (!expect("normal") || !point(normal) || !expect("outer") || !expect("loop")) {
        return false;
    }
    for (auto & corner : corners) {
        if (!expect("vertex") || !point(corner)) {
            return false;
        }
        corner *= m_input.unit;
        if (!sdk_in_reach(corner.X()) || !sdk_in_reach(corner.Y()) || !sdk_in_reach(corner.Z())) {
            return fail(sdkText("stl::%s, line %d: a coordinate is no finite number or lies farther away "
                                "than %g mm; repair the file or export it again",
                                m_input.file, line_of(m_word), sdk_farthest));
        }
    }
    auto const word = next_word();
    if (same_word(word, "vertex")) {
        return fail(
            sdkText("stl::%s, line %d: the facet has more than three corners; export the file again as "
                    "triangles",
                    m_input.file, line_of(m_word)));
    }
    if (!same_word(word, "endloop")) {
        return unexpected(word, "endloop");
    }
    if (!expect("endfacet")) {
        return false;
    }
    if (mesh.size() >= static_cast<std::size_t>(std::numeric_limits<int>::max() / 3)) {
        return fail(
            sdkText("stl::%s, line %d: a solid has more triangles than can be translated at once; divide it",
                    m_input.file, line_of(m_word)));
    }
    mesh.add(corners, normal);
    return true;
}

bool stlTextParser::at_end()
{
    while (m_at != m_end && is_blank(*m_at)) {
        ++m_at;
    }
    return m_at == m_end;
}

std::string_view stlTextParser::next_word()
{
    at_end();
    m_word = m_at;
    while (m_at != m_end && !is_blank(*m_at)) {
        ++m_at;
    }
    return {m_word, static_cast<std::size_t>(m_at - m_word)};
}

std::string_view stlTextParser::rest_of_line()
{
    auto const * const begin = m_at;
    m_at = std::find_if(m_at, m_end, [](char character) { return character == '\n' || character == '\r'; });
    return {begin, static_cast<std::size_t>(m_at - begin)};
}

bool stlTextParser::expect(std::string_view word)
{
    auto const found = next_word();
    return same_word(found, word) || unexpected(found, word);
}

bool stlTextParser::point(gp_XYZ & value)
{
    double x = 0;
    double y = 0;
    double z = 0;
    if (!number(x) || !number(y) || !number(z)) {
        return false;
    }
    value.SetCoord(x, y, z);
    return true;
}

bool stlTextParser::number(double & value)
{
    auto const word = next_word();
    // The library's parser takes no plus sign, and files have it.
    bool const signed_plus = word.size() > 1 && word[0] == '+' && word[1] != '-';
    auto const * const end = word.data() + word.size();
    auto const [rest, failure] = std::from_chars(word.data() + (signed_plus ? 1 : 0), end, value);
    if (failure == std::errc::result_out_of_range && rest == end) {
        // Too small to be told from zero, unless it is too large.
        value = std::strtod(std::string(word).c_str(), nullptr);
        return true;
    }
    return (failure == std::errc() && rest == end) || unexpected(word, "a number");
}

bool stlTextParser::unexpected(std::string_view found, std::string_view expected)
{
    bool const begun =
        found.data() + found.size() == m_end && same_word(found, expected.substr(0, found.size()));
    if (begun) {
        return fail(sdkText(
            "stl::%s is not a whole STL file: it ends at line %d, where %s should come; export or copy it "
            "again",
            m_input.file, line_of(m_end), expected));
    }
    constexpr std::size_t shown = 40;
    return fail(
        sdkText("stl::%s, line %d: \"%s\" stands where %s should come; repair the file or export it again",
                m_input.file, line_of(m_word), stl_name_of(found.substr(0, shown)), expected));
}

bool stlTextParser::fail(sdkText const & text)
{
    m_failure = text;
    return false;
}

std::int64_t stlTextParser::line_of(char const * place) const
{
    // Lines end with LF, CR LF, or a CR alone.
    std::int64_t line = 1;
    for (auto const * at = m_begin; at != place; ++at) {
        bool const second = *at == '\n' && at != m_begin && at[-1] == '\r';
        line += (*at == '\n' && !second) || *at == '\r' ? 1 : 0;
    }
    return line;
}
