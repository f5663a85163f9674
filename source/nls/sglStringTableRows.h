#pragma once

#include <span>

/// One numbered message of the library's own domain.
struct sglStringTableRow {
    unsigned int id;
    char const * text; ///< the key, `context::text`, with printf conversions and [[...]] variables
};

/// All the numbered messages, in the order of their numbers.
std::span<sglStringTableRow const> sgl_string_table_rows();
