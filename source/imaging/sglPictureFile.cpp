#include "sglPictureFile.h"

#include "ap/apPosixOperations.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <wx/imagpng.h>
#include <wx/log.h>
#include <wx/mstream.h>

namespace {

constexpr std::uint64_t most_pixels = std::uint64_t(32) << 20;

std::uint64_t little_endian(std::string_view bytes)
{
    std::uint64_t value = 0;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte)
        value = value << 8 | static_cast<unsigned char>(*byte);
    return value;
}

std::uint64_t big_endian(std::string_view bytes)
{
    std::uint64_t value = 0;
    for (char const byte : bytes)
        value = value << 8 | static_cast<unsigned char>(byte);
    return value;
}

/// The count of pixels that the head of a PNG or BMP file claims; nothing for another kind of file.
std::optional<std::uint64_t> claimed_pixels(std::string_view file)
{
    if (file.size() >= 26 && file.starts_with("\x89PNG\r\n\x1a\n"))
        return big_endian(file.substr(16, 4)) * big_endian(file.substr(20, 4));
    if (file.size() >= 26 && file.starts_with("BM")) {
        bool const short_header = little_endian(file.substr(14, 4)) == 12;
        if (short_header)
            return little_endian(file.substr(18, 2)) * little_endian(file.substr(20, 2));
        auto const height = static_cast<std::int32_t>(little_endian(file.substr(22, 4)));
        // A negative height says that the rows begin at the top.
        return little_endian(file.substr(18, 4)) *
               static_cast<std::uint64_t>(height < 0 ? -std::int64_t(height) : height);
    }
    return {};
}

/// The toolkit starts with a handler for BMP files only.
void have_handlers()
{
    if (!wxImage::FindHandler(wxBITMAP_TYPE_PNG))
        wxImage::AddHandler(new wxPNGHandler);
}

} // namespace

bool sgl_read_picture(utString const & path, wxBitmapType type, wxImage & image)
{
    image.Destroy();
    // Read here and not by the toolkit, which opens directories and does not know every file name.
    std::string content;
    if (!apPosixFileOperations().read_file(apPathName::from_utf8(path.view()), content))
        return false;
    if (claimed_pixels(content).value_or(0) > most_pixels)
        return false;
    have_handlers();
    wxLogNull const quiet;
    wxMemoryInputStream stream(content.data(), content.size());
    return image.LoadFile(stream, type) && image.IsOk();
}
