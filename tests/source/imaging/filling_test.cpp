#include "kitDib.h"

#include <limits>

namespace {

/// The pixels of the buffer on which a rectangle of that place and size lies.
kitPixels filled(sglDib const & dib, kitPlacing const & place,
                 std::function<sglCOLORREF(sglCOLORREF d)> const & formula)
{
    kitDib const rectangle(place.from_width, place.from_height);
    return kit_placed(dib, rectangle, place.x, place.y,
                      [&](sglCOLORREF d, sglCOLORREF) { return formula(d); });
}

/// Fills rectangles that have no area, one of a size below 0 among them, and looks whether anything changed.
void expect_nothing_filled(std::function<void(sglDib &, int w, int h)> const & fill)
{
    constexpr int far = std::numeric_limits<int>::min();
    for (auto const & [width, height] :
         {std::pair(-1, 2), {2, -1}, {-5, -5}, {0, 2}, {2, 0}, {far, 2}, {2, far}, {far, far}}) {
        kitNoise noise;
        kitDib dib(3, 3);
        noise.fill(dib);
        auto const before = kit_pixels(dib);
        fill(dib, width, height);
        EXPECT_EQ(kit_pixels(dib), before) << width << " by " << height;
    }
}

std::function<sglCOLORREF(sglCOLORREF)> glass(int r, int g, int b, int a)
{
    return [=](sglCOLORREF d) {
        auto const channel = [a](int here, int c) { return (((c - here) * a) + here * 256) >> 8; };
        return sglCOLORREF::from_channels(channel(d.red, r), channel(d.green, g), channel(d.blue, b),
                                          d.alpha);
    };
}

} // namespace

TEST(Fill, WritesEveryPixel)
{
    kitDib dib(7, 5);
    dib.fill(sglCOLORREF(0x12345678));
    EXPECT_EQ(kit_pixels(dib), kitPixels(35, sglCOLORREF(0x12345678)));
    sglDib empty;
    empty.fill(sglCOLORREF(1));
    EXPECT_EQ(empty.pixels(), nullptr);
}

TEST(Fill, OfARectangleIsClipped)
{
    kitNoise noise;
    sglCOLORREF const colour(0x89ABCDEF);
    for (auto const & place : kit_placings()) {
        kitDib dib(place.to_width, place.to_height);
        noise.fill(dib);
        auto const expected = filled(dib, place, [=](sglCOLORREF) { return colour; });
        dib.fill_rect(place.x, place.y, place.from_width, place.from_height, colour);
        EXPECT_EQ(kit_pixels(dib), expected) << place.x << ", " << place.y;
    }
    expect_nothing_filled([&](sglDib & dib, int w, int h) { dib.fill_rect(1, 1, w, h, colour); });
}

TEST(FillGlass, BlendsEveryPixelAndLeavesItsAlpha)
{
    kitNoise noise;
    for (int const a : {0, 1, 100, 255, 256})
        for (auto const & [r, g, b] : {std::tuple(0, 128, 255), {17, 17, 17}, {256, 300, -5}}) {
            kitDib dib(31, 7);
            noise.fill(dib);
            kitPixels expected;
            for (auto const pixel : kit_pixels(dib)) {
                auto const channel = [a](int d, int c) { return d + (((c - d) * a) >> 8); };
                expected.push_back(sglCOLORREF::from_channels(channel(pixel.red, r), channel(pixel.green, g),
                                                              channel(pixel.blue, b), pixel.alpha));
            }
            dib.fill_glass(r, g, b, a);
            EXPECT_EQ(kit_pixels(dib), expected);
        }
}

TEST(FillGlass, OfARectangleIsClipped)
{
    kitNoise noise;
    for (auto const & place : kit_placings()) {
        kitDib dib(place.to_width, place.to_height);
        noise.fill(dib);
        auto const expected = filled(dib, place, glass(200, 10, 90, 120));
        dib.fill_glass_rect(place.x, place.y, place.from_width, place.from_height, 200, 10, 90, 120);
        EXPECT_EQ(kit_pixels(dib), expected) << place.x << ", " << place.y;
    }
    expect_nothing_filled(
        [](sglDib & dib, int w, int h) { dib.fill_glass_rect(1, 1, w, h, 200, 10, 90, 120); });
}

TEST(FillStippledGlass, IsAChequerOfASquareBuffer)
{
    for (int const size : {1, 2, 5, 8}) {
        kitNoise noise;
        kitDib dib(size, size);
        noise.fill(dib);
        auto expected = kit_pixels(dib);
        for (int i = 0; i < size; ++i)
            for (int j = 0; j < size; ++j)
                if ((i + j) % 2 == 0)
                    expected[static_cast<std::size_t>(i * size + j)] = sglCOLORREF::from_channels(1, 2, 3, 0);
        dib.fill_stippled_glass(1, 2, 3);
        EXPECT_EQ(kit_pixels(dib), expected) << size;
    }
}

TEST(FillStippledGlass, CountsWidthAndHeightTheOtherWayAbout)
{
    // i up to the width of 2, j up to the height of 5: the indices 0, 2, 4 and 3, 5, of the ten that there
    // are.
    kitDib high(2, 5);
    high.fill(sglCOLORREF(0x99999999));
    high.fill_stippled_glass(1, 2, 3);
    for (int index = 0; index < 10; ++index) {
        bool const filled = index == 0 || index == 2 || index == 4 || index == 3 || index == 5;
        EXPECT_EQ(high.pixels()[index].value(), filled ? 0x00010203U : 0x99999999U) << index;
    }
}

TEST(FillStippledGlass, StaysInsideOfABufferWiderThanHigh)
{
    // i up to 5, j up to 2, index 5 * i + j: 0 and 6; 10 and what follows lies behind the end.
    kitDib wide(5, 2);
    wide.fill(sglCOLORREF(0x99999999));
    wide.fill_stippled_glass(1, 2, 3);
    for (int index = 0; index < 10; ++index)
        EXPECT_EQ(wide.pixels()[index].value(), index == 0 || index == 6 ? 0x00010203U : 0x99999999U)
            << index;
}

TEST(FillStippledGlass, OfARectangleCountsFromItsStart)
{
    kitNoise noise;
    for (auto const & place : kit_placings()) {
        kitDib dib(place.to_width, place.to_height);
        noise.fill(dib);
        auto expected = kit_pixels(dib);
        long long const left = std::max(place.x, 0);
        long long const bottom = std::max(place.y, 0);
        auto const covered =
            filled(kitDib(dib.width(), dib.height()), place, [](sglCOLORREF) { return sglCOLORREF(1); });
        for (int y = 0; y < dib.height(); ++y)
            for (int x = 0; x < dib.width(); ++x) {
                auto const index = static_cast<std::size_t>(y * dib.width() + x);
                if (covered[index] == sglCOLORREF(1) && (x - left + y - bottom) % 2 == 0)
                    expected[index] = sglCOLORREF::from_channels(9, 8, 7, 0);
            }
        dib.fill_stippled_glass_rect(place.x, place.y, place.from_width, place.from_height, 9, 8, 7);
        EXPECT_EQ(kit_pixels(dib), expected) << place.x << ", " << place.y;
    }
    expect_nothing_filled(
        [](sglDib & dib, int w, int h) { dib.fill_stippled_glass_rect(1, 1, w, h, 9, 8, 7); });
}
