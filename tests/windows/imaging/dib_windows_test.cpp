// What a buffer does with the toolkit's bitmaps and device contexts and with the colours of the desktop.

#include "source/imaging/kitDib.h"
#include "source/imaging/kitPicture.h"
#include "windows/kit/kitWindowTest.h"

#include <array>
#include <dlfcn.h>
#include <wx/dcmemory.h>
#include <wx/settings.h>

namespace {

/// While this is set, each colour of the desktop is another one; those of a theme may look alike.
bool every_colour_differs = false;

/// While this is set, its highlight is white, its dark shadow black, and all else grey.
bool desktop_of_black_and_white = false;

class DibOnADisplay : public kitWindowTest {
protected:
    void TearDown() override
    {
        every_colour_differs = false;
        desktop_of_black_and_white = false;
        kitWindowTest::TearDown();
    }
};

sglCOLORREF opaque(int number)
{
    auto colour = wx_to_ref(static_cast<wxSystemColour>(number));
    colour.alpha = 255;
    return colour;
}

/// A bitmap of noise without alpha, and the buffer that it was made of.
wxBitmap noise_bitmap(kitDib & dib)
{
    kitNoise noise;
    noise.fill(dib);
    dib.set_alpha(0);
    return wxBitmap(dib.create_image());
}

kitPixels with_alpha(sglDib const & dib, unsigned char alpha)
{
    auto pixels = kit_pixels(dib);
    for (auto & pixel : pixels)
        pixel.alpha = alpha;
    return pixels;
}

struct Sides {
    int left[2];
    int right[2];
    int top[2];
    int bottom[2];
};

/// The frame word for word, on a plain array of numbers of system colours; -1 is untouched, -2 the last
/// value.
std::vector<int> frame(int w, int h, Sides const & sides, int last)
{
    std::vector<int> pixels(static_cast<std::size_t>(w * h), -1);
    auto const write = [&](int index, int value) {
        if (index >= 0 && index < w * h)
            pixels[static_cast<std::size_t>(index)] = value;
    };
    for (int y = 1; y <= h - 1; ++y) {
        write(y * w + 1, sides.left[1]);
        write(y * w, sides.left[0]);
        write(y * w - 1, sides.right[0]);
        write(y * w - 2, sides.right[1]);
    }
    for (int x = 0; x <= w - 1; ++x) {
        if (x > 3)
            write((h - 2) * w + x - 2, sides.top[1]);
        write((h - 1) * w + x + 1, sides.top[0]);
        write(x, sides.bottom[0]);
        if (x > 2)
            write(w + x - 2, sides.bottom[1]);
    }
    write(w * h - 1, last);
    return pixels;
}

void expect_frame(std::function<void(sglDib &)> const & draw, Sides const & sides, int last)
{
    kitNoise noise;
    for (auto const & [w, h] : {std::pair(16, 16), {9, 5}, {4, 7}, {1, 1}, {1, 5}, {5, 1}, {2, 2}, {0, 0}}) {
        kitDib dib(w, h);
        noise.fill(dib);
        auto expected = kit_pixels(dib);
        auto const numbers = frame(w, h, sides, last);
        for (std::size_t i = 0; i < expected.size(); ++i)
            if (numbers[i] == -2)
                expected[i] = sglCOLORREF(0);
            else if (numbers[i] >= 0)
                expected[i] = opaque(numbers[i]);
        draw(dib);
        EXPECT_EQ(kit_pixels(dib), expected) << w << " by " << h;
    }
}

} // namespace

/// Comes in front of the toolkit's own operation, whose callers it serves as well.
wxColour wxSystemSettingsNative::GetColour(wxSystemColour index)
{
    using Operation = wxColour(wxSystemColour);
    static auto * const own = reinterpret_cast<Operation *>(
        dlsym(RTLD_NEXT, "_ZN22wxSystemSettingsNative9GetColourE14wxSystemColour"));
    if (desktop_of_black_and_white)
        return index == wxSYS_COLOUR_BTNHIGHLIGHT ? *wxWHITE
               : index == wxSYS_COLOUR_3DDKSHADOW ? *wxBLACK
                                                  : wxColour(128, 128, 128);
    auto const number = static_cast<unsigned char>(index);
    return every_colour_differs ? wxColour(number, 2 * number, 3 * number) : own(index);
}

