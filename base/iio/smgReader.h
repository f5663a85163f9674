#pragma once

#include "iio/iioImageReader.h"

/// Reads PNG and BMP files of up to 64 MiB and 100 million pixels.
class smgReader : public iioImageReader {
public:
    int read(apPathName const & file, iioImage & image, utString & error) const override;
};
