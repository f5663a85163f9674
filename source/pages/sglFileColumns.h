#pragma once

/// The width of the column for file names where the letters of the alphabet, in both cases, are as wide as
/// `alphabet` in the user's font: one of two, for narrow and for wide letters.
constexpr int sgl_file_column_width(int alphabet)
{
    constexpr int wide_letter = 10;
    int const letter = (alphabet / 26 + 1) / 2;
    return letter < wide_letter ? 304 : 441;
}

/// The column for options files, at least.
inline constexpr int sgl_resource_column_width = 103;
