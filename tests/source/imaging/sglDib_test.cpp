// The buffer itself, and its ways from and to images.

#include "kitDib.h"

#include <limits>
#include <type_traits>
#include <wx/image.h>

TEST(Colour, IsFourBytesFromBlueToAlpha)
{
    sglCOLORREF const given(0x44332211);
    EXPECT_EQ(given.blue, 0x11);
    EXPECT_EQ(given.green, 0x22);
    EXPECT_EQ(given.red, 0x33);
    EXPECT_EQ(given.alpha, 0x44);
    EXPECT_EQ(given.value(), 0x44332211U);
    EXPECT_EQ(sizeof(sglCOLORREF), 4U);
    EXPECT_EQ(offsetof(sglCOLORREF, blue), 0U);
    EXPECT_EQ(offsetof(sglCOLORREF, green), 1U);
    EXPECT_EQ(offsetof(sglCOLORREF, red), 2U);
    EXPECT_EQ(offsetof(sglCOLORREF, alpha), 3U);
    EXPECT_EQ(sglCOLORREF::from_channels(0x33, 0x22, 0x11, 0x44), given);
}

TEST(Colour, ThatNobodyGaveIsAGreenWithAlpha0)
{
    EXPECT_EQ(sglCOLORREF().value(), 0x0051FF51U);
    EXPECT_EQ(sglCOLORREF(), sglCOLORREF::from_channels(0x51, 0xFF, 0x51, 0));
}

TEST(Dib, IsEmptyAtFirst)
{
    sglDib const dib;
    EXPECT_EQ(dib.pixels(), nullptr);
    EXPECT_EQ(dib.width(), 0);
    EXPECT_EQ(dib.height(), 0);
    EXPECT_TRUE(std::has_virtual_destructor_v<sglDib>);
}

TEST(Dib, IsCreatedWithAllBytes0)
{
    sglDib dib;
    EXPECT_EQ(dib.create(7, 5), 1);
    EXPECT_EQ(dib.width(), 7);
    EXPECT_EQ(dib.height(), 5);
    EXPECT_EQ(kit_pixels(dib), kitPixels(35, sglCOLORREF(0)));
    dib.fill(sglCOLORREF(0xFFFFFFFF));
    EXPECT_EQ(dib.create(7, 5), 1);
    EXPECT_EQ(kit_pixels(dib), kitPixels(35, sglCOLORREF(0)));
}

TEST(Dib, IsEmptyWhenThereIsNoMemoryForIt)
{
    constexpr int most = std::numeric_limits<int>::max();
    for (auto const & [width, height] :
         {std::pair(most, most), {100000, 100000}, {-1, 5}, {5, -1}, {-3, -3}, {most, 1}}) {
        sglDib dib;
        ASSERT_EQ(dib.create(2, 2), 1);
        EXPECT_EQ(dib.create(width, height), 0) << width << " by " << height;
        EXPECT_EQ(dib.width(), 0);
        EXPECT_EQ(dib.height(), 0);
        EXPECT_EQ(dib.pixels(), nullptr);
    }
}

TEST(Dib, OfNoPixelsHasNone)
{
    for (auto const & [width, height] : {std::pair(0, 0), {0, 5}, {5, 0}}) {
        kitDib dib;
        EXPECT_EQ(dib.create(width, height), 1);
        EXPECT_EQ(dib.width(), width);
        EXPECT_EQ(dib.height(), height);
        EXPECT_EQ(dib.pixels(), nullptr);
        EXPECT_EQ(dib.has_alpha(), 0);
        EXPECT_EQ(dib.has_button_edge(), 0);
        EXPECT_EQ(dib.set_alpha(1), 0);
        EXPECT_FALSE(dib.create_image().IsOk());
    }
}

TEST(Dib, CanBeDestroyedAndCreatedAgain)
{
    sglDib dib;
    EXPECT_EQ(dib.destroy(), 1);
    dib.create(3, 3);
    EXPECT_EQ(dib.destroy(), 1);
    EXPECT_EQ(dib.pixels(), nullptr);
    EXPECT_EQ(dib.width(), 0);
    EXPECT_EQ(dib.height(), 0);
    EXPECT_EQ(dib.create(1, 2), 1);
    EXPECT_EQ(dib.count(), 2U);
}

