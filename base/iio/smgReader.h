#pragma once

#include "iio/iioImageReader.h"

/// Reads PNG and BMP files of up to 64 MiB and iio_most_pixels pixels. Without memory for a picture there is
/// none, and that in the error.
class smgReader : public iioImageReader {
public:
    int read(apPathName const & file, iioImage & image, utString & error) const override;
};
