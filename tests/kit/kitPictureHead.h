#pragma once

#include <cstdint>
#include <string>

// Beginnings of picture files made without the code that reads them.

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

/// The head of a BMP file that claims a size; of up to 8 bits with a palette of greys from black to white.
/// `compression` is 1 for runs of equal pixels.
inline std::string kit_bmp_header(std::int32_t width, std::int32_t height, unsigned bits = 24,
                                  unsigned compression = 0)
{
    std::string file = "BM";
    auto const append = [&](std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            file += static_cast<char>(value >> (8 * i));
    };
    unsigned const colours = bits <= 8 ? 1U << bits : 0;
    append(0, 4);
    append(0, 4);
    append(54 + 4 * colours, 4);
    append(40, 4);
    append(static_cast<std::uint32_t>(width), 4);
    append(static_cast<std::uint32_t>(height), 4);
    append(1, 2);
    append(bits, 2);
    append(compression, 4);
    for (int i = 0; i < 5; ++i)
        append(0, 4);
    for (unsigned colour = 0; colour < colours; ++colour)
        append(0x010101 * (colour * 255 / (colours - 1)), 4);
    return file;
}
