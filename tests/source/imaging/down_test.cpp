#include "kitDib.h"

TEST(Down, MovesThePictureByOnePixelDownAndToTheRight)
{
    kitNoise noise;
    for (auto const & [width, height] : {std::pair(7, 5), {1, 5}, {7, 1}, {2, 2}, {0, 0}}) {
        kitDib dib(width, height);
        noise.fill(dib);
        auto expected = kit_pixels(dib);
        for (int y = 0; y <= height - 2; ++y)
            for (int x = 1; x <= width - 1; ++x)
                expected[static_cast<std::size_t>(y * width + x)] =
                    expected[static_cast<std::size_t>((y + 1) * width + x - 1)];
        dib.down();
        EXPECT_EQ(kit_pixels(dib), expected) << width << " by " << height;
    }
}

TEST(Down, LeavesTheFirstColumnAndTheTopRow)
{
    kitNoise noise;
    kitDib dib(5, 4);
    noise.fill(dib);
    kitDib before;
    before.copy_from(&dib);
    dib.down();
    for (int y = 0; y < 4; ++y)
        EXPECT_EQ(dib.at(0, y), before.at(0, y));
    for (int x = 0; x < 5; ++x)
        EXPECT_EQ(dib.at(x, 3), before.at(x, 3));
    EXPECT_EQ(dib.at(4, 0), before.at(3, 1));
}

TEST(Sparkle, IsAStarInTheUppermostTwelveRows)
{
    char const * const star[] = {".......#....", "....#..#..#.", ".....#...#..", ".......#....",
                                 "...##.###.##", ".......#....", ".....#...#..", "....#..#..#.",
                                 ".......#....", "............", "............", "............"};
    kitNoise noise;
    kitDib dib(14, 15);
    noise.fill(dib);
    auto expected = kit_pixels(dib);
    for (int row = 0; row < 12; ++row)
        for (int column = 0; column < 12; ++column)
            if (star[row][column] == '#')
                expected[static_cast<std::size_t>((3 + row) * 14 + column)] = sglCOLORREF(0x00FF0000);
    dib.add_sparkle();
    EXPECT_EQ(kit_pixels(dib), expected);
    EXPECT_EQ(dib.at(7, 3), sglCOLORREF::from_channels(255, 0, 0, 0)) << "the value is red";
}

TEST(Sparkle, StaysInsideOfASmallBuffer)
{
    // Of a picture of 12 by 3 only the rows 9 to 11 of the star are left, and these are empty.
    kitDib low(12, 3);
    low.add_sparkle();
    EXPECT_EQ(kit_pixels(low), kitPixels(36, sglCOLORREF(0)));
    // By the index: column 7 of the star's first row is column 2 of the next in a picture of 5 columns.
    kitDib narrow(5, 12);
    narrow.add_sparkle();
    EXPECT_EQ(narrow.at(2, 1), sglCOLORREF(0x00FF0000));
    EXPECT_EQ(narrow.at(2, 0), sglCOLORREF(0));
    sglDib empty;
    empty.add_sparkle();
    EXPECT_EQ(empty.pixels(), nullptr);
}
