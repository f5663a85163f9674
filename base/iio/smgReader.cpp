#include "iio/smgReader.h"

#include <memory>
#include <string>

#include "ap/apPosixOperations.h"

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

constexpr std::size_t largest_picture = 100'000'000;

int fail(apPathName const & file, std::string const & reason, utString & error)
{
    error = utString(file.utf8() + ": " + reason);
    return 0;
}

} // namespace

int smgReader::read(apPathName const & file, iioImage & image, utString & error) const
{
    std::string content;
    if (auto const result = apPosixFileOperations().read_file(file, content); !result)
        return fail(file, result.message().str(), error);
    auto const * const bytes = reinterpret_cast<stbi_uc const *>(content.data());
    auto const size = static_cast<int>(content.size());
    int width = 0;
    int height = 0;
    int channels = 0;
    if (!stbi_info_from_memory(bytes, size, &width, &height, &channels))
        return fail(file, "this is no PNG or BMP picture", error);
    auto const pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (pixels > largest_picture)
        return fail(file, "the picture is too large", error);
    std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> const picture(
        stbi_load_from_memory(bytes, size, &width, &height, &channels, STBI_rgb_alpha), &stbi_image_free);
    if (!picture)
        return fail(file, std::string("the picture is damaged (") + stbi_failure_reason() + ")", error);
    image.width = width;
    image.height = height;
    image.rgba.assign(picture.get(), picture.get() + 4 * pixels);
    return 1;
}