TEST_F(DibOnADisplay, TakesTheColoursOfTheDesktopWithAlpha0)
{
    wxColour const face = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE);
    EXPECT_EQ(wx_to_ref(wxSYS_COLOUR_BTNFACE),
              sglCOLORREF::from_channels(face.Red(), face.Green(), face.Blue(), 0));
}

TEST_F(DibOnADisplay, ReadsABitmap)
{
    kitDib picture(7, 5);
    wxBitmap bitmap = noise_bitmap(picture);
    kitDib dib(2, 9);
    EXPECT_EQ(dib.set_bitmap(&bitmap), 1);
    EXPECT_EQ(dib.width(), 7);
    EXPECT_EQ(dib.height(), 5);
    EXPECT_EQ(kit_pixels(dib), with_alpha(picture, 255));

    wxBitmap none;
    EXPECT_EQ(dib.set_bitmap(&none), 0);
    EXPECT_EQ(dib.set_bitmap(nullptr), 0);
    EXPECT_EQ(dib.width(), 7);
}

TEST_F(DibOnADisplay, ReadsTheAlphaOfABitmap)
{
    kitDib picture(2, 1);
    picture.at(0, 0) = sglCOLORREF(0xFF102030);
    picture.at(1, 0) = sglCOLORREF(0x80405060);
    wxBitmap bitmap(picture.create_image());
    kitDib dib;
    EXPECT_EQ(dib.set_bitmap(&bitmap), 1);
    EXPECT_EQ(kit_pixels(dib), kit_pixels(picture));
}

TEST_F(DibOnADisplay, ReplacesABitmapOfItsSize)
{
    kitDib dib(7, 5);
    noise_bitmap(dib);
    wxBitmap bitmap(7, 5);
    EXPECT_EQ(dib.get_bitmap(bitmap), 1);
    kitDib again;
    again.set_bitmap(&bitmap);
    EXPECT_EQ(kit_pixels(again), with_alpha(dib, 255));
    EXPECT_FALSE(bitmap.HasAlpha());

    wxBitmap other(5, 7);
    EXPECT_EQ(dib.get_bitmap(other), 0);
    EXPECT_EQ(other.GetSize(), wxSize(5, 7));
    wxBitmap none;
    EXPECT_EQ(dib.get_bitmap(none), 0);
    sglDib const empty;
    EXPECT_EQ(empty.get_bitmap(bitmap), 0);
}

TEST_F(DibOnADisplay, CopiesAnEmptyBitmapIntoADeviceContextAndThatToItself)
{
    wxBitmap bitmap(8, 6);
    {
        wxMemoryDC dc(bitmap);
        dc.SetBackground(*wxWHITE_BRUSH);
        dc.Clear();
        kitDib dib(3, 3);
        dib.copy_from_dc(&dc, 0, 0, 4, 5);
        EXPECT_EQ(dib.width(), 4);
        EXPECT_EQ(dib.height(), 5);
        EXPECT_EQ(kit_pixels(dib), kitPixels(20, sglCOLORREF(0xFF000000)));
    }
    kitDib target;
    target.set_bitmap(&bitmap);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 8; ++x)
            EXPECT_EQ(target.at(x, y).value(), x < 4 && y >= 1 ? 0xFF000000U : 0xFFFFFFFFU) << x << ", " << y;
}

TEST_F(DibOnADisplay, TakesThePlaceOfACopyForThatInTheEmptyBitmap)
{
    wxBitmap bitmap(8, 6);
    {
        wxMemoryDC dc(bitmap);
        dc.SetBackground(*wxWHITE_BRUSH);
        dc.Clear();
        kitDib dib;
        dib.copy_from_dc(&dc, 1, 2, 4, 5);
        EXPECT_EQ(kit_pixels(dib), kitPixels(20, sglCOLORREF(0xFF000000)));
    }
    kitDib target;
    target.set_bitmap(&bitmap);
    // Behind its end there is nothing to copy.
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 8; ++x)
            EXPECT_EQ(target.at(x, y).value(), x < 3 && y >= 3 ? 0xFF000000U : 0xFFFFFFFFU) << x << ", " << y;
}

