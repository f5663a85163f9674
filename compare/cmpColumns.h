#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// How many columns of a terminal the text takes; East Asian characters take two.
std::size_t cmp_width(std::string_view text);

/// The text in at most so many columns; of a longer one the middle gives way to "...".
std::string cmp_cut(std::string_view text, std::size_t width);

/// The text in lines of at most so many columns, broken at blanks, those behind the first indented by two.
std::string cmp_wrap(std::string_view text, std::size_t width);

/// Rows of cells, each column as wide as its widest cell, the last one without blanks behind it.
std::string cmp_columns(std::vector<std::vector<std::string>> const & rows);
