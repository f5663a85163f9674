#include "kitDib.h"

#include <limits>

namespace {

constexpr sglCOLORREF key(0x00A03050);
constexpr sglCOLORREF inactive_key(0x01A03050);

/// Runs `operation` on noise at each placing, against `formula`.
void compare(char const * name, std::function<void(kitDib &, kitDib &, int x, int y)> const & operation,
             std::function<sglCOLORREF(sglCOLORREF d, sglCOLORREF s)> const & formula)
{
    kitNoise noise;
    for (auto const & place : kit_placings()) {
        kitDib to(place.to_width, place.to_height);
        kitDib from(place.from_width, place.from_height);
        noise.fill(to);
        noise.fill(from, key);
        auto const expected = kit_placed(to, from, place.x, place.y, formula);
        auto const source = kit_pixels(from);
        operation(to, from, place.x, place.y);
        EXPECT_EQ(kit_pixels(to), expected) << name << " at " << place.x << ", " << place.y;
        EXPECT_EQ(kit_pixels(from), source) << name << " changes the other";
    }
}

sglCOLORREF blended(sglCOLORREF d, sglCOLORREF s)
{
    auto result =
        kit_each_channel(d, s, [&](int here, int there) { return here + (((there - here) * s.alpha) >> 8); });
    result.alpha = 0;
    return result;
}

} // namespace

TEST(Copy, OfABufferTakesItsSizeAndAllItsBytes)
{
    kitNoise noise;
    kitDib from(7, 5);
    noise.fill(from);
    kitDib to(3, 9);
    to.copy_from(&from);
    EXPECT_EQ(to.width(), 7);
    EXPECT_EQ(to.height(), 5);
    EXPECT_EQ(kit_pixels(to), kit_pixels(from));
    auto * const pixels = to.pixels();
    noise.fill(from);
    to.copy_from(&from);
    EXPECT_EQ(to.pixels(), pixels) << "a buffer of the same size is used again";
    EXPECT_EQ(kit_pixels(to), kit_pixels(from));
    to.copy_from(&to);
    to.copy_from(nullptr);
    EXPECT_EQ(kit_pixels(to), kit_pixels(from));
    sglDib empty;
    to.copy_from(&empty);
    EXPECT_EQ(to.width(), 0);
    EXPECT_EQ(to.pixels(), nullptr);
}

TEST(Copy, WithAColourReplacesWhatEqualsOnePixelInAllBytes)
{
    kitDib from(3, 2);
    from.fill(sglCOLORREF(0x00010203));
    from.at(1, 0) = from.at(0, 1) = from.at(2, 1) = sglCOLORREF(0x09040506);
    from.at(1, 1) = sglCOLORREF(0x08040506);
    sglCOLORREF const colour(0x77777777);
    kitDib to;
    to.copy_from(&from, colour, 2, 1);
    auto expected = kit_pixels(from);
    for (auto & pixel : expected)
        if (pixel == sglCOLORREF(0x09040506))
            pixel = colour;
    EXPECT_EQ(to.width(), 3);
    EXPECT_EQ(kit_pixels(to), expected);

    // the same, onto itself
    from.copy_from(&from, colour, 2, 1);
    EXPECT_EQ(kit_pixels(from), expected);
}

TEST(Copy, WithAColourTakesAPixelThatIsNotThereForNone)
{
    kitNoise noise;
    kitDib from(3, 2);
    noise.fill(from);
    for (auto const & [x, y] : {std::pair(-1, 0), {0, 2}, {3, 1}, {0, -1}, {1 << 30, 1 << 30}}) {
        kitDib to;
        to.copy_from(&from, sglCOLORREF(0), x, y);
        EXPECT_EQ(kit_pixels(to), kit_pixels(from));
    }
    // An index is all that counts: the column behind a row is the first of the next.
    kitDib to;
    to.copy_from(&from, sglCOLORREF(0x11111111), 3, 0);
    EXPECT_EQ(to.at(0, 1), sglCOLORREF(0x11111111));
    to.copy_from(nullptr, sglCOLORREF(0), 0, 0);
    EXPECT_EQ(to.width(), 3);
}

TEST(Copy, OfARectangleTakesAllFourBytes)
{
    compare(
        "copy_rect_from", [](kitDib & to, kitDib & from, int x, int y) { to.copy_rect_from(&from, x, y); },
        [](sglCOLORREF, sglCOLORREF s) { return s; });
}