TEST_F(DibOnADisplay, CopiesNothingFromADeviceContextWithoutASize)
{
    wxBitmap bitmap(8, 6);
    wxMemoryDC dc(bitmap);
    kitDib dib(3, 3);
    dib.copy_from_dc(&dc, 0, 0, 0, 5);
    dib.copy_from_dc(&dc, 0, 0, 5, -1);
    dib.copy_from_dc(nullptr, 0, 0, 5, 5);
    dib.copy_to_dc(nullptr, 0, 0);
    sglDib().copy_to_dc(&dc, 0, 0);
    EXPECT_EQ(kit_pixels(dib), kitPixels(9, sglCOLORREF(0)));
}

TEST_F(DibOnADisplay, DrawsItselfIntoADeviceContext)
{
    kitDib picture(3, 2);
    noise_bitmap(picture);
    wxBitmap bitmap(8, 6);
    {
        wxMemoryDC dc(bitmap);
        dc.SetBackground(*wxWHITE_BRUSH);
        dc.Clear();
        picture.copy_to_dc(&dc, 4, 1);
    }
    kitDib target;
    target.set_bitmap(&bitmap);
    // The second and third rows from the top are the fourth and third from the bottom.
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 8; ++x) {
            bool const inside = x >= 4 && x < 7 && y >= 3 && y < 5;
            auto expected = inside ? picture.at(x - 4, y - 3) : sglCOLORREF(0x00FFFFFF);
            expected.alpha = 255;
            EXPECT_EQ(target.at(x, y), expected) << x << ", " << y;
        }
}

TEST_F(DibOnADisplay, TurnsTheKeyOfAFileIntoTheFaceOfAButton)
{
    sglCOLORREF const key(0x00FF00FF);
    kitPixels const pixels = {sglCOLORREF(0xFFFF00FF), sglCOLORREF(0x12FF00FF), sglCOLORREF(0x55FF00FE)};
    utString const file(folder().write("picture.png", kit_png(3, 1, pixels, true)));
    kitDib dib;
    ASSERT_EQ(dib.load_bitmap_transparent_from_file(file, key), 1);
    auto const face = wx_to_ref(wxSYS_COLOUR_BTNFACE);
    EXPECT_EQ(kit_pixels(dib), (kitPixels{face, face, pixels[2]}));
    // A key with alpha is none.
    ASSERT_EQ(dib.load_bitmap_transparent_from_file(file, sglCOLORREF(0x01FF00FF)), 1);
    EXPECT_EQ(kit_pixels(dib), pixels);
}

TEST_F(DibOnADisplay, DrawsTheEdgesOfFlatButtons)
{
    every_colour_differs = true;
    EXPECT_EQ(opaque(16), sglCOLORREF::from_channels(16, 32, 48, 255));
    auto const flat = [](int style) {
        return [style](sglDib & dib) { dib.draw_button_flat(static_cast<sglDibEdgeStyle>(style)); };
    };
    expect_frame(flat(0), {{15, 15}, {15, 15}, {15, 15}, {15, 15}}, 15);
    expect_frame(flat(1), {{20, 15}, {16, 15}, {20, 15}, {16, 15}}, 16);
    expect_frame(flat(2), {{16, 15}, {20, 15}, {16, 15}, {20, 15}}, 20);
    expect_frame(flat(3), {{6, 16}, {6, 20}, {6, 16}, {6, 20}}, 6);
    expect_frame(flat(4), {{6, 20}, {6, 16}, {6, 20}, {6, 16}}, 6);
    expect_frame(flat(5), {{6, 16}, {6, 20}, {6, 16}, {6, 20}}, 6);
}

TEST_F(DibOnADisplay, KnowsNoOtherStyleOfButtons)
{
    kitNoise noise;
    kitDib dib(9, 9);
    noise.fill(dib);
    auto const before = kit_pixels(dib);
    for (int const style : {6, 7})
        dib.draw_button_flat(static_cast<sglDibEdgeStyle>(style));
    EXPECT_EQ(kit_pixels(dib), before);
}

