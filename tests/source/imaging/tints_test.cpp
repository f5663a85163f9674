// What changes the colours of a whole picture.

#include "kitDib.h"

#include <algorithm>

namespace {

constexpr sglCOLORREF key(0x00A03050);
constexpr sglCOLORREF inactive_key(0x01A03050);

int luminance(sglCOLORREF pixel)
{
    return (77 * pixel.red + 151 * pixel.green + 28 * pixel.blue) >> 8;
}

kitPixels each(sglDib const & dib, std::function<sglCOLORREF(sglCOLORREF)> const & formula)
{
    auto pixels = kit_pixels(dib);
    for (auto & pixel : pixels)
        pixel = formula(pixel);
    return pixels;
}

int tinted(int c1, int c2, int c3, int level, int mid)
{
    if (level < mid)
        return c1 + level * (c2 - c1) / mid;
    if (((256 - mid) & 255) != 0)
        return c2 + (level - mid) * (c3 - c2) / ((256 - mid) & 255);
    return 192;
}

/// Every luminance there is, and pixels that match the key.
kitDib & shades(kitDib & dib)
{
    kitNoise noise;
    dib.create(256, 9);
    noise.fill(dib, key);
    for (int x = 0; x < 256; ++x)
        dib.at(x, 0) = sglCOLORREF::from_channels(x, x, x, x);
    return dib;
}

} // namespace

TEST(DarkenByAnAmount, TakesItFromEachChannelDownTo0)
{
    kitNoise noise;
    for (auto const with : {key, inactive_key, sglCOLORREF(0)})
        for (int const amount : {0, 1, 100, 255, 1000}) {
            kitDib dib(37, 5);
            noise.fill(dib, key);
            dib.at(0, 0) = sglCOLORREF(0);
            auto const expected = each(dib, [=](sglCOLORREF d) {
                return kit_matches(d, with)
                           ? d
                           : kit_each_channel(d, d, [=](int c, int) { return std::max(0, c - amount); });
            });
            dib.darken(amount, with);
            EXPECT_EQ(kit_pixels(dib), expected) << amount;
        }
}

TEST(DarkenByAnAmount, OfLessThanNothingChangesNothing)
{
    kitDib dib(3, 1);
    dib.fill(sglCOLORREF(0x40506070));
    dib.darken(-5, inactive_key);
    EXPECT_EQ(kit_pixels(dib), kitPixels(3, sglCOLORREF(0x40506070)));
}

TEST(MultiplyColor, WithoutAKeyMultipliesEveryPixel)
{
    kitNoise noise;
    for (auto const with : {inactive_key, sglCOLORREF(0)})
        for (auto const & [r, g, b] : {std::tuple(0, 128, 255), {256, 300, 1}}) {
            kitDib dib(37, 5);
            noise.fill(dib, key);
            dib.at(3, 0) = sglCOLORREF(0);
            auto const expected = each(dib, [&](sglCOLORREF d) {
                return sglCOLORREF::from_channels((d.red * r) >> 8, (d.green * g) >> 8, (d.blue * b) >> 8,
                                                  d.alpha);
            });
            dib.multiply_color(r, g, b, with);
            EXPECT_EQ(kit_pixels(dib), expected);
        }
}

TEST(MultiplyColor, StopsAtTheFirstPixelThatMatches)
{
    for (int const first : {0, 1, 15, 16, 17, 50, 99}) {
        kitDib dib(10, 10);
        dib.fill(sglCOLORREF(0x33808080));
        dib.pixels()[first] = sglCOLORREF(0x7FA03050); // of any alpha
        auto expected = kit_pixels(dib);
        for (int i = 0; i < first; ++i)
            expected[static_cast<std::size_t>(i)] = sglCOLORREF(0x33404040);
        dib.multiply_color(128, 128, 128, key);
        EXPECT_EQ(kit_pixels(dib), expected) << first;
    }
}

TEST(MultiplyColor, WithAKeyThatNothingMatchesReachesTheEnd)
{
    kitDib dib(9, 3);
    dib.fill(sglCOLORREF(0x33808080));
    dib.multiply_color(128, 128, 128, key);
    EXPECT_EQ(kit_pixels(dib), kitPixels(27, sglCOLORREF(0x33404040)));
}

TEST(Greyscale, GivesEachChannelTheLuminance)
{
    kitNoise noise;
    kitDib dib(37, 5);
    noise.fill(dib);
    dib.at(0, 0) = sglCOLORREF(0x55FFFFFF);
    auto const expected = each(dib, [](sglCOLORREF d) {
        return sglCOLORREF::from_channels(luminance(d), luminance(d), luminance(d), d.alpha);
    });
    dib.greyscale();
    EXPECT_EQ(kit_pixels(dib), expected);
    EXPECT_EQ(dib.at(0, 0), sglCOLORREF(0x55FFFFFF));
}

