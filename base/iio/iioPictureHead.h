#pragma once

#include <cstdint>
#include <string_view>

/// A picture of more pixels is read by nobody: its colours alone would be 128 MiB.
inline constexpr std::uint64_t iio_most_pixels = std::uint64_t(32) << 20;

/// What the head of a PNG or BMP file says against reading its picture, before memory is taken for that: it
/// has more pixels than iio_most_pixels, or the file is shorter than its rows. Null when there is nothing to
/// say, or the file is of another kind. Any thread.
char const * iio_objection(std::string_view file);
