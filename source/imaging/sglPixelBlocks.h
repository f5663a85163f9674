#pragma once

#include "sglDib.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

// Pixels are worked on in blocks of a fixed size, byte by byte in loops that the compiler turns into vector
// code. The bytes that must not change are masked out, which is cheaper than stepping over them.

constexpr std::size_t sgl_block_pixels = 16;
using sglBlockBytes = std::array<std::uint8_t, 4 * sgl_block_pixels>;
using sglBlockWords = std::array<std::uint16_t, 4 * sgl_block_pixels>;
using sglBlockPixels = std::array<std::uint32_t, sgl_block_pixels>;

constexpr std::uint32_t sgl_colour_bits = 0x00FFFFFF;

/// Whether a colour can match pixels at all, and which.
struct sglKey {
    bool active = false;
    std::uint32_t colour = 0;

    sglKey() = default; ///< matches nothing
    explicit sglKey(sglCOLORREF key) : active(key.alpha == 0), colour(key.value()) {}

    bool matches(sglCOLORREF pixel) const { return active && (pixel.value() & sgl_colour_bits) == colour; }
    /// For each pixel of the block all bits when it does not match, none when it does.
    sglBlockPixels others(sglBlockPixels const & pixels) const
    {
        sglBlockPixels mask;
        std::uint32_t const always = active ? 0 : ~std::uint32_t(0);
        for (std::size_t i = 0; i < sgl_block_pixels; ++i)
            mask[i] = ((pixels[i] & sgl_colour_bits) == colour ? 0 : ~std::uint32_t(0)) | always;
        return mask;
    }
};

inline sglBlockBytes sgl_bytes(sglBlockPixels const & pixels)
{
    sglBlockBytes bytes;
    std::memcpy(bytes.data(), pixels.data(), sizeof bytes);
    return bytes;
}

inline sglBlockPixels sgl_pixels(sglBlockBytes const & bytes)
{
    sglBlockPixels pixels;
    std::memcpy(pixels.data(), bytes.data(), sizeof pixels);
    return pixels;
}

/// A block of one value for each pixel.
inline sglBlockPixels sgl_repeat(std::uint32_t value)
{
    sglBlockPixels pixels;
    pixels.fill(value);
    return pixels;
}

/// `count` is a constant for all blocks but the last, so that the compiler sees a copy of known size.
template <class Count>
sglBlockPixels sgl_load(sglCOLORREF const * pixels, Count count)
{
    sglBlockPixels block;
    if (count != sgl_block_pixels)
        block.fill(0);
    std::memcpy(block.data(), pixels, count * sizeof(sglCOLORREF));
    return block;
}

template <class Count>
void sgl_store(sglCOLORREF * pixels, sglBlockPixels const & block, Count count)
{
    std::memcpy(static_cast<void *>(pixels), block.data(), count * sizeof(sglCOLORREF));
}

/// Calls work(number of the first pixel, count of pixels) for each block of `count` pixels.
template <class Work>
void sgl_each_block(std::size_t count, Work work)
{
    std::size_t first = 0;
    for (; first + sgl_block_pixels <= count; first += sgl_block_pixels)
        work(first, std::integral_constant<std::size_t, sgl_block_pixels>());
    if (first < count)
        work(first, count - first);
}

/// The bits of `now` where `mask` has them set, those of `before` elsewhere.
inline sglBlockPixels sgl_merge(sglBlockPixels const & before, sglBlockPixels const & now,
                                sglBlockPixels const & mask)
{
    sglBlockPixels merged;
    for (std::size_t i = 0; i < sgl_block_pixels; ++i)
        merged[i] = (before[i] & ~mask[i]) | (now[i] & mask[i]);
    return merged;
}

inline sglBlockPixels sgl_and(sglBlockPixels const & a, std::uint32_t bits)
{
    sglBlockPixels result;
    for (std::size_t i = 0; i < sgl_block_pixels; ++i)
        result[i] = a[i] & bits;
    return result;
}

/// formula(byte here, value of the other) for every byte of a block.
template <class Values, class Formula>
sglBlockPixels sgl_compute(sglBlockPixels const & here, Values const & other, Formula formula)
{
    auto const d = sgl_bytes(here);
    sglBlockBytes result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = formula(d[i], other[i]);
    return sgl_pixels(result);
}

/// Writes formula(byte here, byte of the other) into blue, green and red of `count` pixels.
template <class Formula>
void sgl_combine(sglCOLORREF * to, sglCOLORREF const * from, std::size_t count, Formula formula)
{
    auto const mask = sgl_repeat(sgl_colour_bits);
    sgl_each_block(count, [=](std::size_t first, auto pixels) {
        auto const here = sgl_load(to + first, pixels);
        auto const now = sgl_compute(here, sgl_bytes(sgl_load(from + first, pixels)), formula);
        sgl_store(to + first, sgl_merge(here, now, mask), pixels);
    });
}

/// Three channels as the caller gave them. Of what lies beyond a byte the formulas use sixteen bits.
struct sglChannels {
    int red;
    int green;
    int blue;
};

/// The same with one colour for all pixels, but for those that match the key.
template <class Formula>
void sgl_combine(sglCOLORREF * to, sglChannels colour, std::size_t count, sglKey key, Formula formula)
{
    sglBlockWords other{};
    for (std::size_t i = 0; i < other.size(); i += 4) {
        other[i] = static_cast<std::uint16_t>(colour.blue);
        other[i + 1] = static_cast<std::uint16_t>(colour.green);
        other[i + 2] = static_cast<std::uint16_t>(colour.red);
    }
    sgl_each_block(count, [&](std::size_t first, auto pixels) {
        auto const here = sgl_load(to + first, pixels);
        auto const now = sgl_compute(here, other, formula);
        sgl_store(to + first, sgl_merge(here, now, sgl_and(key.others(here), sgl_colour_bits)), pixels);
    });
}
