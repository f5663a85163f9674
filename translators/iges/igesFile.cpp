#include "iges/igesFile.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::size_t letter_column = 72;

// The number after the letter of a section in the terminate record, as in "S      1G      4D    100P    200".
std::int64_t count_of(std::string_view record, char section)
{
    auto const letter = record.substr(0, letter_column).find(section);
    if (letter == std::string_view::npos) {
        return 0;
    }
    auto digits = record.substr(letter + 1, 7);
    digits.remove_prefix(std::min(digits.find_first_not_of(' '), digits.size()));
    std::int64_t count = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), count);
    return count;
}

} // namespace

igesFile::igesFile(std::string_view text)
{
    bool first = true;
    while (!text.empty() && !ends) {
        auto const length = std::min(text.find('\n'), text.size());
        auto const record = text.substr(0, length);
        text.remove_prefix(std::min(length + 1, text.size()));
        char const section = record.size() > letter_column ? record[letter_column] : ' ';
        if (first) {
            first = false;
            begins = section == 'S';
            other_form = section == 'C' || section == 'B' || record.starts_with("B");
            if (!begins) {
                return;
            }
        } else if (section == 'D') {
            ++directory_records;
        } else if (section == 'T') {
            ends = true;
            directory_records_promised = count_of(record, 'D');
        }
    }
}
