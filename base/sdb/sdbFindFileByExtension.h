#pragma once

#include "ap/apIFileOperations.h"
#include "ap/apIStringCompare.h"
#include "sdb/sdbIFindByExtension.h"

/// Finds files through the platform's file operations, extensions being equal when `compare` says so.
class sdbFindFileByExtension : public sdbIFindByExtension {
public:
    /// Neither is owned.
    sdbFindFileByExtension(apIFileOperations const * files, apIStringCompare const * compare)
        : m_files(files), m_compare(compare)
    {
    }

    bool find(apPathName const & directory, apString const & extension,
              std::vector<apPathName> & paths) const override;

private:
    apIFileOperations const * m_files;
    apIStringCompare const * m_compare;
};
