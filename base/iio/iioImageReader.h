#pragma once

#include <cstdint>
#include <vector>

#include "ap/apPathName.h"
#include "ut/utString.h"

/// A picture in memory.
struct iioImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t>
        rgba; ///< red, green, blue, alpha of each pixel, rows from the top; alpha 255 is opaque
};

/// Reads image files for translators and the program. Any thread.
class iioImageReader {
public:
    virtual ~iioImageReader() = default;

    /// Returns 0, leaving `image` alone, with the reason and the file's name in `error`.
    virtual int read(apPathName const & file, iioImage & image, utString & error) const = 0;
};
