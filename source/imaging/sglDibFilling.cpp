// Fills: opaque, translucent and as a chequer.

#include "sglDib.h"

#include "sglDibRows.h"
#include "sglPixelBlocks.h"
#include "sglPixelFormulas.h"

#include <algorithm>

void sglDib::fill(sglCOLORREF colour)
{
    std::fill_n(pixels(), count(), colour);
}

void sglDib::fill_rect(int x, int y, int w, int h, sglCOLORREF colour)
{
    sgl_each_row(*this, x, y, w, h,
                 [=](sglCOLORREF * d, std::size_t count, int) { std::fill_n(d, count, colour); });
}

void sglDib::fill_glass(int r, int g, int b, int a)
{
    fill_glass_rect(0, 0, m_width, m_height, r, g, b, a);
}

void sglDib::fill_glass_rect(int x, int y, int w, int h, int r, int g, int b, int a)
{
    sglChannels const colour{r, g, b};
    sgl_each_row(*this, x, y, w, h, [=](sglCOLORREF * d, std::size_t count, int) {
        sgl_combine(d, colour, count, sglKey(), sglBlendFormula(a));
    });
}

void sglDib::fill_stippled_glass(int r, int g, int b)
{
    auto const colour = sglCOLORREF::from_channels(r, g, b);
    auto const width = static_cast<std::size_t>(m_width);
    auto const height = static_cast<std::size_t>(m_height);
    for (std::size_t i = 0; i < width; ++i)
        for (std::size_t j = i & 1; j < height && i * width + j < count(); j += 2)
            pixels()[i * width + j] = colour;
}

void sglDib::fill_stippled_glass_rect(int x, int y, int w, int h, int r, int g, int b)
{
    auto const colour = sglCOLORREF::from_channels(r, g, b);
    sgl_each_row(*this, x, y, w, h, [=](sglCOLORREF * d, std::size_t count, int row) {
        for (std::size_t column = row & 1; column < count; column += 2)
            d[column] = colour;
    });
}
