#pragma once

#include <cstdint>
#include <string>

/// What a file or directory looked like, by its directory entry alone: enough to notice that it has changed.
struct sdbFileStamp {
    bool exists = false;
    std::int64_t size = 0;     ///< bytes; 0 for a directory, whose size says nothing
    std::int64_t modified = 0; ///< time of the last change of the content in nanoseconds
    std::int64_t changed = 0;  ///< the same, changes of name and permissions counted in

    static sdbFileStamp of(std::string const & path);

    friend bool operator==(sdbFileStamp const &, sdbFileStamp const &) = default;
};
