#pragma once

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

/// A chunk of a PNG file.
inline std::string kit_png_chunk(std::string const & type_and_data)
{
    auto const number = [](std::uint32_t value) {
        std::string bytes;
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes += static_cast<char>(value >> shift);
        return bytes;
    };
    std::uint32_t crc = 0xFFFFFFFF;
    for (char const byte : type_and_data) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320U : 0U);
    }
    return number(static_cast<std::uint32_t>(type_and_data.size() - 4)) + type_and_data + number(~crc);
}

/// The head of a PNG file of colours with alpha that claims a size, and the beginning of its data.
inline std::string kit_png_header(std::uint32_t width, std::uint32_t height)
{
    std::string header = "IHDR";
    for (auto const value : {width, height})
        for (int shift = 24; shift >= 0; shift -= 8)
            header += static_cast<char>(value >> shift);
    header += std::string("\x08\x06\0\0\0", 5);
    return "\x89PNG\r\n\x1a\n" + kit_png_chunk(header) +
           kit_png_chunk("IDAT" + std::string("\x78\x9c\xed\xc1\x01\x01", 6));
}

/// The head of a BMP file of 24 bits that claims a size.
inline std::string kit_bmp_header(std::int32_t width, std::int32_t height)
{
    std::string file = "BM";
    auto const append = [&](std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            file += static_cast<char>(value >> (8 * i));
    };
    append(0, 4);
    append(0, 4);
    append(54, 4);
    append(40, 4);
    append(static_cast<std::uint32_t>(width), 4);
    append(static_cast<std::uint32_t>(height), 4);
    append(1, 2);
    append(24, 2);
    for (int i = 0; i < 6; ++i)
        append(0, 4);
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
