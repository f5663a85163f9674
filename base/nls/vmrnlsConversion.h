#pragma once

#include <cstddef>
#include <string_view>

/// One printf conversion in a message text: flags, width, precision and one of s d i o u x X c f F e E g G,
/// or "%%". Length modifiers are read over, for the arguments know their types. An argument may be named by
/// its number, as in %2$s. What is anything else (%n, %p, %*d, a width of more than three digits) is no
/// conversion but plain text.
struct vmrnlsConversion {
    std::size_t begin = 0; ///< of the percent sign in the text
    std::size_t end = 0;   ///< behind the last byte
    char kind = 0;         ///< the letter, '%' for "%%"
    int argument = 0;      ///< number of the argument, from 1; 0 for the next one
    int width = -1;
    int precision = -1;
    bool left = false, plus = false, blank = false, alternate = false, zero = false;

    bool is_integer() const { return std::string_view("diouxX").find(kind) != std::string_view::npos; }
    bool is_real() const { return std::string_view("fFeEgG").find(kind) != std::string_view::npos; }

    /// Finds the first conversion at or behind `from`. False, with `found` unchanged, when there is none.
    static bool next(std::string_view text, std::size_t from, vmrnlsConversion & found);
};

/// True when two texts take the same arguments: as many of them, each as a text, an integer, a character or a
/// real number. The order may differ where one of the texts numbers its arguments.
bool vmrnls_same_arguments(std::string_view a, std::string_view b);
