// What changes the colours of the whole picture.

#include "sglDib.h"

#include "sglPixelBlocks.h"
#include "sglPixelFormulas.h"

#include <algorithm>
#include <array>

namespace {

/// In the proportions in which the eye takes the three colours for bright.
unsigned char luminance(sglCOLORREF pixel)
{
    return static_cast<unsigned char>((77U * pixel.red + 151U * pixel.green + 28U * pixel.blue) >> 8);
}

using Gradient = std::array<sglCOLORREF, 256>; // by luminance

/// from + step * (to - from) / steps in each channel.
sglCOLORREF between(sglCOLORREF from, sglCOLORREF to, int step, int steps)
{
    return sglCOLORREF::from_channels(from.red + step * (to.red - from.red) / steps,
                                      from.green + step * (to.green - from.green) / steps,
                                      from.blue + step * (to.blue - from.blue) / steps);
}

Gradient gradient(sglCOLORREF c1, sglCOLORREF c2, sglCOLORREF c3, int mid)
{
    int const upper = (256 - mid) & 255;
    Gradient colours;
    for (int level = 0; level < 256; ++level)
        colours[static_cast<std::size_t>(level)] = level < mid ? between(c1, c2, level, mid)
                                                   : upper     ? between(c2, c3, level - mid, upper)
                                                               : sglCOLORREF(0x00C0C0C0);
    return colours;
}

void tint(sglDib & dib, sglCOLORREF c1, sglCOLORREF c2, sglCOLORREF c3, sglKey key, unsigned char mid)
{
    auto const colours = gradient(c1, c2, c3, mid ? mid : luminance(c2));
    auto * const pixels = dib.pixels();
    for (std::size_t i = 0; i < dib.count(); ++i) {
        if (key.matches(pixels[i]))
            continue;
        sglCOLORREF colour = colours[luminance(pixels[i])];
        colour.alpha = pixels[i].alpha;
        pixels[i] = colour;
    }
}

} // namespace

void sglDib::darken(int amount, sglCOLORREF key)
{
    int const loss = std::clamp(amount, 0, 255);
    sgl_combine(pixels(), sglChannels{loss, loss, loss}, count(), sglKey(key), sglLoseFormula());
}

void sglDib::multiply_color(int r, int g, int b, sglCOLORREF key)
{
    sglKey const stop = key.value() == 0 ? sglKey() : sglKey(key);
    auto const * const begin = pixels();
    auto const * const first_match =
        std::find_if(begin, begin + count(), [=](sglCOLORREF pixel) { return stop.matches(pixel); });
    sgl_combine(pixels(), sglChannels{r, g, b}, static_cast<std::size_t>(first_match - begin), sglKey(),
                sglMultiplyFormula());
}

void sglDib::greyscale()
{
    sgl_each_block(count(), [this](std::size_t first, auto pixels_of_block) {
        auto block = sgl_load(pixels() + first, pixels_of_block);
        for (auto & pixel : block) {
            std::uint32_t const level =
                (77 * (pixel >> 16 & 255) + 151 * (pixel >> 8 & 255) + 28 * (pixel & 255)) >> 8;
            pixel = (pixel & ~sgl_colour_bits) | level << 16 | level << 8 | level;
        }
        sgl_store(pixels() + first, block, pixels_of_block);
    });
}

void sglDib::color_tint_3(sglCOLORREF c1, sglCOLORREF c2, sglCOLORREF c3, unsigned char mid)
{
    tint(*this, c1, c2, c3, sglKey(), mid);
}

void sglDib::color_tint_3(sglCOLORREF c1, sglCOLORREF c2, sglCOLORREF c3, sglCOLORREF key, unsigned char mid)
{
    tint(*this, c1, c2, c3, sglKey(key), mid);
}
