#include "sdb/sdbPathList.h"

#include "ap/apPosixOperations.h"
#include "ap/apStringCompareInsensitive.h"
#include "ap/apStringEncodingChooser.h"
#include "sdb/sdbFindFileByExtension.h"

void sdbPathList::search_by_extension(utStringcoDynArr & paths, utString const & extension) const
{
    auto bare = extension.view();
    if (bare.starts_with('.'))
        bare.remove_prefix(1);
    apPosixFileOperations const files;
    apStringCompareInsensitive const compare(apStringEncodingChooser::ut_encoding());
    std::vector<apPathName> found;
    sdbFindFileByExtension(&files, &compare)
        .find(apPathName::from_utf8(m_directory.view()), apString::from_utf8(bare), found);
    for (auto const & path : found)
        paths.append(utString(path.utf8()));
}
