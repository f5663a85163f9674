#include "sglDib.h"

#include "sglDibRows.h"

#include <cstdint>

namespace {

/// Blurs `count` pixels of a row behind its first from the three rows of a copy around it.
void blur_row(sglCOLORREF * to, sglCOLORREF const * below, sglCOLORREF const * here,
              sglCOLORREF const * above, std::size_t count)
{
    auto const mean = [=](std::size_t i, unsigned char sglCOLORREF::*channel) {
        unsigned int sum = 0;
        for (std::size_t column = i; column < i + 3; ++column)
            sum += below[column].*channel + here[column].*channel + above[column].*channel;
        return static_cast<unsigned char>(static_cast<std::uint16_t>(sum) / 9);
    };
    for (std::size_t i = 0; i < count; ++i) {
        to[i + 1].blue = mean(i, &sglCOLORREF::blue);
        to[i + 1].green = mean(i, &sglCOLORREF::green);
        to[i + 1].red = mean(i, &sglCOLORREF::red);
    }
}

} // namespace

void sglDib::blur_3x3()
{
    if (m_width < 3 || m_height < 3)
        return;
    sglDib before;
    before.copy_from(this);
    if (!before.pixels())
        return;
    for (int y = 1; y < m_height - 1; ++y)
        blur_row(pixels() + sgl_index(*this, 0, y), before.pixels() + sgl_index(before, 0, y - 1),
                 before.pixels() + sgl_index(before, 0, y), before.pixels() + sgl_index(before, 0, y + 1),
                 static_cast<std::size_t>(m_width) - 2);
}
