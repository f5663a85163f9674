#include "sdb/sdbFindFileByExtension.h"

bool sdbFindFileByExtension::find(apPathName const & directory, apString const & extension,
                                  std::vector<apPathName> & paths) const
{
    paths.clear();
    return bool(m_files->list_by_extension(directory, extension, *m_compare, paths));
}
