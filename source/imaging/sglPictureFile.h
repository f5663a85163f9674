#pragma once

#include <wx/image.h>

#include "ut/utString.h"

/// Reads a picture from a file. Pictures reach the program from outside, so files of more than 64 MiB and
/// pictures of more pixels than iio_most_pixels are refused before memory is taken for them. Returns false,
/// with no message from the toolkit, when there is no picture to be had, nor memory for one; `image` is then
/// not ok.
bool sgl_read_picture(utString const & path, wxBitmapType type, wxImage & image);