TEST(Copy, WithAKeyLeavesOutWhatMatches)
{
    compare(
        "an active key",
        [](kitDib & to, kitDib & from, int x, int y) { to.copy_rect_from(&from, x, y, key); },
        [](sglCOLORREF d, sglCOLORREF s) { return kit_matches(s, key) ? d : s; });
    compare(
        "an inactive key",
        [](kitDib & to, kitDib & from, int x, int y) { to.copy_rect_from(&from, x, y, inactive_key); },
        [](sglCOLORREF, sglCOLORREF s) { return s; });
}

TEST(Copy, WithAlphaBlendsAndClearsTheAlpha)
{
    compare(
        "copy_rect_from_alpha",
        [](kitDib & to, kitDib & from, int x, int y) { to.copy_rect_from_alpha(&from, x, y); }, blended);
}

TEST(Copy, WithAlphaFollowsItsFormulaForAllAlphas)
{
    kitNoise noise;
    kitDib to(256, 64);
    kitDib from(256, 64);
    noise.fill(to);
    noise.fill(from);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 256; ++x)
            from.at(x, y).alpha = static_cast<unsigned char>(x);
    auto const expected = kit_placed(to, from, 0, 0, blended);
    to.copy_rect_from_alpha(&from, 0, 0);
    EXPECT_EQ(kit_pixels(to), expected);
}

TEST(Copy, WithKeyAndAlphaDoesBoth)
{
    compare(
        "key and alpha",
        [](kitDib & to, kitDib & from, int x, int y) { to.copy_rect_from(&from, x, y, key, 1, 1); },
        [](sglCOLORREF d, sglCOLORREF s) { return kit_matches(s, key) ? d : blended(d, s); });
    compare(
        "neither",
        [](kitDib & to, kitDib & from, int x, int y) { to.copy_rect_from(&from, x, y, key, 0, 0); },
        [](sglCOLORREF, sglCOLORREF s) { return s; });
}

TEST(Copy, OfAMaskWritesOneColourOrTheOther)
{
    sglCOLORREF const a(0x11223344);
    sglCOLORREF const b(0xAABBCCDD);
    compare(
        "an active key",
        [=](kitDib & to, kitDib & from, int x, int y) { to.copy_mask_rect_from(&from, x, y, key, a, b); },
        [=](sglCOLORREF, sglCOLORREF s) { return kit_matches(s, key) ? b : a; });
    compare(
        "an inactive key",
        [=](kitDib & to, kitDib & from, int x, int y) {
            to.copy_mask_rect_from(&from, x, y, inactive_key, a, b);
        },
        [=](sglCOLORREF, sglCOLORREF) { return a; });
}

TEST(Copy, WithinABufferTakesItAsItWasBefore)
{
    kitNoise noise;
    for (auto const & [x, y] : {std::pair(0, 0), {1, 0}, {0, 1}, {-1, -1}, {2, 3}}) {
        kitDib dib(23, 9);
        noise.fill(dib);
        auto const expected = kit_placed(dib, dib, x, y, [](sglCOLORREF, sglCOLORREF s) { return s; });
        dib.copy_rect_from(&dib, x, y);
        EXPECT_EQ(kit_pixels(dib), expected) << x << ", " << y;
    }
}

TEST(Copy, IntoAnotherGivesItThePartThatLiesHere)
{
    kitNoise noise;
    for (auto const & place : kit_placings()) {
        kitDib out(place.from_width, place.from_height);
        kitDib dib(place.to_width, place.to_height);
        noise.fill(out);
        noise.fill(dib);
        auto const untouched = kit_pixels(out);
        std::vector<sglCOLORREF> part;
        int width = 0;
        int height = 0;
        for (int y = 0; y < dib.height(); ++y) {
            width = 0;
            for (int x = 0; x < dib.width(); ++x) {
                long long const column = static_cast<long long>(x) - place.x;
                long long const row = static_cast<long long>(y) - place.y;
                if (column < 0 || column >= out.width() || row < 0 || row >= out.height())
                    continue;
                part.push_back(dib.at(x, y));
                ++width;
            }
            height += width > 0;
        }
        int const columns = part.empty() ? 0 : static_cast<int>(part.size()) / height;
        static_cast<sglDib const &>(dib).copy_rect_to(&out, place.x, place.y);
        if (part.empty()) {
            EXPECT_EQ(kit_pixels(out), untouched);
            continue;
        }
        EXPECT_EQ(out.width(), columns);
        EXPECT_EQ(out.height(), height);
        EXPECT_EQ(kit_pixels(out), part) << place.x << ", " << place.y;
    }
}

