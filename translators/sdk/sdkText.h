#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

using sdkArgument = std::variant<std::string, std::int64_t, double>;

// A message that is put into the user's language elsewhere: a key "context::text" whose text has printf
// conversions (%s, %d, %g and their kin), and the arguments for them. An argument "term::text" is a key
// itself, without conversions: a word or phrase such as "solid" that the user reads in the same language. All
// texts are UTF-8.
class sdkText {
public:
    sdkText() = default;

    template <class... Arguments>
    explicit sdkText(std::string_view key, Arguments const &... arguments)
        : m_key(key), m_arguments{make_argument(arguments)...}
    {
    }

    // With arguments that have come from elsewhere.
    static sdkText from(std::string key, std::vector<sdkArgument> arguments)
    {
        sdkText text;
        text.m_key = std::move(key);
        text.m_arguments = std::move(arguments);
        return text;
    }

    bool empty() const { return m_key.empty(); }
    std::string const & key() const { return m_key; }
    std::vector<sdkArgument> const & arguments() const { return m_arguments; }

    // True when the text has one conversion for each argument, of its kind.
    bool fits() const;

    // The English text without its context. A conversion that has no argument of its kind stays as it is.
    std::string formatted() const;

private:
    static sdkArgument make_argument(std::string_view text) { return std::string(text); }
    static sdkArgument make_argument(std::integral auto number) { return static_cast<std::int64_t>(number); }
    static sdkArgument make_argument(std::floating_point auto number) { return static_cast<double>(number); }

    std::string m_key;
    std::vector<sdkArgument> m_arguments;
};
