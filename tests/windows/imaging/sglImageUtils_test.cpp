#include "sglImageUtils.h"

#include "source/imaging/kitDib.h"
#include "source/imaging/kitPicture.h"
#include "windows/kit/kitInstalledImages.h"
#include "windows/kit/kitWindowTest.h"

#include "sdb/sdbSchemaDir.h"

#include <filesystem>
#include <wx/log.h>

namespace {

class Images : public kitWindowTest {
protected:
    utString install(std::string const & name, std::string const & content)
    {
        return m_images.install(name, content);
    }
    utString install_folder(std::string const & name) { return m_images.install_folder(name); }

private:
    kitInstalledImages m_images;
};

class Utils : public sglImageUtils {
public:
    using sglImageUtils::load_image;
    using sglImageUtils::sglImageUtils;
};

constexpr sglCOLORREF half(0x80402010);
constexpr sglCOLORREF magenta(0x40FF00FF);
constexpr sglCOLORREF solid(0xFF102030);

kitPixels pixels_of(wxBitmap bitmap)
{
    kitDib dib;
    dib.set_bitmap(&bitmap);
    return kit_pixels(dib);
}

/// A colour over another by its alpha.
sglCOLORREF over(sglCOLORREF s, sglCOLORREF d, int alpha = 255)
{
    auto pixel =
        kit_each_channel(d, s, [&](int here, int there) { return here + (((there - here) * s.alpha) >> 8); });
    pixel.alpha = static_cast<unsigned char>(alpha);
    return pixel;
}

} // namespace

TEST_F(Images, AreFoundAmongThoseOfTheInstallation)
{
    auto const name = install("kit-image.png", kit_png(2, 1, {solid, half}, true));
    sglDib picture;
    Utils const utils(0);
    EXPECT_EQ(utils.load_image(name, 0, picture), 1);
    EXPECT_EQ(kit_pixels(picture), (kitPixels{solid, half}));
    EXPECT_EQ(utils.load_image("kit-missing.png", 0, picture), 0);
    EXPECT_EQ(utils.load_image("", 0, picture), 0);
    EXPECT_EQ(utils.load_image(utString::make_invalid(), 0, picture), 0);
}

TEST_F(Images, KeepTheirAlphaWhenItIsNotToBeHandled)
{
    auto const name = install("kit-image.png", kit_png(2, 1, {solid, half}, true));
    wxBitmap const bitmap = sglImageUtils(0).load_image_file(name, 0);
    ASSERT_TRUE(bitmap.IsOk());
    EXPECT_TRUE(bitmap.HasAlpha());
    EXPECT_EQ(pixels_of(bitmap), (kitPixels{solid, half}));
}

TEST_F(Images, AreFlattenedOnTheFaceOfAButton)
{
    auto const name = install("kit-image.png", kit_png(2, 1, {solid, half}, true));
    wxBitmap const bitmap = sglImageUtils(1).load_image_file(name, 0);
    ASSERT_TRUE(bitmap.IsOk());
    EXPECT_FALSE(bitmap.HasAlpha());
    auto const face = wx_to_ref(wxSYS_COLOUR_BTNFACE);
    EXPECT_EQ(pixels_of(bitmap), (kitPixels{over(solid, face), over(half, face)}));
}

TEST_F(Images, AreFlattenedOnAChosenColour)
{
    auto const name = install("kit-image.png", kit_png(2, 1, {solid, half}, true));
    sglImageUtils utils(0);
    utils.handle_alpha(1);
    utils.set_blend_colour(wxColour(200, 100, 50));
    auto const background = sglCOLORREF::from_channels(200, 100, 50);
    EXPECT_EQ(pixels_of(utils.load_image_file(name, 0)),
              (kitPixels{over(solid, background), over(half, background)}));
}

TEST_F(Images, GoThroughTheKeyFirstAndAreFlattenedThen)
{
    auto const name = install("kit-image.png", kit_png(2, 1, {magenta, half}, true));
    auto const face = wx_to_ref(wxSYS_COLOUR_BTNFACE);
    sglImageUtils utils(1);
    auto const background = sglCOLORREF::from_channels(200, 100, 50);
    utils.set_blend_colour(wxColour(200, 100, 50));
    // The key pixel has alpha 0 when it is flattened, so that the background shows.
    auto hidden = background;
    hidden.alpha = 255;
    EXPECT_EQ(pixels_of(utils.load_image_file(name, 1)), (kitPixels{hidden, over(half, background)}));
    EXPECT_EQ(pixels_of(utils.load_image_file(name, 0)),
              (kitPixels{over(magenta, background), over(half, background)}));
    utils.handle_alpha(0);
    EXPECT_EQ(pixels_of(utils.load_image_file(name, 1)), (kitPixels{face, half}));
}

