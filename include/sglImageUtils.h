#pragma once

#include <wx/bitmap.h>
#include <wx/colour.h>

#include "sglDib.h"
#include "ut/utString.h"

/// Finds the image files of the installation by name and makes bitmaps of them. A file that is missing, that
/// is no image or that would fill the memory gives a bitmap that is not ok, and no message. Graphical thread;
/// needs a display.
class sglImageUtils {
public:
    /// With `handle_alpha`, images with alpha are flattened on the blend colour: at first that of a button's
    /// face.
    explicit sglImageUtils(int handle_alpha);

    void handle_alpha(int handle) { m_handle_alpha = handle; }
    void set_blend_colour(wxColour const & colour) { m_blend_colour = colour; }

    wxBitmap load_bitmap_file(utString const & name) const; ///< a plain BMP file
    /// With `transparent`, what is pure magenta takes the colour of a button's face, before alpha is looked
    /// at.
    wxBitmap load_image_file(utString const & name, int transparent) const;
    wxBitmap load_button_image_file(utString const & name, int transparent) const; ///< the same, for buttons
    /// The picture flattened on the blend colour; as it stands when it has no alpha.
    wxBitmap blend_image(sglDib const & picture) const;

protected:
    int load_image(utString const & name, int transparent, sglDib & picture) const;

private:
    int m_handle_alpha;
    wxColour m_blend_colour;
};
