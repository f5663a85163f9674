// The operations that put one buffer over another, against their formulas.

#include "kitDib.h"

#include <algorithm>
#include <cstdlib>

namespace {

struct Operation {
    char const * name;
    std::function<void(sglDib &, sglDib *)> whole;
    std::function<void(sglDib &, sglDib *, int x, int y)> rect;
    std::function<int(int d, int s)> formula;
};

Operation blending(int a)
{
    return {"blend", [a](sglDib & to, sglDib * from) { to.blend(from, a); },
            [a](sglDib & to, sglDib * from, int x, int y) { to.blend_rect(from, x, y, a); },
            [a](int d, int s) { return d + (((s - d) * a) >> 8); }};
}

std::vector<Operation> operations()
{
    std::vector<Operation> all = {
        {"multiply", [](sglDib & to, sglDib * from) { to.multiply(from); },
         [](sglDib & to, sglDib * from, int x, int y) { to.multiply_rect(from, x, y); },
         [](int d, int s) { return (d * s) >> 8; }},
        {"screen", [](sglDib & to, sglDib * from) { to.screen(from); },
         [](sglDib & to, sglDib * from, int x, int y) { to.screen_rect(from, x, y); },
         [](int d, int s) { return 255 - (((255 - s) * (255 - d)) >> 8); }},
        {"darken", [](sglDib & to, sglDib * from) { to.darken(from); },
         [](sglDib & to, sglDib * from, int x, int y) { to.darken_rect(from, x, y); },
         [](int d, int s) { return std::min(s, d); }},
        {"lighten", [](sglDib & to, sglDib * from) { to.lighten(from); },
         [](sglDib & to, sglDib * from, int x, int y) { to.lighten_rect(from, x, y); },
         [](int d, int s) { return std::max(s, d); }},
        {"difference", [](sglDib & to, sglDib * from) { to.difference(from); },
         [](sglDib & to, sglDib * from, int x, int y) { to.difference_rect(from, x, y); },
         [](int d, int s) { return std::abs(s - d); }},
    };
    for (int const a : {0, 1, 77, 128, 255, 256, 300, -1, -200})
        all.push_back(blending(a));
    return all;
}

std::function<sglCOLORREF(sglCOLORREF, sglCOLORREF)> on_channels(std::function<int(int, int)> const & formula)
{
    return [formula](sglCOLORREF d, sglCOLORREF s) { return kit_each_channel(d, s, formula); };
}

/// One pixel of one value in every byte but the alpha.
int of_one_byte(int d, int s, std::function<void(sglDib &, sglDib *)> const & operation)
{
    kitDib to(1, 1);
    kitDib from(1, 1);
    to.fill(sglCOLORREF::from_channels(d, d, d, 9));
    from.fill(sglCOLORREF::from_channels(s, s, s, 77));
    operation(to, &from);
    EXPECT_EQ(to.at(0, 0).red, to.at(0, 0).blue);
    EXPECT_EQ(to.at(0, 0).red, to.at(0, 0).green);
    EXPECT_EQ(to.at(0, 0).alpha, 9);
    return to.at(0, 0).red;
}

} // namespace

TEST(Compositing, OfWholeBuffersFollowsItsFormulaInEveryByte)
{
    kitNoise noise;
    for (auto const & operation : operations())
        for (auto const & [width, height] : {std::pair(1, 1), {15, 1}, {16, 1}, {17, 3}, {1, 33}, {61, 43}}) {
            kitDib to(width, height);
            kitDib from(width, height);
            noise.fill(to);
            noise.fill(from);
            auto const before = kit_pixels(from);
            auto const expected = kit_placed(to, from, 0, 0, on_channels(operation.formula));
            operation.whole(to, &from);
            EXPECT_EQ(kit_pixels(to), expected) << operation.name << " " << width << " by " << height;
            EXPECT_EQ(kit_pixels(from), before) << operation.name << " changes the other";
        }
}

TEST(Compositing, FollowsItsFormulaForEveryPairOfBytes)
{
    for (auto const & operation : operations()) {
        kitDib to(256, 256);
        kitDib from(256, 256);
        for (int d = 0; d < 256; ++d)
            for (int s = 0; s < 256; ++s) {
                to.at(s, d) = sglCOLORREF::from_channels(d, d, d, s);
                from.at(s, d) = sglCOLORREF::from_channels(s, s, s, d);
            }
        auto const expected = kit_placed(to, from, 0, 0, on_channels(operation.formula));
        operation.whole(to, &from);
        EXPECT_EQ(kit_pixels(to), expected) << operation.name;
    }
}