TEST_F(Images, WhoseAlphaIs0EverywhereCountAsHavingNone)
{
    sglCOLORREF const clear(0x00102030);
    auto const name = install("kit-image.png", kit_png(2, 1, {clear, clear}, true));
    for (int const handle : {0, 1}) {
        wxBitmap const bitmap = sglImageUtils(handle).load_image_file(name, 0);
        EXPECT_FALSE(bitmap.HasAlpha());
        EXPECT_EQ(pixels_of(bitmap), (kitPixels{solid, solid}));
    }
}

TEST_F(Images, OfButtonsAreLoadedInTheSameWay)
{
    auto const name = install("kit-image.png", kit_png(2, 1, {magenta, half}, true));
    for (int const transparent : {0, 1})
        EXPECT_EQ(pixels_of(sglImageUtils(1).load_button_image_file(name, transparent)),
                  pixels_of(sglImageUtils(1).load_image_file(name, transparent)));
}

TEST_F(Images, OfTheBmpKindCanBeLoadedAsBitmaps)
{
    auto const name = install("kit-image.bmp", kit_bmp(2, 1, {solid, half}));
    wxBitmap const bitmap = sglImageUtils(1).load_bitmap_file(name);
    ASSERT_TRUE(bitmap.IsOk());
    auto opaque_half = half;
    opaque_half.alpha = 255;
    EXPECT_EQ(pixels_of(bitmap), (kitPixels{solid, opaque_half}));
    EXPECT_FALSE(sglImageUtils(1)
                     .load_bitmap_file(install("kit-image.png", kit_png(2, 1, {solid, half}, true)))
                     .IsOk());
    EXPECT_FALSE(sglImageUtils(1).load_bitmap_file("kit-missing.bmp").IsOk());
}

TEST_F(Images, BlendedByHandLoseTheirAlpha)
{
    kitDib picture(2, 1);
    picture.at(0, 0) = half;
    picture.at(1, 0) = solid;
    sglImageUtils utils(0);
    utils.set_blend_colour(*wxBLACK);
    wxBitmap const bitmap = utils.blend_image(picture);
    EXPECT_FALSE(bitmap.HasAlpha());
    EXPECT_EQ(pixels_of(bitmap), (kitPixels{over(half, sglCOLORREF(0)), over(solid, sglCOLORREF(0))}));
    picture.set_alpha(0);
    EXPECT_EQ(pixels_of(utils.blend_image(picture))[1], solid);
    EXPECT_FALSE(utils.blend_image(sglDib()).IsOk());
}

TEST_F(Images, ThatAreNoneGiveAnEmptyBitmapAndNoMessage)
{
    kitModal const no_boxes;
    wxLogBuffer * const log = new wxLogBuffer;
    wxLog * const before = wxLog::SetActiveTarget(log);
    sglImageUtils const utils(1);
    kitNoise noise;
    kitPixels pixels;
    for (int i = 0; i < 64 * 64; ++i)
        pixels.push_back(noise.colour(200));
    for (auto const & name :
         {install("kit-empty.png", ""), install("kit-text.png", "no picture\n"),
          install("kit-cut.png", kit_png(64, 64, pixels, true).substr(0, 8000)),
          install("kit-huge.png", kit_png_header(100000, 100000)),
          install("kit-huge.bmp", kit_bmp_header(60000, 60000)), install_folder("kit-folder.png")}) {
        EXPECT_FALSE(utils.load_image_file(name, 0).IsOk()) << name.view();
        EXPECT_FALSE(utils.load_image_file(name, 1).IsOk()) << name.view();
        EXPECT_FALSE(utils.load_button_image_file(name, 1).IsOk()) << name.view();
        EXPECT_FALSE(utils.load_bitmap_file(name).IsOk()) << name.view();
    }
    EXPECT_EQ(log->GetBuffer(), "");
    delete wxLog::SetActiveTarget(before);
}

TEST_F(Images, OfTheInstallationHoldThePictureOfTheStart)
{
    wxBitmap const splash = sglImageUtils(0).load_image_file("splash.png", 0);
    ASSERT_TRUE(splash.IsOk());
    EXPECT_EQ(splash.GetSize(), wxSize(600, 350));
    // The title is dark; it is written into the upper left corner.
    kitDib picture;
    wxBitmap copy = splash;
    picture.set_bitmap(&copy);
    for (int y = 350 - 40; y < 349; ++y)
        for (int x = 1; x < 300; ++x)
            EXPECT_GT(picture.at(x, y).green, 200) << x << ", " << y;
}
