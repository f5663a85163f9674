#pragma once

#include "sglDib.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// What is left of a rectangle along one direction after clipping.
struct sglDibSpan {
    int length = 0; ///< 0 when nothing is left
    int to = 0;     ///< where it begins in the buffer that is written
    int from = 0;   ///< and in the rectangle
};

/// Places `source` pixels at `at` of `destination` pixels.
constexpr sglDibSpan sgl_clip(int source, int destination, int at)
{
    std::int64_t const position = at;
    std::int64_t length = position + source < destination ? source : destination - position;
    if (position < 0)
        length += position;
    if (length < 1)
        return {};
    auto const begin = std::max(at, 0);
    return {static_cast<int>(length), begin, begin - at};
}

inline std::size_t sgl_index(sglDib const & dib, int x, int y)
{
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(dib.width()) + static_cast<std::size_t>(x);
}

/// Calls row(destination pixels, count of them, number of the row) for each row of the clipped rectangle.
template <class Row>
void sgl_each_row(sglDib & to, int x, int y, int w, int h, Row row)
{
    auto const across = sgl_clip(w, to.width(), x);
    auto const up = sgl_clip(h, to.height(), y);
    if (across.length == 0 || up.length == 0)
        return;
    for (int i = 0; i < up.length; ++i)
        row(to.pixels() + sgl_index(to, across.to, up.to + i), static_cast<std::size_t>(across.length), i);
}

/// Calls row(destination pixels, source pixels, count of them) for each row of `from` placed at x, y.
template <class Row>
void sgl_each_row(sglDib & to, sglDib const * from, int x, int y, Row row)
{
    if (!from)
        return;
    if (from == &to && (x != 0 || y != 0)) {
        // Rows that have been written already would be read again.
        sglDib before;
        before.copy_from(&to);
        if (before.pixels())
            sgl_each_row(to, &before, x, y, row);
        return;
    }
    auto const across = sgl_clip(from->width(), to.width(), x);
    auto const up = sgl_clip(from->height(), to.height(), y);
    if (across.length == 0 || up.length == 0)
        return;
    for (int i = 0; i < up.length; ++i)
        row(to.pixels() + sgl_index(to, across.to, up.to + i),
            from->pixels() + sgl_index(*from, across.from, up.from + i),
            static_cast<std::size_t>(across.length));
}
