#pragma once

#include "stl/stlInput.h"

// A binary file has 80 bytes of any text, the number of triangles as 32 bits, and for each triangle normal
// and three corners as twelve 32-bit floats and two bytes without agreed meaning. All of it is little-endian.
inline constexpr std::size_t stl_header_size = 84;

// The number of triangles that a file promises, which has a whole header.
std::uint32_t stl_binary_count(std::string_view content);
// The number of bytes of a file with so many triangles.
std::uint64_t stl_binary_size(std::uint32_t count);

// Reads the triangles into one solid.
sdkResult stl_parse_binary(std::string_view content, stlInput & input, Message_ProgressRange const & range);
