#pragma once

#include "kit/kitPictureHead.h"
#include "sglDib.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <png.h>
#include <string>
#include <vector>

// Picture files made without the code that reads them.

/// A PNG file of pixels that begin with the top row.
inline std::string kit_png(int width, int height, std::vector<sglCOLORREF> const & pixels, bool alpha)
{
    std::vector<std::uint8_t> bytes;
    for (auto const pixel : pixels) {
        bytes.insert(bytes.end(), {pixel.red, pixel.green, pixel.blue});
        if (alpha)
            bytes.push_back(pixel.alpha);
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = alpha ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
    png_alloc_size_t size = 0;
    EXPECT_TRUE(png_image_write_to_memory(&image, nullptr, &size, 0, bytes.data(), 0, nullptr));
    std::string file(size, '\0');
    EXPECT_TRUE(png_image_write_to_memory(&image, file.data(), &size, 0, bytes.data(), 0, nullptr));
    file.resize(size);
    return file;
}

/// A PNG file of black pixels without colours or alpha.
inline std::string kit_grey_png(int width, int height)
{
    std::vector<std::uint8_t> const bytes(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_GRAY;
    image.flags = PNG_IMAGE_FLAG_FAST;
    png_alloc_size_t size = 0;
    EXPECT_TRUE(png_image_write_to_memory(&image, nullptr, &size, 0, bytes.data(), 0, nullptr));
    std::string file(size, '\0');
    EXPECT_TRUE(png_image_write_to_memory(&image, file.data(), &size, 0, bytes.data(), 0, nullptr));
    file.resize(size);
    return file;
}

/// A BMP file of pixels that begin with the top row.
inline std::string kit_bmp(int width, int height, std::vector<sglCOLORREF> const & pixels)
{
    std::string file = kit_bmp_header(width, height);
    for (int y = height - 1; y >= 0; --y) {
        for (int x = 0; x < width; ++x) {
            auto const pixel = pixels[static_cast<std::size_t>(y * width + x)];
            file +=
                {static_cast<char>(pixel.blue), static_cast<char>(pixel.green), static_cast<char>(pixel.red)};
        }
        file.append(static_cast<std::size_t>(width % 4), '\0');
    }
    return file;
}