TEST(Compositing, OfRectanglesFollowsItsFormulaWhereverTheOtherLies)
{
    kitNoise noise;
    for (auto const & operation : operations())
        for (auto const & place : kit_placings()) {
            kitDib to(place.to_width, place.to_height);
            kitDib from(place.from_width, place.from_height);
            noise.fill(to);
            noise.fill(from);
            auto const expected = kit_placed(to, from, place.x, place.y, on_channels(operation.formula));
            operation.rect(to, &from, place.x, place.y);
            EXPECT_EQ(kit_pixels(to), expected) << operation.name << " at " << place.x << ", " << place.y;
        }
}

TEST(Compositing, OfABufferWithItselfTakesItAsItWasBefore)
{
    kitNoise noise;
    for (auto const & operation : operations())
        for (auto const & [x, y] : {std::pair(0, 0), {1, 0}, {0, 1}, {3, 2}, {-2, -1}}) {
            kitDib to(37, 11);
            noise.fill(to);
            auto const expected = kit_placed(to, to, x, y, on_channels(operation.formula));
            operation.rect(to, &to, x, y);
            EXPECT_EQ(kit_pixels(to), expected) << operation.name << " at " << x << ", " << y;
        }
    for (auto const & operation : operations()) {
        kitDib to(37, 11);
        noise.fill(to);
        auto const expected = kit_placed(to, to, 0, 0, on_channels(operation.formula));
        operation.whole(to, &to);
        EXPECT_EQ(kit_pixels(to), expected) << operation.name << " of all";
    }
}

TEST(Compositing, OfBuffersOfOtherSizesOrOfNoneDoesNothing)
{
    kitNoise noise;
    for (auto const & operation : operations()) {
        kitDib to(6, 4);
        noise.fill(to);
        auto const before = kit_pixels(to);
        kitDib wider(7, 4);
        kitDib higher(6, 5);
        kitDib turned(4, 6);
        sglDib empty;
        for (sglDib * const other : {static_cast<sglDib *>(&wider), static_cast<sglDib *>(&higher),
                                     static_cast<sglDib *>(&turned), &empty, static_cast<sglDib *>(nullptr)})
            operation.whole(to, other);
        operation.rect(to, &empty, 0, 0);
        operation.rect(to, nullptr, 0, 0);
        EXPECT_EQ(kit_pixels(to), before) << operation.name;
        operation.whole(empty, &empty);
        operation.rect(empty, &to, 0, 0);
        EXPECT_EQ(empty.pixels(), nullptr);
    }
}

TEST(Compositing, BlendsFromThisAtNothingToTheOtherAt256)
{
    kitNoise noise;
    kitDib to(13, 7);
    kitDib from(13, 7);
    noise.fill(to);
    noise.fill(from);
    auto const before = kit_pixels(to);
    to.blend(&from, 0);
    EXPECT_EQ(kit_pixels(to), before);
    to.blend(&from, 256);
    auto expected = kit_pixels(from);
    for (std::size_t i = 0; i < expected.size(); ++i)
        expected[i].alpha = before[i].alpha;
    EXPECT_EQ(kit_pixels(to), expected);
}

TEST(Compositing, DividesBy256AndNotBy255)
{
    EXPECT_EQ(of_one_byte(255, 255, [](sglDib & to, sglDib * from) { to.multiply(from); }), 254);
    // 255 - 254
    EXPECT_EQ(of_one_byte(0, 0, [](sglDib & to, sglDib * from) { to.screen(from); }), 1);
    EXPECT_EQ(of_one_byte(255, 255, [](sglDib & to, sglDib * from) { to.screen(from); }), 255);
}

TEST(Compositing, AtMinusThreeLosesTheFirstThreeColumnsAndRowsOfTheOther)
{
    kitDib to(8, 8);
    kitDib from(8, 8);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            from.at(x, y) = sglCOLORREF::from_channels(10 * x, 10 * y, 1);
    to.lighten_rect(&from, -3, -3);
    EXPECT_EQ(to.at(0, 0), sglCOLORREF::from_channels(30, 30, 1));
    EXPECT_EQ(to.at(4, 4), sglCOLORREF::from_channels(70, 70, 1));
    EXPECT_EQ(to.at(5, 4), sglCOLORREF(0));
    EXPECT_EQ(to.at(4, 5), sglCOLORREF(0));
}
