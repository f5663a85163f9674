#include "sglImageUtils.h"

#include "sglApp.h"

#include "sdb/sdbSchemaDir.h"

#include "sglPictureFile.h"

#include <wx/image.h>

namespace {

utString find_image(utString const & name)
{
    return sglApp::app().file_locator().schema_dir(sdbHRKDirectory::xrc).find_file(name);
}

} // namespace

sglImageUtils::sglImageUtils(int handle_alpha)
    : m_handle_alpha(handle_alpha), m_blend_colour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE))
{
}

wxBitmap sglImageUtils::load_bitmap_file(utString const & name) const
{
    wxImage image;
    utString const file = find_image(name);
    if (file.invalid() || !sgl_read_picture(file, wxBITMAP_TYPE_BMP, image))
        return {};
    return wxBitmap(image);
}

int sglImageUtils::load_image(utString const & name, int transparent, sglDib & picture) const
{
    utString const file = find_image(name);
    if (file.empty())
        return 0;
    sglCOLORREF const magenta(0x00FF00FF);
    return transparent ? picture.load_bitmap_transparent_from_file(file, magenta)
                       : picture.load_bitmap_from_file(file);
}

wxBitmap sglImageUtils::load_image_file(utString const & name, int transparent) const
{
    sglDib picture;
    if (!load_image(name, transparent, picture))
        return {};
    if (m_handle_alpha && picture.has_alpha())
        return blend_image(picture);
    return wxBitmap(picture.create_image());
}

wxBitmap sglImageUtils::load_button_image_file(utString const & name, int transparent) const
{
    return load_image_file(name, transparent);
}

wxBitmap sglImageUtils::blend_image(sglDib const & picture) const
{
    if (!picture.pixels())
        return {};
    if (!picture.has_alpha())
        return wxBitmap(picture.create_image());
    sglDib flat;
    if (!flat.create(picture.width(), picture.height()))
        return {};
    flat.fill(
        sglCOLORREF::from_channels(m_blend_colour.Red(), m_blend_colour.Green(), m_blend_colour.Blue()));
    flat.copy_rect_from_alpha(&picture, 0, 0);
    return wxBitmap(flat.create_image());
}
