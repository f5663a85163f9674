// How buttons are drawn: edges in the colours of the desktop, and what a press and a highlight look like.

#include "sglDib.h"

#include "sglDibRows.h"

#include <algorithm>
#include <cstdint>

namespace {

/// Writes by column and row, taken for an index as they are; what lies outside of the buffer is left out.
class Writer {
public:
    explicit Writer(sglDib & dib) : m_dib(dib), m_count(static_cast<std::int64_t>(dib.count())) {}

    void operator()(std::int64_t x, std::int64_t y, sglCOLORREF colour) const
    {
        std::int64_t const index = y * m_dib.width() + x;
        if (index >= 0 && index < m_count)
            m_dib.pixels()[index] = colour;
    }

private:
    sglDib & m_dib;
    std::int64_t m_count;
};

/// The colours of two pixels from the edge inward, at each side.
struct Edge {
    sglCOLORREF left[2];
    sglCOLORREF right[2];
    sglCOLORREF top[2];
    sglCOLORREF bottom[2];
    sglCOLORREF last; ///< of the whole buffer
};

void draw_edge(sglDib & dib, Edge const & edge)
{
    Writer const write(dib);
    int const w = dib.width();
    int const h = dib.height();
    for (int y = 1; y < h; ++y) {
        write(1, y, edge.left[1]);
        write(0, y, edge.left[0]);
        // The pixel ahead of a row is the last of the one below.
        write(-1, y, edge.right[0]);
        write(-2, y, edge.right[1]);
    }
    for (int x = 0; x < w; ++x) {
        if (x > 3)
            write(x - 2, h - 2, edge.top[1]);
        write(x + 1, h - 1, edge.top[0]);
        write(x, 0, edge.bottom[0]);
        if (x > 2)
            write(x - 2, 1, edge.bottom[1]);
    }
    write(w - 1, h - 1, edge.last);
}

sglCOLORREF opaque(wxSystemColour number)
{
    auto colour = wx_to_ref(number);
    colour.alpha = 255;
    return colour;
}

/// Light and dark sides, each by the colours of its outer and inner pixels.
Edge two_sided(sglCOLORREF light, sglCOLORREF light_inside, sglCOLORREF dark, sglCOLORREF dark_inside,
               sglCOLORREF last)
{
    return {{light, light_inside}, {dark, dark_inside}, {light, light_inside}, {dark, dark_inside}, last};
}

} // namespace

void sglDib::draw_button_flat(sglDibEdgeStyle style)
{
    auto const frame = opaque(wxSYS_COLOUR_WINDOWFRAME);
    auto const face = opaque(wxSYS_COLOUR_BTNFACE);
    auto const shadow = opaque(wxSYS_COLOUR_BTNSHADOW);
    auto const highlight = opaque(wxSYS_COLOUR_BTNHIGHLIGHT);
    switch (style) {
    case sglDibEdgeFace:
        return draw_edge(*this, two_sided(face, face, face, face, face));
    case sglDibEdgeRaised:
        return draw_edge(*this, two_sided(highlight, face, shadow, face, shadow));
    case sglDibEdgeSunken:
        return draw_edge(*this, two_sided(shadow, face, highlight, face, highlight));
    case sglDibEdgeFramedSunken:
    case sglDibEdgeFramedSunken2:
        return draw_edge(*this, two_sided(frame, shadow, frame, highlight, frame));
    case sglDibEdgeFramedRaised:
        return draw_edge(*this, two_sided(frame, highlight, frame, shadow, frame));
    }
}

void sglDib::draw_button_edge(int raised)
{
    auto const face = opaque(wxSYS_COLOUR_BTNFACE);
    auto const shadow = opaque(wxSYS_COLOUR_BTNSHADOW);
    auto const highlight = opaque(wxSYS_COLOUR_BTNHIGHLIGHT);
    auto const dark = opaque(wxSYS_COLOUR_3DDKSHADOW);
    sglCOLORREF const none(0);
    draw_edge(*this, raised ? two_sided(highlight, face, dark, shadow, none)
                            : two_sided(dark, shadow, highlight, face, none));
}

void sglDib::cool_stipple()
{
    constexpr std::uint32_t magenta = 0x00FF00FF;
    auto const face = wx_to_ref(wxSYS_COLOUR_BTNFACE);
    auto const highlight = wx_to_ref(wxSYS_COLOUR_BTNHIGHLIGHT);
    if (m_width < 5)
        return;
    for (int y = 1; y <= m_height - 3; ++y)
        for (int x = 2; x <= m_width - 3; ++x) {
            auto & pixel = pixels()[sgl_index(*this, x, y)];
            if ((pixel.value() & 0x00FFFFFF) == magenta)
                pixel = (x + y) & 1 ? highlight : face;
        }
}

void sglDib::add_sparkle()
{
    // From the lowest row of the star up.
    static constexpr char const * star[12] = {
        ".......#....", "....#..#..#.", ".....#...#..", ".......#....", "...##.###.##", ".......#....",
        ".....#...#..", "....#..#..#.", ".......#....", "............", "............", "............",
    };
    Writer const write(*this);
    for (int row = 0; row < 12; ++row)
        for (int column = 0; column < 12; ++column)
            if (star[row][column] == '#')
                write(column, std::int64_t(m_height) - 12 + row, sglCOLORREF(0x00FF0000));
}

void sglDib::down()
{
    if (m_width < 2)
        return;
    for (int y = 0; y < m_height - 1; ++y)
        std::copy_n(pixels() + sgl_index(*this, 0, y + 1), m_width - 1, pixels() + sgl_index(*this, 1, y));
}

void sglDib::fulldown()
{
    down();
    draw_button_flat(sglDibEdgeFace);
    down();
    draw_button_edge(0);
}
