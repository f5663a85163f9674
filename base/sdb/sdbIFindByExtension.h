#pragma once

#include <vector>

#include "ap/apPathName.h"
#include "ap/apString.h"

/// Finds the files of a directory that have an extension.
class sdbIFindByExtension {
public:
    /// The extension is given without dot; the files come in the order of their names. False when the
    /// directory cannot be read.
    virtual bool find(apPathName const & directory, apString const & extension,
                      std::vector<apPathName> & paths) const = 0;
    virtual ~sdbIFindByExtension() = default;
};
