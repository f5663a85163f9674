#pragma once

#include "ap/apStringCharsetEncoding.h"

/// The encoding with the number of a code page: 1252 for Western European text, 932 for Japanese, 65001 for
/// UTF-8.
class apStringCPEncoding : public apStringCharsetEncoding {
public:
    explicit apStringCPEncoding(int code_page);
};
