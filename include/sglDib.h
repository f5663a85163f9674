#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include <wx/settings.h>

#include "ut/utString.h"

class wxBitmap;
class wxDC;
class wxImage;

/// A colour of 32 bits. As a key, which picks out pixels, it is active only while its alpha byte is 0, and
/// then matches the pixels of the same blue, green and red.
struct sglCOLORREF {
    unsigned char blue;
    unsigned char green;
    unsigned char red;
    unsigned char alpha;

    constexpr sglCOLORREF() : sglCOLORREF(0x0051FF51) {}
    /// From the lowest byte up: blue, green, red, alpha. 0x00FF0000 is red.
    constexpr explicit sglCOLORREF(std::uint32_t value)
        : blue(static_cast<unsigned char>(value)), green(static_cast<unsigned char>(value >> 8)),
          red(static_cast<unsigned char>(value >> 16)), alpha(static_cast<unsigned char>(value >> 24))
    {
    }
    /// Of each channel the lowest eight bits.
    static constexpr sglCOLORREF from_channels(int red, int green, int blue, int alpha = 0)
    {
        sglCOLORREF colour;
        colour.blue = static_cast<unsigned char>(blue);
        colour.green = static_cast<unsigned char>(green);
        colour.red = static_cast<unsigned char>(red);
        colour.alpha = static_cast<unsigned char>(alpha);
        return colour;
    }

    constexpr std::uint32_t value() const
    {
        return std::uint32_t(blue) | std::uint32_t(green) << 8 | std::uint32_t(red) << 16 |
               std::uint32_t(alpha) << 24;
    }
    friend constexpr bool operator==(sglCOLORREF, sglCOLORREF) = default;
};
static_assert(sizeof(sglCOLORREF) == 4);

/// A colour of the desktop, with alpha 0. Needs a display.
sglCOLORREF wx_to_ref(wxSystemColour colour);

/// How draw_button_flat draws: which system colours go where.
enum sglDibEdgeStyle {
    sglDibEdgeFace = 0,         ///< all sides in the colour of the button's face
    sglDibEdgeRaised = 1,       ///< light from the top left
    sglDibEdgeSunken = 2,       ///< the other way about
    sglDibEdgeFramedSunken = 3, ///< inside a frame in the colour of window frames
    sglDibEdgeFramedRaised = 4,
    sglDibEdgeFramedSunken2 = 5, ///< as sglDibEdgeFramedSunken
};

/// A small software image in which pictures are composed before they become bitmaps of the toolkit. Pixels
/// are rows of `width` without a gap, row 0 at the bottom; the pixel at column x of row y has the index
/// y * width + x. The alpha byte is the coverage of a pixel that comes from an image file; what does not say
/// otherwise leaves it alone. Channels, alphas and amounts run from 0 to 255.
///
/// Operations that return int return 0 on failure; the others do nothing when what they are asked for cannot
/// be done, a null pointer among it. What would fall outside of the pixels is left out. A buffer that is its
/// own source counts as it was before. One thread at a time.
class sglDib {
public:
    sglDib() = default; ///< empty: no pixels, 0 by 0
    virtual ~sglDib() = default;
    sglDib(sglDib const &) = delete;
    sglDib & operator=(sglDib const &) = delete;

    int width() const { return m_width; }
    int height() const { return m_height; }
    sglCOLORREF * pixels() { return m_pixels.get(); } ///< null when empty
    sglCOLORREF const * pixels() const { return m_pixels.get(); }
    std::size_t count() const ///< of the pixels
    {
        return static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
    }

    // Lifetime and conversion

    /// All bytes 0. Without memory for it, and for more than 2 GiB, returns 0 and leaves the buffer empty.
    int create(int w, int h);
    int destroy(); ///< returns 1; the buffer is empty until the next create
    int set_bitmap(wxBitmap * bitmap);
    /// Replaces `bitmap`, which must have the size of the buffer.
    int get_bitmap(wxBitmap & bitmap) const;
    /// Copies w by h at x, y of an empty bitmap into `dc` at its origin, and takes what that bitmap then
    /// holds.
    void copy_from_dc(wxDC * dc, int x, int y, int w, int h);
    void copy_to_dc(wxDC * dc, int x, int y) const;
    /// A picture of any kind that the toolkit has a handler for; those of PNG and BMP are always there.
    /// Nothing is shown when it fails, and the buffer stays as it is. Files of more than 64 MiB and pictures
    /// of more than 32 million pixels are refused.
    int load_bitmap_from_file(utString const & path);
    /// The same; pixels that match `key` take the colour of a button's face, with alpha 0. Needs a display.
    int load_bitmap_transparent_from_file(utString const & path, sglCOLORREF key);

    // Queries

    int has_alpha() const; ///< 1 when any alpha byte is not 0
    /// 1 when the corners are those of a raised edge of a white highlight and a black shadow.
    int has_button_edge() const;
    int set_alpha(unsigned char alpha); ///< of every pixel

