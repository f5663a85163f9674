#pragma once

#include "ap/apIFileOperations.h"
#include "ap/apIStringEncoding.h"
#include "sdb/sdbFile.h"
#include "ut/utPtr.h"
#include "ut/utString.h"

/// Makes the small files of the system from their paths.
class sdbSdbFileFactory {
public:
    /// Neither is owned; both must outlive the factory and its files.
    sdbSdbFileFactory(utObserverPtr<apIStringEncoding const> encoding,
                      utObserverPtr<apIFileOperations const> files)
        : m_encoding(encoding), m_files(files)
    {
    }

    /// Nothing is opened or made on the disk yet.
    virtual sdbFile make_file(utString const & path) const;
    virtual ~sdbSdbFileFactory() = default;

private:
    utObserverPtr<apIStringEncoding const> m_encoding;
    utObserverPtr<apIFileOperations const> m_files;
};