TEST(Dib, HasAlphaWhenAnyPixelHas)
{
    kitDib dib(123, 77);
    dib.fill(sglCOLORREF(0x00FFFFFF));
    EXPECT_EQ(dib.has_alpha(), 0);
    for (auto const & [x, y] : {std::pair(0, 0), {122, 76}, {60, 40}}) {
        dib.at(x, y).alpha = 1;
        EXPECT_EQ(dib.has_alpha(), 1);
        dib.at(x, y).alpha = 0;
    }
    EXPECT_EQ(dib.has_alpha(), 0);
}

TEST(Dib, SetsTheAlphaOfEveryPixelAndNothingElse)
{
    kitNoise noise;
    kitDib dib(5, 3);
    noise.fill(dib);
    auto expected = kit_pixels(dib);
    for (auto & pixel : expected)
        pixel.alpha = 17;
    EXPECT_EQ(dib.set_alpha(17), 1);
    EXPECT_EQ(kit_pixels(dib), expected);
}

TEST(Dib, KnowsAButtonEdgeByTwoPixels)
{
    kitDib dib(4, 3);
    dib.fill(sglCOLORREF(0x00777777));
    EXPECT_EQ(dib.has_button_edge(), 0);
    dib.at(1, 2) = sglCOLORREF(0x12FFFFFF);
    EXPECT_EQ(dib.has_button_edge(), 0);
    dib.at(3, 0) = sglCOLORREF(0x34000000);
    EXPECT_EQ(dib.has_button_edge(), 1);
    dib.at(1, 2).green = 254;
    EXPECT_EQ(dib.has_button_edge(), 0);
    dib.at(1, 2).green = 255;
    dib.at(3, 0).blue = 1;
    EXPECT_EQ(dib.has_button_edge(), 0);

    kitDib narrow(1, 3);
    EXPECT_EQ(narrow.has_button_edge(), 0);
}

TEST(Dib, ReadsAnImageFromItsLastRowUp)
{
    wxImage image(2, 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 2; ++x)
            image.SetRGB(x, y, static_cast<unsigned char>(10 + x), static_cast<unsigned char>(20 + y), 30);
    kitDib dib(2, 3);
    dib.create_from_image(image);
    EXPECT_EQ(dib.at(0, 0), sglCOLORREF::from_channels(10, 22, 30, 255));
    EXPECT_EQ(dib.at(1, 0), sglCOLORREF::from_channels(11, 22, 30, 255));
    EXPECT_EQ(dib.at(1, 2), sglCOLORREF::from_channels(11, 20, 30, 255));

    image.SetAlpha();
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 2; ++x)
            image.SetAlpha(x, y, static_cast<unsigned char>(40 + 2 * y + x));
    dib.create_from_image(image);
    EXPECT_EQ(dib.at(0, 0).alpha, 44);
    EXPECT_EQ(dib.at(1, 2).alpha, 41);
}

TEST(Dib, LeavesAnImageOfAnotherSizeAlone)
{
    kitDib dib(2, 2);
    dib.create_from_image(wxImage(3, 2));
    dib.create_from_image(wxImage(2, 1));
    dib.create_from_image(wxImage());
    EXPECT_EQ(kit_pixels(dib), kitPixels(4, sglCOLORREF(0)));
}

TEST(Dib, GivesAnImageFromItsTopRowDown)
{
    kitNoise noise;
    kitDib dib(5, 4);
    noise.fill(dib);
    wxImage const image = dib.create_image();
    ASSERT_TRUE(image.IsOk());
    ASSERT_TRUE(image.HasAlpha());
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x) {
            auto const pixel = dib.at(x, 3 - y);
            EXPECT_EQ(image.GetRed(x, y), pixel.red);
            EXPECT_EQ(image.GetGreen(x, y), pixel.green);
            EXPECT_EQ(image.GetBlue(x, y), pixel.blue);
            EXPECT_EQ(image.GetAlpha(x, y), pixel.alpha);
        }
    kitDib again(5, 4);
    again.create_from_image(image);
    EXPECT_EQ(kit_pixels(again), kit_pixels(dib));
}

TEST(Dib, GivesAnImageWithAnAlphaPlaneOnlyWhenItHasAlpha)
{
    kitDib dib(5, 4);
    dib.fill(sglCOLORREF(0x00123456));
    EXPECT_FALSE(dib.create_image().HasAlpha());
    dib.at(2, 2).alpha = 1;
    EXPECT_TRUE(dib.create_image().HasAlpha());
}
