#include "nls/vmrnlsConversion.h"

#include <string>

namespace {

constexpr char no_argument = '?';
constexpr char contradiction = '!';

/// Reads up to three digits; -1 when there is none, -2 when there are more.
int small_number(std::string_view text, std::size_t & position)
{
    int value = -1;
    int digits = 0;
    for (; position < text.size() && text[position] >= '0' && text[position] <= '9'; ++position) {
        if (++digits > 3)
            return -2;
        value = (value < 0 ? 0 : value) * 10 + (text[position] - '0');
    }
    return value;
}

void read_argument_number(std::string_view text, std::size_t & position, vmrnlsConversion & conversion)
{
    auto ahead = position;
    int const number = small_number(text, ahead);
    if (number > 0 && ahead < text.size() && text[ahead] == '$') {
        conversion.argument = number;
        position = ahead + 1;
    }
}

bool read_flag(char c, vmrnlsConversion & conversion)
{
    switch (c) {
    case '-':
        return conversion.left = true;
    case '+':
        return conversion.plus = true;
    case ' ':
        return conversion.blank = true;
    case '#':
        return conversion.alternate = true;
    case '0':
        return conversion.zero = true;
    default:
        return false;
    }
}

bool read(std::string_view text, std::size_t percent, vmrnlsConversion & conversion)
{
    conversion = {};
    conversion.begin = percent;
    auto position = percent + 1;
    if (position < text.size() && text[position] == '%') {
        conversion.kind = '%';
        conversion.end = position + 1;
        return true;
    }
    read_argument_number(text, position, conversion);
    while (position < text.size() && read_flag(text[position], conversion))
        ++position;
    conversion.width = small_number(text, position);
    if (position < text.size() && text[position] == '.') {
        conversion.precision = small_number(text, ++position);
        if (conversion.precision == -1)
            conversion.precision = 0;
    }
    if (conversion.width == -2 || conversion.precision == -2)
        return false;
    position = text.find_first_not_of("hlLqjzt", position);
    if (position == std::string_view::npos)
        return false;
    conversion.kind = text[position];
    conversion.end = position + 1;
    return conversion.is_integer() || conversion.is_real() || conversion.kind == 's' ||
           conversion.kind == 'c';
}

/// One letter for each argument that a text takes, in the order of the arguments.
std::string argument_kinds(std::string_view text)
{
    std::string kinds;
    std::size_t sequential = 0;
    bool numbered = false;
    vmrnlsConversion conversion;
    for (std::size_t from = 0; vmrnlsConversion::next(text, from, conversion); from = conversion.end) {
        if (conversion.kind == '%')
            continue;
        numbered = numbered || conversion.argument != 0;
        std::size_t const index =
            conversion.argument ? static_cast<std::size_t>(conversion.argument - 1) : sequential++;
        if (kinds.size() <= index)
            kinds.resize(index + 1, no_argument);
        char const kind = conversion.is_integer() ? 'd' : conversion.is_real() ? 'f' : conversion.kind;
        kinds[index] = kinds[index] == no_argument || kinds[index] == kind ? kind : contradiction;
    }
    return numbered && sequential ? std::string(1, contradiction) : kinds;
}

} // namespace

bool vmrnlsConversion::next(std::string_view text, std::size_t from, vmrnlsConversion & found)
{
    for (auto percent = text.find('%', from); percent != std::string_view::npos;
         percent = text.find('%', percent + 1)) {
        vmrnlsConversion conversion;
        if (read(text, percent, conversion)) {
            found = conversion;
            return true;
        }
    }
    return false;
}

bool vmrnls_same_arguments(std::string_view a, std::string_view b)
{
    auto const kinds = argument_kinds(a);
    return kinds == argument_kinds(b) && kinds.find(contradiction) == std::string::npos;
}
