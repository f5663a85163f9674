// The ways between a buffer and the toolkit's images, bitmaps and device contexts, and files.

#include "sglDib.h"

#include "sglDibRows.h"
#include "sglPictureFile.h"
#include "sglPixelBlocks.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

sglCOLORREF wx_to_ref(wxSystemColour colour)
{
    wxColour const system = wxSystemSettings::GetColour(colour);
    return sglCOLORREF::from_channels(system.Red(), system.Green(), system.Blue());
}

void sglDib::create_from_image(wxImage const & image)
{
    if (!image.IsOk() || image.GetWidth() != m_width || image.GetHeight() != m_height)
        return;
    unsigned char const * rgb = image.GetData();
    unsigned char const * alpha = image.HasAlpha() ? image.GetAlpha() : nullptr;
    // The image's rows come from the top.
    for (int y = m_height - 1; y >= 0; --y) {
        auto * const row = pixels() + sgl_index(*this, 0, y);
        for (int x = 0; x < m_width; ++x, rgb += 3)
            row[x] = sglCOLORREF::from_channels(rgb[0], rgb[1], rgb[2], alpha ? *alpha++ : 255);
    }
}

wxImage sglDib::create_image() const
{
    if (!pixels())
        return {};
    wxImage image(m_width, m_height, false);
    if (!image.IsOk())
        return {};
    if (has_alpha())
        image.SetAlpha();
    unsigned char * rgb = image.GetData();
    unsigned char * alpha = image.GetAlpha();
    for (int y = m_height - 1; y >= 0; --y) {
        auto const * const row = pixels() + sgl_index(*this, 0, y);
        for (int x = 0; x < m_width; ++x, rgb += 3) {
            rgb[0] = row[x].red;
            rgb[1] = row[x].green;
            rgb[2] = row[x].blue;
            if (alpha)
                *alpha++ = row[x].alpha;
        }
    }
    return image;
}

int sglDib::take_image(wxImage const & image)
{
    if (!image.IsOk() || !resize(image.GetWidth(), image.GetHeight()))
        return 0;
    create_from_image(image);
    return 1;
}

int sglDib::set_bitmap(wxBitmap * bitmap)
{
    return bitmap && bitmap->IsOk() ? take_image(bitmap->ConvertToImage()) : 0;
}

int sglDib::get_bitmap(wxBitmap & bitmap) const
{
    if (!pixels() || !bitmap.IsOk() || bitmap.GetWidth() != m_width || bitmap.GetHeight() != m_height)
        return 0;
    bitmap = wxBitmap(create_image());
    return bitmap.IsOk() ? 1 : 0;
}

void sglDib::copy_from_dc(wxDC * dc, int x, int y, int w, int h)
{
    if (!dc || w < 1 || h < 1 || !resize(w, h))
        return;
    wxBitmap bitmap(w, h);
    wxMemoryDC memory(bitmap);
    dc->Blit(0, 0, w, h, &memory, x, y, wxCOPY);
    memory.SelectObject(wxNullBitmap);
    set_bitmap(&bitmap);
}

void sglDib::copy_to_dc(wxDC * dc, int x, int y) const
{
    if (dc && pixels())
        dc->DrawBitmap(wxBitmap(create_image()), x, y, false);
}

int sglDib::load_bitmap_from_file(utString const & path)
{
    wxImage image;
    return sgl_read_picture(path, wxBITMAP_TYPE_ANY, image) ? take_image(image) : 0;
}

int sglDib::load_bitmap_transparent_from_file(utString const & path, sglCOLORREF key)
{
    if (!load_bitmap_from_file(path))
        return 0;
    sglKey const transparent(key);
    if (!transparent.active)
        return 1;
    auto const face = wx_to_ref(wxSYS_COLOUR_BTNFACE);
    for (std::size_t i = 0; i < count(); ++i)
        if (transparent.matches(m_pixels[i]))
            m_pixels[i] = face;
    return 1;
}

int sglDib::read_png(char const * path)
{
    wxImage image;
    if (!sgl_read_picture(utString(path), wxBITMAP_TYPE_PNG, image) || image.GetWidth() != m_width ||
        image.GetHeight() != m_height)
        return 0;
    create_from_image(image);
    return 1;
}
