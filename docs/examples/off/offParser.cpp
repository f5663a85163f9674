#include "off/offParser.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr std::ptrdiff_t stride = 1024 * 1024; // bytes between two looks at the user's wish to cancel

bool is_blank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

// The mesh of the toolkit counts in int, and three times as many numbers have to fit.
constexpr std::int64_t most = std::numeric_limits<int>::max() / 3;

} // namespace

offParser::offParser(std::string_view content, std::string const & file, Message_ProgressRange const & range)
    : m_file(file), m_begin(content.data()), m_end(content.data() + content.size()), m_at(m_begin),
      m_reported(m_begin), m_scope(range, nullptr, static_cast<double>(content.size()))
{
}

sdkResult offParser::parse(offMesh & mesh)
{
    std::int64_t points = 0;
    std::int64_t polygons = 0;
    bool good = header(points, polygons);
    for (std::int64_t done = 0; good && done < points; ++done) {
        good = go_on() && point(mesh);
    }
    for (std::int64_t done = 0; good && done < polygons; ++done) {
        good = go_on() && polygon(mesh);
    }
    if (m_cancelled) {
        return sdkResult::cancelled();
    }
    return good ? sdkResult::completed() : sdkResult::read_error(m_failure);
}

bool offParser::header(std::int64_t & points, std::int64_t & polygons)
{
    if (next_word() != "OFF") {
        return fail(sdkText("off::%s is not an OFF file: it does not begin with the word OFF; check that it "
                            "is the right file",
                            m_file));
    }
    std::int64_t edges = 0;
    return count(points, most, "the number of points") && count(polygons, most, "the number of polygons") &&
           count(edges, std::numeric_limits<std::int64_t>::max(), "the number of edges");
}

bool offParser::point(offMesh & mesh)
{
    double x = 0;
    double y = 0;
    double z = 0;
    if (!number(x) || !number(y) || !number(z)) {
        return false;
    }
    mesh.points.emplace_back(x, y, z);
    rest_of_line();
    return true;
}

bool offParser::polygon(offMesh & mesh)
{
    std::int64_t corners = 0;
    if (!count(corners, most, "the number of corners of a polygon")) {
        return false;
    }
    std::array<int, 3> triangle{};
    for (std::int64_t corner = 0; corner < corners; ++corner) {
        std::int64_t point = 0;
        auto const last = static_cast<std::int64_t>(mesh.points.size()) - 1;
        if (!count(point, last, "the number of a point")) {
            return false;
        }
        triangle[static_cast<std::size_t>(std::min<std::int64_t>(corner, 2))] = static_cast<int>(point);
        if (corner >= 2) {
            if (static_cast<std::int64_t>(mesh.triangles.size()) == most) {
                return fail(sdkText("off::%s, line %d: the mesh has more triangles than can be translated at "
                                    "once; divide it",
                                    m_file, m_line));
            }
            mesh.triangles.push_back(triangle);
            triangle[1] = triangle[2];
        }
    }
    mesh.dropped += corners < 3 ? 1 : 0;
    rest_of_line();
    return true;
}

std::string_view offParser::next_word()
{
    while (m_at != m_end && (is_blank(*m_at) || *m_at == '#')) {
        if (*m_at == '#') {
            rest_of_line();
        } else {
            m_line += *m_at++ == '\n' ? 1 : 0;
        }
    }
    auto const * const begin = m_at;
    m_at = std::find_if(m_at, m_end, [](char character) { return is_blank(character) || character == '#'; });
    return {begin, static_cast<std::size_t>(m_at - begin)};
}

void offParser::rest_of_line()
{
    m_at = std::find(m_at, m_end, '\n');
}

bool offParser::count(std::int64_t & value, std::int64_t limit, char const * what)
{
    auto const word = next_word();
    auto const * const end = word.data() + word.size();
    auto const [rest, failure] = std::from_chars(word.data(), end, value);
    if (failure != std::errc() || rest != end) {
        return unexpected(word, what);
    }
    if (value < 0 || value > limit) {
        return fail(sdkText("off::%s, line %d: %d is out of range for %s; repair the file or export it again",
                            m_file, m_line, value, what));
    }
    return true;
}

bool offParser::number(double & value)
{
    auto const word = next_word();
    auto const * const end = word.data() + word.size();
    auto const [rest, failure] = std::from_chars(word.data(), end, value);
    return (failure == std::errc() && rest == end && std::isfinite(value)) ||
           unexpected(word, "a coordinate");
}

bool offParser::fail(sdkText const & text)
{
    m_failure = text;
    return false;
}

bool offParser::unexpected(std::string_view found, char const * expected)
{
    if (found.empty()) {
        return fail(
            sdkText("off::%s is not a whole OFF file: it ends at line %d, where %s should come; export "
                    "or copy it again",
                    m_file, m_line, expected));
    }
    constexpr std::size_t shown = 40;
    return fail(
        sdkText("off::%s, line %d: \"%s\" stands where %s should come; repair the file or export it again",
                m_file, m_line, found.substr(0, shown), expected));
}

bool offParser::go_on()
{
    if (m_at - m_reported > stride) {
        m_scope.Next(static_cast<double>(m_at - m_reported));
        m_reported = m_at;
        m_cancelled = m_scope.UserBreak();
    }
    return !m_cancelled;
}