TEST(Copy, IntoItselfGivesThePart)
{
    kitNoise noise;
    kitDib dib(5, 4);
    noise.fill(dib);
    kitPixels part;
    for (int y = 1; y < 4; ++y)
        for (int x = 2; x < 5; ++x)
            part.push_back(dib.at(x, y));
    dib.copy_rect_to(&dib, 2, 1);
    EXPECT_EQ(dib.width(), 3);
    EXPECT_EQ(dib.height(), 3);
    EXPECT_EQ(kit_pixels(dib), part);
}

TEST(Copy, OfAPartGoesToTheSameIndices)
{
    kitNoise noise;
    for (auto const & place : kit_placings()) {
        kitDib dib(place.to_width, place.to_height);
        kitDib rectangle(place.from_width, place.from_height);
        kitDib out(place.to_width, place.to_height);
        noise.fill(dib);
        noise.fill(out);
        // Where a rectangle of that size would lie, the pixel of this buffer goes to the other.
        auto expected = kit_pixels(out);
        auto const marked = kit_placed(kitDib(dib.width(), dib.height()), rectangle, place.x, place.y,
                                       [](sglCOLORREF, sglCOLORREF) { return sglCOLORREF(1); });
        for (std::size_t i = 0; i < expected.size(); ++i)
            if (marked[i] == sglCOLORREF(1))
                expected[i] = dib.pixels()[i];
        dib.copy_rect_to(&out, place.x, place.y, place.from_width, place.from_height);
        EXPECT_EQ(kit_pixels(out), expected) << place.x << ", " << place.y;
    }
}

TEST(Copy, OfAPartWithoutAnAreaDoesNothing)
{
    kitNoise noise;
    kitDib dib(6, 6);
    noise.fill(dib);
    constexpr int far = std::numeric_limits<int>::min();
    for (auto const & [width, height] :
         {std::pair(-1, 2), {2, -1}, {-5, -5}, {0, 2}, {2, 0}, {far, 2}, {2, far}, {far, far}}) {
        kitDib out(6, 6);
        dib.copy_rect_to(&out, 1, 1, width, height);
        EXPECT_EQ(kit_pixels(out), kitPixels(36, sglCOLORREF(0))) << width << " by " << height;
    }
}

TEST(Copy, OfAPartIntoASmallerBufferStaysInside)
{
    kitNoise noise;
    kitDib dib(6, 6);
    noise.fill(dib);
    kitDib out(6, 3);
    dib.copy_rect_to(&out, 1, 1, 4, 4);
    EXPECT_EQ(out.at(1, 1), dib.at(1, 1));
    EXPECT_EQ(out.at(4, 2), dib.at(4, 2));
    EXPECT_EQ(out.at(5, 2), sglCOLORREF(0));
    // Of another width, the index counts.
    kitDib narrow(5, 4);
    dib.copy_rect_to(&narrow, 2, 2, 9, 9);
    EXPECT_EQ(narrow.pixels()[13], sglCOLORREF(0));
    EXPECT_EQ(narrow.pixels()[14], dib.pixels()[14]);
    EXPECT_EQ(narrow.pixels()[17], dib.pixels()[17]);
    EXPECT_EQ(narrow.pixels()[18], sglCOLORREF(0));
    sglDib empty;
    dib.copy_rect_to(&empty, 0, 0, 6, 6);
    EXPECT_EQ(empty.pixels(), nullptr);
    dib.copy_rect_to(nullptr, 0, 0, 6, 6);
    dib.copy_rect_to(nullptr, 0, 0);
}

TEST(Tile, RepeatsTheOtherUpwardAndToTheRight)
{
    kitNoise noise;
    for (auto const & [width, height, columns, rows] : {std::tuple(19, 23, 7, 5),
                                                        {19, 23, 1, 1},
                                                        {19, 23, 19, 23},
                                                        {19, 23, 40, 40},
                                                        {19, 23, 40, 1},
                                                        {1, 1, 3, 3},
                                                        {64, 3, 5, 2}}) {
        kitDib to(width, height);
        kitDib from(columns, rows);
        noise.fill(to);
        noise.fill(from);
        kitPixels expected;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                expected.push_back(from.at(x % columns, y % rows));
        to.tile(&from);
        EXPECT_EQ(kit_pixels(to), expected) << columns << " by " << rows;
    }
}

TEST(Tile, OfNothingDoesNothing)
{
    kitNoise noise;
    kitDib dib(3, 3);
    noise.fill(dib);
    auto const before = kit_pixels(dib);
    sglDib empty;
    kitDib flat(0, 4);
    dib.tile(&empty);
    dib.tile(&flat);
    dib.tile(nullptr);
    dib.tile(&dib);
    EXPECT_EQ(kit_pixels(dib), before);
    empty.tile(&dib);
    EXPECT_EQ(empty.pixels(), nullptr);
}
