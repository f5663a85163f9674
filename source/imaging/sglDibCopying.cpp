// Copies between buffers, whole and in part, with a key or with the alpha of the source.

#include "sglDib.h"

#include "sglDibRows.h"
#include "sglPixelBlocks.h"
#include "sglPixelFormulas.h"

#include <algorithm>

namespace {

/// The alpha of each pixel in all of its bytes.
sglBlockPixels spread_alpha(sglBlockPixels const & pixels)
{
    sglBlockPixels spread;
    for (std::size_t i = 0; i < sgl_block_pixels; ++i) {
        std::uint32_t const two = pixels[i] >> 24 | (pixels[i] >> 24) << 8;
        spread[i] = two | two << 16;
    }
    return spread;
}

/// Each byte blended by the alpha of its pixel, and alpha 0.
sglBlockPixels blend_by_alpha(sglBlockPixels const & here, sglBlockPixels const & other)
{
    auto const d = sgl_bytes(here);
    auto const s = sgl_bytes(other);
    auto const alpha = sgl_bytes(spread_alpha(other));
    sglBlockBytes result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = sglBlendFormula(alpha[i])(d[i], s[i]);
    return sgl_and(sgl_pixels(result), sgl_colour_bits);
}

} // namespace

void sglDib::copy_from(sglDib * other)
{
    if (!other || other == this || !resize(other->width(), other->height()))
        return;
    std::copy_n(other->pixels(), count(), pixels());
}

void sglDib::copy_from(sglDib * other, sglCOLORREF c, int x, int y)
{
    if (!other || !resize(other->width(), other->height()))
        return;
    std::int64_t const index = std::int64_t(y) * m_width + x;
    if (index < 0 || index >= static_cast<std::int64_t>(count())) {
        copy_from(other);
        return;
    }
    sglCOLORREF const key = other->pixels()[index];
    std::transform(other->pixels(), other->pixels() + count(), pixels(),
                   [=](sglCOLORREF pixel) { return pixel == key ? c : pixel; });
}

void sglDib::copy_rect_from(sglDib const * other, int x, int y)
{
    sgl_each_row(*this, other, x, y, [](sglCOLORREF * d, sglCOLORREF const * s, std::size_t count) {
        std::copy_n(s, d == s ? 0 : count, d);
    });
}

void sglDib::copy_rect_from(sglDib const * other, int x, int y, sglCOLORREF key)
{
    copy_rect_from(other, x, y, key, 1, 0);
}

void sglDib::copy_rect_from_alpha(sglDib const * other, int x, int y)
{
    copy_rect_from(other, x, y, sglCOLORREF(), 0, 1);
}

void sglDib::copy_rect_from(sglDib const * other, int x, int y, sglCOLORREF key, int use_key, int use_alpha)
{
    auto const left_out = use_key ? sglKey(key) : sglKey();
    sgl_each_row(*this, other, x, y, [=](sglCOLORREF * d, sglCOLORREF const * s, std::size_t count) {
        sgl_each_block(count, [=](std::size_t first, auto pixels) {
            auto const here = sgl_load(d + first, pixels);
            auto const there = sgl_load(s + first, pixels);
            auto const now = use_alpha ? blend_by_alpha(here, there) : there;
            sgl_store(d + first, left_out.active ? sgl_merge(here, now, left_out.others(there)) : now,
                      pixels);
        });
    });
}

void sglDib::copy_mask_rect_from(sglDib * other, int x, int y, sglCOLORREF key, sglCOLORREF a, sglCOLORREF b)
{
    sglKey const mask(key);
    auto const elsewhere = sgl_repeat(a.value());
    auto const matching = sgl_repeat(b.value());
    sgl_each_row(*this, other, x, y, [=](sglCOLORREF * d, sglCOLORREF const * s, std::size_t count) {
        sgl_each_block(count, [&](std::size_t first, auto pixels) {
            auto const there = sgl_load(s + first, pixels);
            sgl_store(d + first, sgl_merge(matching, elsewhere, mask.others(there)), pixels);
        });
    });
}

void sglDib::copy_rect_to(sglDib * out, int x, int y) const
{
    if (!out)
        return;
    auto const across = sgl_clip(out->width(), m_width, x);
    auto const up = sgl_clip(out->height(), m_height, y);
    if (across.length == 0 || up.length == 0)
        return;
    if (out == this) {
        sglDib before;
        before.copy_from(out);
        before.copy_rect_to(out, x, y);
        return;
    }
    if (out->resize(across.length, up.length))
        out->copy_rect_from(this, -across.to, -up.to);
}

void sglDib::copy_rect_to(sglDib * out, int x, int y, int w, int h) const
{
    if (!out || !out->pixels() || out == this)
        return;
    auto const across = sgl_clip(w, m_width, x);
    auto const up = sgl_clip(h, m_height, y);
    for (int row = 0; row < up.length; ++row) {
        auto const begin = sgl_index(*this, across.to, up.to + row);
        auto const end = std::min(begin + static_cast<std::size_t>(across.length), out->count());
        if (begin < end)
            std::copy(pixels() + begin, pixels() + end, out->pixels() + begin);
    }
}

void sglDib::tile(sglDib * other)
{
    if (!other || !other->pixels() || !pixels() || other == this)
        return;
    auto const width = static_cast<std::size_t>(m_width);
    auto const step = std::min(static_cast<std::size_t>(other->width()), width);
    for (int y = 0; y < m_height; ++y) {
        auto * const row = pixels() + sgl_index(*this, 0, y);
        if (y >= other->height()) {
            std::copy_n(row - sgl_index(*this, 0, other->height()), width, row);
            continue;
        }
        std::copy_n(other->pixels() + sgl_index(*other, 0, y), step, row);
        for (std::size_t done = step; done < width;) {
            auto const more = std::min(done, width - done);
            std::copy_n(row, more, row + done);
            done += more;
        }
    }
}