    // Compositing of blue, green and red, the low eight bits of each result. The whole-buffer forms want a
    // buffer of the same size, the others place it with its corner at x, y and leave out what is not covered.

    void blend(sglDib * other, int a); ///< from this at 0 to the other at 256
    void blend_rect(sglDib * other, int x, int y, int a);
    void multiply(sglDib * other); ///< divided by 256, so that white by white is 254
    void multiply_rect(sglDib * other, int x, int y);
    void screen(sglDib * other); ///< likewise; black on black is 1
    void screen_rect(sglDib * other, int x, int y);
    void darken(sglDib * other);
    void darken_rect(sglDib * other, int x, int y);
    void lighten(sglDib * other);
    void lighten_rect(sglDib * other, int x, int y);
    void difference(sglDib * other);
    void difference_rect(sglDib * other, int x, int y);

    // Copying, of all four bytes

    void copy_from(sglDib * other); ///< takes its size too
    /// The same; all pixels equal to the one at x, y in all four bytes become `c`.
    void copy_from(sglDib * other, sglCOLORREF c, int x, int y);
    void copy_rect_from(sglDib const * other, int x, int y);
    void copy_rect_from(sglDib const * other, int x, int y, sglCOLORREF key); ///< without what matches
    /// Blends each pixel by its alpha and writes 0 into the alpha byte here.
    void copy_rect_from_alpha(sglDib const * other, int x, int y);
    /// Writes `b` where the other matches `key`, `a` elsewhere.
    void copy_mask_rect_from(sglDib * other, int x, int y, sglCOLORREF key, sglCOLORREF a, sglCOLORREF b);
    /// Copies the part at x, y that is as large as `out`, resizing it to what lies in this buffer.
    void copy_rect_to(sglDib * out, int x, int y) const;
    /// Copies a part to the same indices of `out`, which should be as wide as this buffer.
    void copy_rect_to(sglDib * out, int x, int y, int w, int h) const;
    void tile(sglDib * other); ///< repeats it over this buffer from 0, 0 upward and to the right

    // Filling and drawing

    void fill(sglCOLORREF colour);
    void fill_rect(int x, int y, int w, int h, sglCOLORREF colour);
    void fill_glass(int r, int g, int b, int a);
    void fill_glass_rect(int x, int y, int w, int h, int r, int g, int b, int a);
    /// A chequer for square buffers: counts i up to the width and j up to the height and fills the index
    /// i * width + j where i + j is even, so that in others it covers another area than the buffer's.
    void fill_stippled_glass(int r, int g, int b);
    void fill_stippled_glass_rect(int x, int y, int w, int h, int r, int g, int b); ///< a chequer
    /// A line after Bresenham without its end point. Coordinates are taken for an index as they are, so that
    /// a column beyond the edge is one of the next row.
    void line(int x1, int y1, int x2, int y2, sglCOLORREF colour);
    void line_glass(int x1, int y1, int x2, int y2, int r, int g, int b, int a);

    // Colours of the whole picture

    void darken(int amount, sglCOLORREF key); ///< but for what matches
    /// Multiplies the pixels ahead of the first that matches; a black key matches nothing.
    void multiply_color(int r, int g, int b, sglCOLORREF key);
    void greyscale();
    /// The mean of each pixel and its eight neighbours; the outermost pixels stay.
    void blur_3x3();
    /// Maps the luminance on a gradient from c1 over c2, reached at `mid`, to c3. A `mid` of 0 stands for the
    /// luminance of c2.
    void color_tint_3(sglCOLORREF c1, sglCOLORREF c2, sglCOLORREF c3, unsigned char mid);
    void color_tint_3(sglCOLORREF c1, sglCOLORREF c2, sglCOLORREF c3, sglCOLORREF key, unsigned char mid);

    // Buttons, in the colours of the desktop; all but the second and third need a display

    void cool_stipple(); ///< turns pure magenta into a chequer
    void add_sparkle();  ///< a red star in the upper left corner, for pictures of at least 12 by 12
    void down();         ///< moves the picture by one pixel down and to the right
    void fulldown();     ///< the same twice, with the edge of a pressed button
    void draw_button_flat(sglDibEdgeStyle style);
    void draw_button_edge(int raised);

protected:
    friend class sglImageUtils; // which makes bitmaps of what it has loaded

    /// Takes an image of the buffer's size, with alpha 255 where it has none.
    void create_from_image(wxImage const & image);
    /// With an alpha plane only when has_alpha(); not ok for an empty buffer.
    wxImage create_image() const;
    /// A PNG file of the buffer's size.
    int read_png(char const * path);
    void copy_rect_from(sglDib const * other, int x, int y, sglCOLORREF key, int use_key, int use_alpha);

private:
    struct Free {
        void operator()(sglCOLORREF * pixels) const { std::free(pixels); }
    };

    int take_image(wxImage const & image);
    bool resize(int w, int h);

    std::unique_ptr<sglCOLORREF[], Free> m_pixels;
    int m_width = 0;
    int m_height = 0;
};
