#include "sglDib.h"

#include "sglDibRows.h"
#include "sglPixelBlocks.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace {

constexpr std::size_t block = sgl_block_pixels;
using Sums = std::array<std::uint16_t, 4 * (block + 2)>;

void add(Sums & sums, sglCOLORREF const * pixels, std::size_t count)
{
    std::array<std::uint8_t, 4 * (block + 2)> bytes{};
    std::memcpy(bytes.data(), pixels, count * sizeof(sglCOLORREF));
    for (std::size_t i = 0; i < sums.size(); ++i)
        sums[i] = static_cast<std::uint16_t>(sums[i] + bytes[i]);
}

/// Blurs `count` pixels behind the first of a row from three rows of a copy, which begin with that first.
void blur_row(sglCOLORREF * to, sglCOLORREF const * below, sglCOLORREF const * here,
              sglCOLORREF const * above, std::size_t count)
{
    sgl_each_block(count, [=](std::size_t first, auto pixels) {
        // Downwards first, then along the row.
        Sums sums{};
        for (auto const * const row : {below, here, above})
            add(sums, row + first, pixels + 2);
        sglBlockBytes means;
        for (std::size_t i = 0; i < means.size(); ++i)
            means[i] = static_cast<std::uint8_t>(
                static_cast<std::uint16_t>(sums[i] + sums[i + 4] + sums[i + 8]) / 9);
        auto * const target = to + first + 1;
        sgl_store(target, sgl_merge(sgl_load(target, pixels), sgl_pixels(means), sgl_repeat(sgl_colour_bits)),
                  pixels);
    });
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
