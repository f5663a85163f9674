#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ut/utString.h"

/// The text of a startup settings file, which keeps every line that it does not change:
///
///     file    = [byte order mark] line*
///     line    = blanks ["#" anything] | key "=" value | anything else, which is kept and ignored
///     escapes = \n \r \t, \s for a blank, \\ and \xHH for any byte, in keys and values
///
/// Blanks around key and value do not count, of two lines with one key the last one counts, and lines may end
/// in
/// "\r\n". A backslash before any other character stands for itself.
class sduStartupFile {
public:
    sduStartupFile() = default;
    explicit sduStartupFile(std::string_view text);

    utString find(utString const & key) const;              ///< invalid when there is no such field
    void set(utString const & key, utString const & value); ///< an invalid value removes the field
    std::string text() const;

private:
    struct Line {
        std::string text; ///< as in the file, without "\n"
        std::optional<std::string> key;
    };
    std::vector<Line> m_lines;
    bool m_carriage_returns = false;
    bool m_byte_order_mark = false;
};
