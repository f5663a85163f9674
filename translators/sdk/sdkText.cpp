#include "sdk/sdkText.h"

#include <cstdio>

namespace {

std::string_view without_context(std::string_view key)
{
    auto const separator = key.find("::");
    return separator == std::string_view::npos ? key : key.substr(separator + 2);
}

// The length of the conversion at the head of the text, which begins with a percent sign; 0 when it is none.
std::size_t conversion_length(std::string_view text)
{
    auto const end = text.find_first_not_of("-+ #0123456789.", 1);
    if (end == std::string_view::npos ||
        std::string_view("sdigfe").find(text[end]) == std::string_view::npos) {
        return 0;
    }
    return end + 1;
}

bool fits_argument(char conversion, sdkArgument const & argument)
{
    switch (conversion) {
    case 's':
        return std::holds_alternative<std::string>(argument);
    case 'd':
    case 'i':
        return std::holds_alternative<std::int64_t>(argument);
    default:
        return std::holds_alternative<double>(argument);
    }
}

std::string formatted_argument(std::string conversion, sdkArgument const & argument)
{
    if (auto const * text = std::get_if<std::string>(&argument)) {
        return text->starts_with("term::") ? std::string(without_context(*text)) : *text;
    }
    char buffer[64];
    int length = 0;
    if (auto const * integer = std::get_if<std::int64_t>(&argument)) {
        conversion.insert(conversion.size() - 1, "l");
        length = std::snprintf(buffer, sizeof buffer, conversion.c_str(), static_cast<long>(*integer));
    } else {
        length = std::snprintf(buffer, sizeof buffer, conversion.c_str(), std::get<double>(argument));
    }
    return length > 0 && length < static_cast<int>(sizeof buffer) ? std::string(buffer) : conversion;
}

// Walks the text; gives each literal stretch to `literal` and each conversion to `conversion`.
template <class Literal, class Conversion>
void walk(std::string_view text, Literal literal, Conversion conversion)
{
    while (!text.empty()) {
        auto const percent = text.find('%');
        literal(text.substr(0, percent));
        if (percent == std::string_view::npos) {
            return;
        }
        text.remove_prefix(percent);
        if (text.starts_with("%%")) {
            literal("%");
            text.remove_prefix(2);
        } else if (auto const length = conversion_length(text)) {
            conversion(text.substr(0, length));
            text.remove_prefix(length);
        } else {
            literal("%");
            text.remove_prefix(1);
        }
    }
}

} // namespace

bool sdkText::fits() const
{
    std::size_t used = 0;
    bool fit = true;
    walk(
        without_context(m_key), [](std::string_view) {},
        [&](std::string_view conversion) {
            fit = fit && used < m_arguments.size() && fits_argument(conversion.back(), m_arguments[used]);
            ++used;
        });
    return fit && used == m_arguments.size();
}

std::string sdkText::formatted() const
{
    std::string result;
    std::size_t used = 0;
    walk(
        without_context(m_key), [&](std::string_view text) { result += text; },
        [&](std::string_view conversion) {
            if (used < m_arguments.size() && fits_argument(conversion.back(), m_arguments[used])) {
                result += formatted_argument(std::string(conversion), m_arguments[used]);
            } else {
                result += conversion;
            }
            ++used;
        });
    return result;
}
