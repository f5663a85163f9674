#pragma once

#include <memory>

#include "ap/apIStringEncoding.h"

/// Chooses the two encodings of the system.
class apStringEncodingChooser {
public:
    /// A name whose text behind the first dot is a number gives that code page, any other name, and a code
    /// page that is not known here, the encoding of the C library.
    static std::unique_ptr<apIStringEncoding> multi_byte_encoding(char const * locale_name);

    static apIStringEncoding const * ut_encoding(); ///< UTF-8
    static apIStringEncoding const * mb_encoding(); ///< chosen by the LC_TIME locale at the first call
};
