#include "iges/igesParameters.h"

#include "sdk/sdkLimits.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace {

constexpr std::size_t data_columns = 64;
constexpr std::size_t letter_column = 72;
constexpr std::size_t pointer_columns = 8; // in front of it, in the parameter section

std::int64_t whole_number(std::string_view text)
{
    auto const begin = std::min(text.find_first_not_of(" +"), text.size());
    std::int64_t value = 0;
    std::from_chars(text.data() + begin, text.data() + text.size(), value);
    return value;
}

// Numbers of Fortran may have D in place of E, and blanks about them.
bool is_usable(std::string_view word)
{
    auto const begin = word.find_first_not_of(' ');
    if (begin == std::string_view::npos) {
        return true;
    }
    word = word.substr(begin, word.find_last_not_of(' ') - begin + 1);
    auto const exponent = word.find_first_of("EeDd");
    auto const digits = exponent == std::string_view::npos ? 0 : word.size() - exponent - 1;
    bool const plain = word.find_first_not_of("0123456789.+-EeDd") == std::string_view::npos;
    bool const small = digits < 3 || (digits < 4 && (word[exponent + 1] == '-' || word[exponent + 1] == '+'));
    if (plain && small && word.size() < data_columns) {
        return true;
    }
    std::string number(word.substr(word.front() == '+' ? 1 : 0));
    std::replace_if(
        number.begin(), number.end(), [](char one) { return one == 'D' || one == 'd'; }, 'E');
    double value = 0;
    auto const result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ptr != number.data() + number.size() || result.ec == std::errc::invalid_argument) {
        return false;
    }
    bool const tiny = result.ec == std::errc::result_out_of_range && number.find("E-") != std::string::npos;
    return tiny || (result.ec == std::errc() && sdk_usable(value));
}

// The delimiters of parameters and of records, which the global section may change.
std::pair<char, char> delimiters_of(std::string_view global)
{
    char parameter = ',';
    char record = ';';
    if (global.starts_with("1H") && global.size() > 3) {
        parameter = global[2];
        global.remove_prefix(4);
    } else if (!global.empty()) {
        global.remove_prefix(1);
    }
    if (global.starts_with("1H") && global.size() > 2) {
        record = global[2];
    }
    return {parameter, record};
}

class Section {
public:
    explicit Section(std::function<void(igesParameters const &)> const & take) : m_take(take) {}

    void add(std::string_view record)
    {
        auto const column = column_of_letter(record);
        if (column == std::string_view::npos) {
            return;
        }
        auto const letter = record[column];
        if (letter == 'G' && m_global.size() < 2 * data_columns) {
            m_global += record.substr(0, letter_column);
        } else if (letter == 'P') {
            auto const directory = whole_number(record.substr(column - pointer_columns, pointer_columns));
            if (directory != m_directory) {
                finish();
                m_directory = directory;
            }
            m_data += record.substr(0, data_columns);
        }
    }

    void finish()
    {
        if (!m_data.empty()) {
            read();
            m_data.clear();
        }
    }

private:
    // Records that were shifted are read by the library as well.
    static std::size_t column_of_letter(std::string_view record)
    {
        constexpr std::string_view letters = "SGDPT";
        if (record.size() > letter_column && letters.find(record[letter_column]) != std::string_view::npos) {
            return letter_column;
        }
        auto const column = record.find_last_of(letters);
        return column != std::string_view::npos && column >= data_columns ? column : std::string_view::npos;
    }

    void read()
    {
        auto const [parameter, record] = delimiters_of(m_global);
        igesParameters found;
        found.directory = static_cast<int>(m_directory);
        std::string_view rest = m_data;
        for (std::int64_t number = 0;; ++number) {
            auto const end = end_of_parameter(rest, parameter, record);
            auto const word = rest.substr(0, end);
            if (number == 0) {
                found.type = static_cast<int>(whole_number(word));
            } else {
                found.count = number;
                if (number <= static_cast<std::int64_t>(found.first.size())) {
                    found.first[static_cast<std::size_t>(number - 1)] = whole_number(word);
                }
                if (found.bad.empty() && !is_text(word) && !is_usable(word)) {
                    found.bad = word;
                }
            }
            if (end >= rest.size() || rest[end] == record) {
                break;
            }
            rest.remove_prefix(end + 1);
        }
        m_take(found);
    }

    static std::size_t digits_of_text(std::string_view word)
    {
        auto const begin = std::min(word.find_first_not_of(' '), word.size());
        auto const end = word.find_first_not_of("0123456789", begin);
        return end != std::string_view::npos && end > begin && word[end] == 'H' ? end : 0;
    }

    static bool is_text(std::string_view word) { return digits_of_text(word) > 0; }

    // A text such as 5HABC;D may have delimiters within.
    static std::size_t end_of_parameter(std::string_view rest, char parameter, char record)
    {
        std::size_t from = 0;
        if (auto const letter = digits_of_text(rest); letter > 0) {
            auto const length = whole_number(rest.substr(0, letter));
            from = length < static_cast<std::int64_t>(rest.size() - letter)
                       ? letter + 1 + static_cast<std::size_t>(length)
                       : rest.size();
        }
        while (from < rest.size() && rest[from] != parameter && rest[from] != record) {
            ++from;
        }
        return from;
    }

    std::function<void(igesParameters const &)> const & m_take;
    std::string m_global;
    std::string m_data;
    std::int64_t m_directory = 0;
};

} // namespace

void iges_each_parameters(std::string_view text, std::function<void(igesParameters const &)> const & take)
{
    Section section(take);
    while (!text.empty()) {
        auto const length = std::min(text.find('\n'), text.size());
        section.add(text.substr(0, length));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    section.finish();
}
