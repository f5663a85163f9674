#include "nls/vmrnlsParserDefaultThenLocale.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

#include "nls/vmrnlsLocaleNumbers.h"

namespace {

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n\v\f";
    auto const begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

template <class Number>
struct Parsed {
    Number value = 0; ///< what stands at the front, 0 for no number
    bool whole = false;
};

template <class Number>
Parsed<Number> parse(std::string_view text)
{
    text = trimmed(text);
    // from_chars takes a minus sign alone
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    Parsed<Number> parsed;
    auto const [end, code] = std::from_chars(text.data(), text.data() + text.size(), parsed.value);
    if (code != std::errc() || !std::isfinite(static_cast<double>(parsed.value)))
        return {};
    parsed.whole = end == text.data() + text.size();
    return parsed;
}

} // namespace

int vmrnlsParserDefaultThenLocale::parse_int(utString const & text, int & error) const
{
    auto const parsed = parse<int>(text.view());
    if (!parsed.whole)
        error = 1;
    return parsed.value;
}

double vmrnlsParserDefaultThenLocale::parse_double(utString const & text, int & error) const
{
    auto parsed = parse<double>(text.view());
    char const point = vmrnlsLocaleNumbers::decimal_point();
    if (!parsed.whole && point != '.' && text.view().find('.') == std::string_view::npos) {
        auto in_default_form = text.str();
        std::replace(in_default_form.begin(), in_default_form.end(), point, '.');
        parsed = parse<double>(in_default_form);
    }
    if (!parsed.whole)
        error = 1;
    return parsed.value;
}
