#include "vmr/vmrResourceDeclaration.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string_view trimmed(std::string_view text)
{
    auto const begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

bool equal_ignoring_case(std::string_view a, std::string_view b)
{
    auto const lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

template <class Number>
std::optional<Number> read_number(std::string_view text)
{
    text = trimmed(text);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove_prefix(1);
    Number value{};
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

std::optional<std::string> find_choice(std::vector<std::string> const & choices, std::string_view text)
{
    // An exact match goes first: choices may differ in case or in blanks alone.
    for (auto const & choice : choices)
        if (choice == text)
            return choice;
    for (auto const & choice : choices)
        if (equal_ignoring_case(choice, trimmed(text)))
            return choice;
    return std::nullopt;
}

} // namespace

std::optional<long long> vmr_read_integer(std::string_view text)
{
    return read_number<long long>(text);
}

std::optional<double> vmr_read_real(std::string_view text)
{
    auto const value = read_number<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::string vmr_real_text(double value)
{
    if (value == 0.0)
        return "0"; // also for the negative zero
    // The shortest text of all would show a user "1e+05" for 100000.
    auto const size = std::abs(value);
    auto const format = size >= 1e-5 && size < 1e15 ? std::chars_format::fixed : std::chars_format::general;
    char buffer[64];
    return std::string(buffer, std::to_chars(buffer, buffer + sizeof buffer, value, format).ptr);
}

std::optional<std::string> vmrResourceDeclaration::canonical_integer(long long value) const
{
    auto const number = static_cast<double>(value);
    if ((minimum && number < *minimum) || (maximum && number > *maximum))
        return std::nullopt;
    return std::to_string(value);
}

std::optional<std::string> vmrResourceDeclaration::canonical_real(double value) const
{
    if (!std::isfinite(value) || (minimum && value < *minimum) || (maximum && value > *maximum))
        return std::nullopt;
    return vmr_real_text(value);
}

std::optional<std::string> vmrResourceDeclaration::canonical(std::string_view text) const
{
    switch (kind) {
    case vmrResourceKind::boolean:
        return find_choice({"true", "false"}, text);
    case vmrResourceKind::integer: {
        auto const value = vmr_read_integer(text);
        return value ? canonical_integer(*value) : std::nullopt;
    }
    case vmrResourceKind::real: {
        auto const value = vmr_read_real(text);
        return value ? canonical_real(*value) : std::nullopt;
    }
    case vmrResourceKind::choice:
        return find_choice(choices, text);
    case vmrResourceKind::text:
        break;
    }
    return std::string(text);
}