TEST(Blur, IsTheTruncatedMeanOfNinePixelsWithinTheRing)
{
    kitNoise noise;
    for (auto const & [width, height] : {std::pair(3, 3), {19, 23}, {40, 3}, {3, 40}}) {
        kitDib dib(width, height);
        noise.fill(dib);
        kitDib before;
        before.copy_from(&dib);
        auto expected = kit_pixels(dib);
        for (int y = 1; y < height - 1; ++y)
            for (int x = 1; x < width - 1; ++x) {
                int red = 0;
                int green = 0;
                int blue = 0;
                for (int i = 0; i < 9; ++i) {
                    auto const pixel = before.at(x - 1 + i % 3, y - 1 + i / 3);
                    red += pixel.red;
                    green += pixel.green;
                    blue += pixel.blue;
                }
                expected[static_cast<std::size_t>(y * width + x)] =
                    sglCOLORREF::from_channels(red / 9, green / 9, blue / 9, before.at(x, y).alpha);
            }
        dib.blur_3x3();
        EXPECT_EQ(kit_pixels(dib), expected) << width << " by " << height;
    }
}

TEST(Blur, OfLessThanThreePixelsDoesNothing)
{
    kitNoise noise;
    for (auto const & [width, height] : {std::pair(2, 2), {2, 9}, {9, 2}, {0, 0}}) {
        kitDib dib(width, height);
        noise.fill(dib);
        auto const before = kit_pixels(dib);
        dib.blur_3x3();
        EXPECT_EQ(kit_pixels(dib), before);
    }
}

TEST(ColorTint, MapsTheLuminanceOnTheGradient)
{
    sglCOLORREF const c1(0x00102030);
    sglCOLORREF const c2(0x00F08010);
    sglCOLORREF const c3(0x0000FFC0);
    for (int const given : {0, 1, 2, 100, 128, 254, 255}) {
        int const mid = given ? given : luminance(c2);
        auto const formula = [=](sglCOLORREF d) {
            int const level = luminance(d);
            return sglCOLORREF::from_channels(tinted(c1.red, c2.red, c3.red, level, mid),
                                              tinted(c1.green, c2.green, c3.green, level, mid),
                                              tinted(c1.blue, c2.blue, c3.blue, level, mid), d.alpha);
        };
        kitDib dib;
        auto expected = each(shades(dib), formula);
        dib.color_tint_3(c1, c2, c3, static_cast<unsigned char>(given));
        EXPECT_EQ(kit_pixels(dib), expected) << given;

        expected = each(shades(dib), [&](sglCOLORREF d) { return kit_matches(d, key) ? d : formula(d); });
        dib.color_tint_3(c1, c2, c3, key, static_cast<unsigned char>(given));
        EXPECT_EQ(kit_pixels(dib), expected) << given << " with a key";

        expected = each(shades(dib), formula);
        dib.color_tint_3(c1, c2, c3, inactive_key, static_cast<unsigned char>(given));
        EXPECT_EQ(kit_pixels(dib), expected) << given << " with an inactive key";
    }
}

TEST(ColorTint, TruncatesTowardZeroOnTheWayDown)
{
    // 200 + 1 * (100 - 200) / 128 is 200 and not 199
    kitDib dib(1, 1);
    dib.fill(sglCOLORREF::from_channels(1, 1, 1));
    sglCOLORREF const light = sglCOLORREF::from_channels(200, 200, 200);
    sglCOLORREF const dark = sglCOLORREF::from_channels(100, 100, 100);
    dib.color_tint_3(light, dark, dark, 128);
    EXPECT_EQ(dib.at(0, 0), light);
}

TEST(ColorTint, WithoutAMiddleIsAnEvenGrey)
{
    kitDib dib;
    auto const expected =
        each(shades(dib), [](sglCOLORREF d) { return sglCOLORREF::from_channels(192, 192, 192, d.alpha); });
    dib.color_tint_3(sglCOLORREF(0x00FFFFFF), sglCOLORREF(0), sglCOLORREF(0x000000FF), 0);
    EXPECT_EQ(kit_pixels(dib), expected);
}

TEST(ColorTint, WithTheLastTwoColoursEqualIsFlatFromTheMiddleUpward)
{
    sglCOLORREF const colour(0x00305070);
    kitDib dib;
    shades(dib);
    kitDib before;
    before.copy_from(&dib);
    dib.color_tint_3(sglCOLORREF(0), colour, colour, 90);
    for (std::size_t i = 0; i < dib.count(); ++i) {
        auto pixel = dib.pixels()[i];
        pixel.alpha = 0;
        if (luminance(before.pixels()[i]) >= 90) {
            EXPECT_EQ(pixel, colour) << i;
        }
    }
    EXPECT_NE(dib.at(10, 0), dib.at(80, 0));
}
