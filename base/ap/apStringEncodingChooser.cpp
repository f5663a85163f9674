#include "ap/apStringEncodingChooser.h"

#include <clocale>

#include "ap/apStringCPEncoding.h"
#include "ap/apStringCRTEncoding.h"
#include "ap/apStringUTF8Encoding.h"

std::unique_ptr<apIStringEncoding> apStringEncodingChooser::multi_byte_encoding(char const * locale_name)
{
    utString const name(locale_name);
    int position = name.locate_substring(".") + 1;
    int code_page = 0;
    if (position > 0 && name.parse(code_page, position)) {
        auto encoding = std::make_unique<apStringCPEncoding>(code_page);
        if (encoding->usable())
            return encoding;
    }
    return std::make_unique<apStringCRTEncoding>();
}

apIStringEncoding const * apStringEncodingChooser::ut_encoding()
{
    static apStringUTF8Encoding const encoding;
    return &encoding;
}

apIStringEncoding const * apStringEncodingChooser::mb_encoding()
{
    // Only asks, and the first call comes at start-up on the main thread.
    static auto const encoding =
        multi_byte_encoding(std::setlocale(LC_TIME, nullptr)); // NOLINT(concurrency-mt-unsafe)
    return encoding.get();
}
