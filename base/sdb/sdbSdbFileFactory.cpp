#include "sdb/sdbSdbFileFactory.h"

sdbFile sdbSdbFileFactory::make_file(utString const & path) const
{
    return sdbFile(apPathName(m_encoding->to_ap(path)), m_files.get());
}
