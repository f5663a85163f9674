#pragma once

#include "sglDib.h"

#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <random>
#include <vector>

inline void PrintTo(sglCOLORREF pixel, std::ostream * out)
{
    *out << "(red " << int(pixel.red) << " green " << int(pixel.green) << " blue " << int(pixel.blue)
         << " alpha " << int(pixel.alpha) << ")";
}

/// What the protected operations are for subclasses.
class kitDib : public sglDib {
public:
    kitDib() = default;
    kitDib(int width, int height) { create(width, height); }

    using sglDib::copy_rect_from;
    using sglDib::create_from_image;
    using sglDib::create_image;
    using sglDib::read_png;

    sglCOLORREF & at(int x, int y)
    {
        EXPECT_TRUE(x >= 0 && x < width() && y >= 0 && y < height()) << x << ", " << y;
        return pixels()[y * width() + x];
    }
};

using kitPixels = std::vector<sglCOLORREF>;

inline kitPixels kit_pixels(sglDib const & dib)
{
    return {dib.pixels(), dib.pixels() + dib.count()};
}

/// The same noise in every run; values at both ends, where formulas go wrong, come more often.
class kitNoise {
public:
    unsigned char byte()
    {
        unsigned int const value = m_engine();
        return value % 8 == 0 ? 0 : value % 8 == 1 ? 255 : static_cast<unsigned char>(value >> 8);
    }
    sglCOLORREF colour(int alpha) { return sglCOLORREF::from_channels(byte(), byte(), byte(), alpha); }
    void fill(sglDib & dib)
    {
        for (std::size_t i = 0; i < dib.count(); ++i)
            dib.pixels()[i] = colour(byte());
    }
    /// With many pixels that match `key`, of any alpha.
    void fill(sglDib & dib, sglCOLORREF key)
    {
        fill(dib);
        for (std::size_t i = 0; i < dib.count(); ++i)
            if (byte() < 100) {
                auto const alpha = dib.pixels()[i].alpha;
                dib.pixels()[i] = key;
                dib.pixels()[i].alpha = alpha;
            }
    }

private:
    std::mt19937 m_engine{20240229};
};

/// Sizes of the source and of this buffer and a position, with one of each case of clipping: inside, over
/// each edge, over two opposite ones, beyond, and far beyond what fits into an int.
struct kitPlacing {
    int from_width, from_height, to_width, to_height, x, y;
};

inline std::vector<kitPlacing> kit_placings()
{
    constexpr int far = std::numeric_limits<int>::max();
    std::vector<kitPlacing> all = {
        {1, 1, 1, 1, 0, 0},          {7, 5, 7, 5, 0, 0},         {7, 5, 19, 23, 3, 4},
        {7, 5, 19, 23, 12, 18},      {9, 9, 9, 9, -3, -3},       {7, 5, 19, 23, 12, -1},
        {7, 5, 19, 23, -6, 4},       {7, 5, 19, 23, -7, 4},      {7, 5, 19, 23, 13, 4},
        {7, 5, 19, 23, 18, 22},      {7, 5, 19, 23, 19, 4},      {7, 5, 19, 23, 4, 23},
        {7, 5, 19, 23, 3, -5},       {61, 43, 19, 23, -20, -10}, {61, 43, 19, 23, 0, 0},
        {61, 43, 19, 23, 5, -30},    {61, 1, 61, 17, 0, 16},     {33, 17, 67, 31, 1, 1},
        {7, 5, 19, 23, far, 0},      {7, 5, 19, 23, 0, far},     {7, 5, 19, 23, -far - 1, 0},
        {7, 5, 19, 23, 0, -far - 1}, {0, 0, 19, 23, 0, 0},       {7, 5, 0, 0, 0, 0},
    };
    return all;
}

/// Does in the plainest way what a rectangle operation is to do: for each pixel of the source that lies on
/// one of this buffer, formula(pixel here, pixel of the source).
inline kitPixels kit_placed(sglDib const & to, sglDib const & from, int x, int y,
                            std::function<sglCOLORREF(sglCOLORREF, sglCOLORREF)> const & formula)
{
    auto result = kit_pixels(to);
    for (int row = 0; row < from.height(); ++row)
        for (int column = 0; column < from.width(); ++column) {
            long long const across = static_cast<long long>(x) + column;
            long long const up = static_cast<long long>(y) + row;
            if (across < 0 || across >= to.width() || up < 0 || up >= to.height())
                continue;
            auto & pixel = result[static_cast<std::size_t>(up * to.width() + across)];
            pixel = formula(pixel, from.pixels()[row * from.width() + column]);
        }
    return result;
}

/// The same channel by channel, alpha as it was.
inline sglCOLORREF kit_each_channel(sglCOLORREF d, sglCOLORREF s,
                                    std::function<int(int, int)> const & formula)
{
    return sglCOLORREF::from_channels(formula(d.red, s.red), formula(d.green, s.green),
                                      formula(d.blue, s.blue), d.alpha);
}

inline bool kit_matches(sglCOLORREF pixel, sglCOLORREF key)
{
    return key.alpha == 0 && pixel.red == key.red && pixel.green == key.green && pixel.blue == key.blue;
}
