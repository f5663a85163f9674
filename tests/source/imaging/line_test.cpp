#include "kitDib.h"

#include <cstdlib>
#include <set>

namespace {

using Points = std::vector<std::pair<int, int>>;

/// The walk word for word, one direction after the other.
Points walked(int x1, int y1, int x2, int y2)
{
    Points points;
    int const dx = x2 - x1;
    int const dy = y2 - y1;
    int x = x1;
    int y = y1;
    if (2 * std::abs(dx) <= 2 * std::abs(dy)) {
        int error = 2 * std::abs(dx) - ((2 * std::abs(dy)) >> 1);
        while (y != y2) {
            points.emplace_back(x, y);
            y += dy < 0 ? -1 : 1;
            if (error >= 0) {
                x += dx < 0 ? -1 : 1;
                error -= 2 * std::abs(dy);
            }
            error += 2 * std::abs(dx);
        }
    } else {
        int error = 2 * std::abs(dy) - ((2 * std::abs(dx)) >> 1);
        while (x != x2) {
            points.emplace_back(x, y);
            x += dx < 0 ? -1 : 1;
            if (error >= 0) {
                y += dy < 0 ? -1 : 1;
                error -= 2 * std::abs(dx);
            }
            error += 2 * std::abs(dy);
        }
    }
    return points;
}

Points of_line(int x1, int y1, int x2, int y2)
{
    kitDib dib(9, 9);
    dib.line(x1, y1, x2, y2, sglCOLORREF(0xFFFFFFFF));
    Points points;
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 9; ++x)
            if (dib.at(x, y) != sglCOLORREF(0))
                points.emplace_back(x, y);
    return points;
}

} // namespace

TEST(Line, VisitsThePointsOfBresenhamBetweenAnyTwo)
{
    kitNoise noise;
    sglCOLORREF const colour(0x12345678);
    for (int from = 0; from < 81; ++from)
        for (int to = 0; to < 81; ++to) {
            kitDib dib(9, 9);
            noise.fill(dib);
            auto expected = kit_pixels(dib);
            for (auto const & [x, y] : walked(from % 9, from / 9, to % 9, to / 9))
                expected[static_cast<std::size_t>(y * 9 + x)] = colour;
            dib.line(from % 9, from / 9, to % 9, to / 9, colour);
            ASSERT_EQ(kit_pixels(dib), expected) << from << " to " << to;
        }
}

TEST(Line, DoesNotDrawItsEnd)
{
    EXPECT_EQ(of_line(2, 3, 5, 3), (Points{{2, 3}, {3, 3}, {4, 3}}));
    EXPECT_EQ(of_line(5, 3, 2, 3), (Points{{3, 3}, {4, 3}, {5, 3}}));
    EXPECT_EQ(of_line(4, 1, 4, 3), (Points{{4, 1}, {4, 2}}));
    EXPECT_EQ(of_line(0, 0, 2, 2), (Points{{0, 0}, {1, 1}}));
}

TEST(Line, OfNoLengthDrawsNothing)
{
    EXPECT_EQ(of_line(4, 4, 4, 4), Points{});
}

TEST(Line, IsOneOfKnownSteps)
{
    EXPECT_EQ(of_line(0, 0, 6, 2), (Points{{0, 0}, {1, 0}, {2, 1}, {3, 1}, {4, 1}, {5, 2}}));
}

TEST(Line, GoesByTheIndexAndStaysInTheBuffer)
{
    kitDib dib(4, 3);
    // Columns beyond the edge are those of the next row.
    dib.line(3, 0, 6, 0, sglCOLORREF(0x11111111));
    EXPECT_EQ(dib.at(3, 0), sglCOLORREF(0x11111111));
    EXPECT_EQ(dib.at(0, 1), sglCOLORREF(0x11111111));
    EXPECT_EQ(dib.at(1, 1), sglCOLORREF(0x11111111));
    EXPECT_EQ(dib.at(2, 1), sglCOLORREF(0));

    dib.fill(sglCOLORREF(0));
    dib.line(-100, -50, 100, 50, sglCOLORREF(0x22222222));
    dib.line(0, 1000, 0, -1000, sglCOLORREF(0x22222222));
    dib.line_glass(-100, -50, 100, 50, 1, 2, 3, 256);
    EXPECT_EQ(dib.at(0, 2), sglCOLORREF(0x22222222));
    sglDib empty;
    empty.line(0, 0, 5, 5, sglCOLORREF(0));
    empty.line_glass(0, 0, 5, 5, 1, 2, 3, 4);
    EXPECT_EQ(empty.pixels(), nullptr);
}

TEST(LineGlass, BlendsThePointsOfTheLine)
{
    kitNoise noise;
    for (auto const & [x1, y1, x2, y2] : {std::tuple(0, 0, 8, 3), {8, 8, 1, 2}, {4, 8, 4, 0}, {3, 3, 3, 3}}) {
        kitDib dib(9, 9);
        noise.fill(dib);
        auto expected = kit_pixels(dib);
        for (auto const & [x, y] : walked(x1, y1, x2, y2)) {
            auto & pixel = expected[static_cast<std::size_t>(y * 9 + x)];
            auto const channel = [](int d, int c) { return (((c - d) * 90) + d * 256) >> 8; };
            pixel = sglCOLORREF::from_channels(channel(pixel.red, 250), channel(pixel.green, 5),
                                               channel(pixel.blue, 128), pixel.alpha);
        }
        dib.line_glass(x1, y1, x2, y2, 250, 5, 128, 90);
        EXPECT_EQ(kit_pixels(dib), expected);
    }
}
