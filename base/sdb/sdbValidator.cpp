#include "sdb/sdbValidator.h"

#include "vmr/vmrResourceDeclaration.h"

bool sdbValidator::read_int(utString const & value, long long & number)
{
    auto const read = vmr_read_integer(value.view());
    number = read.value_or(number);
    return read.has_value();
}

bool sdbValidator::read_double(utString const & value, double & number)
{
    auto text = value.str();
    if (text.find('.') == std::string::npos)
        for (std::string_view const sign : {",", "\u066b"})
            if (auto const at = text.find(sign); at != std::string::npos) {
                // A second sign stays in the text and makes it no number.
                text.replace(at, sign.size(), ".");
                break;
            }
    auto const read = vmr_read_real(text);
    number = read.value_or(number);
    return read.has_value();
}
