#include "iio/iioPictureHead.h"

namespace {

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

struct Head {
    std::uint64_t width = 0;
    std::uint64_t height = 0;
    std::uint64_t bits = 0;   ///< of a pixel, where all pixels have as many; else 0
    std::uint64_t offset = 0; ///< of the rows in the file
};

Head png_head(std::string_view file)
{
    return {big_endian(file.substr(16, 4)), big_endian(file.substr(20, 4)), 0, 0};
}

Head bmp_head(std::string_view file)
{
    auto const offset = little_endian(file.substr(10, 4));
    bool const short_header = little_endian(file.substr(14, 4)) == 12;
    if (short_header)
        return {little_endian(file.substr(18, 2)), little_endian(file.substr(20, 2)),
                little_endian(file.substr(24, 2)), offset};
    auto const height = static_cast<std::int32_t>(little_endian(file.substr(22, 4)));
    constexpr std::uint64_t plain = 0, with_masks = 3;
    // A head that ends here belongs to a file that is cut off.
    auto const compression = file.size() < 34 ? plain : little_endian(file.substr(30, 4));
    bool const has_rows = compression == plain || compression == with_masks;
    // A negative height says that the rows begin at the top.
    return {little_endian(file.substr(18, 4)),
            static_cast<std::uint64_t>(height < 0 ? -std::int64_t(height) : height),
            has_rows && file.size() >= 30 ? little_endian(file.substr(28, 2)) : 0, offset};
}

/// Up to the last pixel; not all programs fill the last row up to four bytes as they should.
std::uint64_t length_of_rows(Head const & head)
{
    if (head.width == 0 || head.height == 0)
        return 0;
    auto const row = (head.width * head.bits + 31) / 32 * 4;
    return row * (head.height - 1) + (head.width * head.bits + 7) / 8;
}

} // namespace

char const * iio_objection(std::string_view file)
{
    bool const is_png = file.starts_with("\x89PNG\r\n\x1a\n");
    if (file.size() < 26 || (!is_png && !file.starts_with("BM")))
        return nullptr;
    Head const head = is_png ? png_head(file) : bmp_head(file);
    if (head.width * head.height > iio_most_pixels)
        return "the picture is too large";
    if (head.bits > 0 && head.offset + length_of_rows(head) > file.size())
        return "the picture is damaged (cut off)";
    return nullptr;
}
