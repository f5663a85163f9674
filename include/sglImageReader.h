#pragma once

#include "iio/smgReader.h"

/// The image reader that the application registers for the translators.
class sglImageReader : public smgReader {
public:
    sglImageReader() = default;
    ~sglImageReader() override = default;
};
