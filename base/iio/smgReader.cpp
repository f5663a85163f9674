#include "iio/smgReader.h"

#include <memory>
#include <new>
#include <string>

#include "ap/apPosixOperations.h"
#include "iio/iioPictureHead.h"

#define STBI_ONLY_PNG
#define STBI_ONLY_BMP
#define STBI_NO_STDIO
#define STB_IMAGE_STATIC
#define STB_IMAGE_IMPLEMENTATION
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function" // the library's other entries
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

namespace {

int fail(apPathName const & file, std::string const & reason, utString & error)
{
    error = utString(file.utf8() + ": " + reason);
    return 0;
}

int read_picture(apPathName const & file, iioImage & image, utString & error)
{
    std::string content;
    if (auto const result = apPosixFileOperations().read_file(file, content); !result)
        return fail(file, result.message().str(), error);
    if (char const * const objection = iio_objection(content))
        return fail(file, objection, error);
    auto const * const bytes = reinterpret_cast<stbi_uc const *>(content.data());
    auto const size = static_cast<int>(content.size());
    int width = 0;
    int height = 0;
    int channels = 0;
    if (!stbi_info_from_memory(bytes, size, &width, &height, &channels))
        return fail(file, "this is no PNG or BMP picture", error);
    std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> const picture(
        stbi_load_from_memory(bytes, size, &width, &height, &channels, STBI_rgb_alpha), &stbi_image_free);
    if (!picture)
        return fail(file, std::string("the picture is damaged (") + stbi_failure_reason() + ")", error);
    auto const pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    image.rgba.assign(picture.get(), picture.get() + 4 * pixels);
    image.width = width;
    image.height = height;
    return 1;
}

} // namespace

int smgReader::read(apPathName const & file, iioImage & image, utString & error) const
{
    try {
        return read_picture(file, image, error);
    } catch (std::bad_alloc const &) {
        return fail(file, "there is not enough memory for the picture", error);
    }
}
