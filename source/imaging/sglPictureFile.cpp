#include "sglPictureFile.h"

#include "ap/apPosixOperations.h"
#include "iio/iioPictureHead.h"

#include <new>
#include <string>
#include <wx/imagpng.h>
#include <wx/log.h>
#include <wx/mstream.h>

namespace {

/// The toolkit starts with a handler for BMP files only.
void have_handlers()
{
    if (!wxImage::FindHandler(wxBITMAP_TYPE_PNG))
        wxImage::AddHandler(new wxPNGHandler);
}

bool read_picture(utString const & path, wxBitmapType type, wxImage & image)
{
    // Read here and not by the toolkit, which opens directories and does not know every file name.
    std::string content;
    if (!apPosixFileOperations().read_file(apPathName::from_utf8(path.view()), content))
        return false;
    if (iio_objection(content))
        return false;
    have_handlers();
    wxLogNull const quiet;
    wxMemoryInputStream stream(content.data(), content.size());
    return image.LoadFile(stream, type) && image.IsOk();
}

} // namespace

bool sgl_read_picture(utString const & path, wxBitmapType type, wxImage & image)
{
    image.Destroy();
    try {
        return read_picture(path, type, image);
    } catch (std::bad_alloc const &) {
        image.Destroy();
        return false;
    }
}