TEST_F(DibOnADisplay, DrawsTheEdgesOfButtons)
{
    every_colour_differs = true;
    auto const edge = [](int raised) { return [raised](sglDib & dib) { dib.draw_button_edge(raised); }; };
    for (int const raised : {1, 7, -1})
        expect_frame(edge(raised), {{20, 15}, {21, 16}, {20, 15}, {21, 16}}, -2);
    expect_frame(edge(0), {{21, 16}, {20, 15}, {21, 16}, {20, 15}}, -2);
}

TEST_F(DibOnADisplay, KnowsARaisedEdgeOfAWhiteHighlightAndABlackShadow)
{
    desktop_of_black_and_white = true;
    for (auto const & [width, height] : {std::pair(16, 16), {9, 5}, {4, 7}}) {
        kitDib dib(width, height);
        dib.fill(sglCOLORREF(0x00777777));
        dib.draw_button_edge(1);
        EXPECT_EQ(dib.has_button_edge(), 1) << width << " by " << height;
        dib.draw_button_edge(0);
        EXPECT_EQ(dib.has_button_edge(), 0) << "pressed";
    }
    desktop_of_black_and_white = false;
    every_colour_differs = true;
    kitDib other(16, 16);
    other.draw_button_edge(1);
    EXPECT_EQ(other.has_button_edge(), 0) << "in other colours";
}

TEST_F(DibOnADisplay, WritesTheRightSideOfARowAheadOfTheNext)
{
    every_colour_differs = true;
    kitDib dib(8, 4);
    dib.draw_button_edge(1);
    auto const dark = opaque(21);
    auto const shadow = opaque(16);
    auto const light = opaque(20);
    EXPECT_EQ(dib.at(7, 0), dark);
    EXPECT_EQ(dib.at(7, 1), dark);
    EXPECT_EQ(dib.at(7, 2), dark);
    EXPECT_EQ(dib.at(6, 2), shadow) << "the second row from the top ends two columns earlier";
    EXPECT_EQ(dib.at(5, 2), opaque(15));
    EXPECT_EQ(dib.at(6, 1), shadow);
    EXPECT_EQ(dib.at(7, 3), sglCOLORREF(0)) << "the last value";
    EXPECT_EQ(dib.at(6, 3), light);
    EXPECT_EQ(dib.at(0, 0), dark) << "the first row has no left side of its own";
}

TEST_F(DibOnADisplay, StipplesWhatIsMagenta)
{
    every_colour_differs = true;
    kitNoise noise;
    sglCOLORREF const magenta(0x80FF00FF);
    for (auto const & [width, height] : {std::pair(9, 8), {5, 4}, {4, 9}, {9, 3}, {0, 0}}) {
        kitDib dib(width, height);
        noise.fill(dib, magenta);
        auto expected = kit_pixels(dib);
        for (int y = 1; y <= height - 3; ++y)
            for (int x = 2; width >= 5 && x <= width - 3; ++x) {
                auto & pixel = expected[static_cast<std::size_t>(y * width + x)];
                if (pixel.red == 255 && pixel.green == 0 && pixel.blue == 255)
                    pixel = wx_to_ref(static_cast<wxSystemColour>((x + y) % 2 ? 20 : 15));
            }
        dib.cool_stipple();
        EXPECT_EQ(kit_pixels(dib), expected) << width << " by " << height;
    }
}

TEST_F(DibOnADisplay, PressedFullyIsMovedByTwoPixels)
{
    kitNoise noise;
    kitDib dib(16, 16);
    noise.fill(dib);
    kitDib before;
    before.copy_from(&dib);
    kitDib steps;
    steps.copy_from(&dib);
    dib.fulldown();
    for (int y = 3; y < 10; ++y)
        for (int x = 4; x < 13; ++x)
            EXPECT_EQ(dib.at(x, y), before.at(x - 2, y + 2)) << x << ", " << y;
    steps.down();
    steps.draw_button_flat(sglDibEdgeFace);
    steps.down();
    steps.draw_button_edge(0);
    EXPECT_EQ(kit_pixels(dib), kit_pixels(steps));
}
