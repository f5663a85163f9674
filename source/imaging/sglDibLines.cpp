#include "sglDib.h"

#include "sglPixelFormulas.h"

#include <cstdint>
#include <cstdlib>

namespace {

/// Calls write(x, y) for each point of a line after Bresenham, but not for its end.
template <class Write>
void walk(int x1, int y1, int x2, int y2, Write write)
{
    std::int64_t const dx = std::int64_t(x2) - x1;
    std::int64_t const dy = std::int64_t(y2) - y1;
    bool const steep = 2 * std::abs(dx) <= 2 * std::abs(dy);
    std::int64_t x = x1;
    std::int64_t y = y1;
    auto & major = steep ? y : x;
    auto & minor = steep ? x : y;
    std::int64_t const end = steep ? y2 : x2;
    std::int64_t const major_distance = 2 * std::abs(steep ? dy : dx);
    std::int64_t const minor_distance = 2 * std::abs(steep ? dx : dy);
    int const major_step = (steep ? dy : dx) < 0 ? -1 : 1;
    int const minor_step = (steep ? dx : dy) < 0 ? -1 : 1;
    std::int64_t error = minor_distance - (major_distance >> 1);
    while (major != end) {
        write(x, y);
        major += major_step;
        if (error >= 0) {
            minor += minor_step;
            error -= major_distance;
        }
        error += minor_distance;
    }
}

/// The same for each pixel of the buffer on the line.
template <class Write>
void walk(sglDib & dib, int x1, int y1, int x2, int y2, Write write)
{
    walk(x1, y1, x2, y2, [&](std::int64_t x, std::int64_t y) {
        std::int64_t const index = y * dib.width() + x;
        if (index >= 0 && index < static_cast<std::int64_t>(dib.count()))
            write(dib.pixels()[index]);
    });
}

} // namespace

void sglDib::line(int x1, int y1, int x2, int y2, sglCOLORREF colour)
{
    walk(*this, x1, y1, x2, y2, [=](sglCOLORREF & pixel) { pixel = colour; });
}

void sglDib::line_glass(int x1, int y1, int x2, int y2, int r, int g, int b, int a)
{
    sglBlendFormula const blend(a);
    walk(*this, x1, y1, x2, y2, [=](sglCOLORREF & pixel) {
        pixel.blue = blend(pixel.blue, static_cast<std::uint16_t>(b));
        pixel.green = blend(pixel.green, static_cast<std::uint16_t>(g));
        pixel.red = blend(pixel.red, static_cast<std::uint16_t>(r));
    });
}
