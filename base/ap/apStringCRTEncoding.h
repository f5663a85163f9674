#pragma once

#include "ap/apStringCharsetEncoding.h"

/// The multi-byte encoding of the C library, as the user's environment has it when the object is made; a
/// later setlocale does not change it. Where the environment names no character set, or one that is not
/// installed, the encoding is UTF-8, the one that file names on this platform have.
class apStringCRTEncoding : public apStringCharsetEncoding {
public:
    explicit apStringCRTEncoding(char const * locale_name = ""); ///< "" is the locale of the environment
};
