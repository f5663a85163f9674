#pragma once

#include "sdk/sdkManifest.h"
#include "sdk/sdkText.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// The options of one side of a translation: what the manifest declares, with the user's values over its
// defaults. To ask for an option that the manifest does not declare, or for the wrong type of it, is a
// mistake in the module and throws std::logic_error.
class sdkOptions {
public:
    // Values that are not declared, are not of their type or are out of range are left out; a text for each
    // of them, which says what is used instead, is appended to the problems. So is one for each of the values
    // that were refused before: they have no effect, but the user is to know.
    sdkOptions(std::vector<sdkResource> const & declared, std::map<std::string, std::string> const & values,
               std::vector<sdkText> & problems, std::map<std::string, std::string> const & refused = {});

    bool declares(std::string_view name) const;
    bool boolean(std::string_view name) const;
    std::int64_t integer(std::string_view name) const;
    double real(std::string_view name) const;
    // The value of a text or a choice.
    std::string const & text(std::string_view name) const;

private:
    struct Value {
        sdkResourceType type;
        std::string text;
        double number;
    };

    Value const & value(std::string_view name, sdkResourceType type) const;

    std::map<std::string, Value, std::less<>> m_values;
};
