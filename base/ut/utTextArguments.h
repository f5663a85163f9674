#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "ut/utString.h"

/// One argument of a message text: it knows its own type, so that a text whose conversions do not fit the
/// arguments can never read beyond them.
using utTextArgument = std::variant<std::int64_t, double, std::string>;

/// The arguments of one message, in the order in which the conversions of its text name them.
using utTextArguments = std::vector<utTextArgument>;

template <class T>
utTextArgument ut_text_argument(T const & value)
{
    if constexpr (std::is_same_v<T, utString>)
        return value.str();
    else if constexpr (std::is_floating_point_v<T>)
        return static_cast<double>(value);
    else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
        return static_cast<std::int64_t>(value);
    else
        return std::string(std::string_view(value));
}

template <class... T>
utTextArguments ut_text_arguments(T const &... values)
{
    return {ut_text_argument(values)...};
}
