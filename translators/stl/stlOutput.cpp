#include "stl/stlOutput.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>

static_assert(std::endian::native == std::endian::little);

namespace {

gp_XYZ normal_of(stlCorners const & corners)
{
    auto const area = stl_area_vector(corners);
    return area / area.Modulus();
}

std::streamsize signed_size(std::size_t size)
{
    return static_cast<std::streamsize>(size);
}

} // namespace

void stlBinaryOutput::begin(std::string const & text, std::uint32_t triangles)
{
    std::array<char, 84> header{};
    std::fill_n(header.begin(), 80, ' ');
    std::copy_n(text.begin(), std::min<std::size_t>(text.size(), 80), header.begin());
    std::memcpy(header.data() + 80, &triangles, sizeof triangles);
    m_stream.sputn(header.data(), signed_size(header.size()));
}

void stlBinaryOutput::triangle(stlCorners const & corners)
{
    std::array<float, 12> values{};
    auto const put = [&](std::size_t place, gp_XYZ const & point) {
        values[place] = static_cast<float>(point.X());
        values[place + 1] = static_cast<float>(point.Y());
        values[place + 2] = static_cast<float>(point.Z());
    };
    put(0, normal_of(corners));
    for (std::size_t corner = 0; corner < 3; ++corner) {
        put(3 * (corner + 1), corners[corner]);
    }
    std::array<char, 50> record{};
    std::memcpy(record.data(), values.data(), sizeof values);
    m_stream.sputn(record.data(), signed_size(record.size()));
}

void stlTextOutput::begin_solid(std::string const & name)
{
    m_text = "solid " + name + "\n";
    send();
}

void stlTextOutput::triangle(stlCorners const & corners)
{
    m_text += "  facet normal";
    append(normal_of(corners));
    m_text += "\n    outer loop\n";
    for (auto const & corner : corners) {
        m_text += "      vertex";
        append(corner);
        m_text += '\n';
    }
    m_text += "    endloop\n  endfacet\n";
    send();
}

void stlTextOutput::end_solid(std::string const & name)
{
    m_text = "endsolid " + name + "\n";
    send();
}

void stlTextOutput::append(gp_XYZ const & point)
{
    for (int axis = 1; axis <= 3; ++axis) {
        std::array<char, 40> buffer{};
        // Adding zero takes the sign from a negative zero.
        auto const [end, failure] =
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), point.Coord(axis) + 0.0,
                          std::chars_format::general, m_digits);
        m_text += ' ';
        m_text.append(buffer.data(), end);
    }
}

void stlTextOutput::send()
{
    m_stream.sputn(m_text.data(), signed_size(m_text.size()));
    m_text.clear();
}
