#include "sdb/sdb_fix_resource_path.h"

#include <algorithm>

#include "ap/apPathSeparator.h"
#include "ap/apPosixOperations.h"

namespace {

// Takes out what names the same directory again. ".." stays: behind a link it does not lead back.
std::string tidy(std::string const & path)
{
    std::string result;
    for (std::size_t begin = 0; begin <= path.size();) {
        auto const end = std::min(path.find(apPathSeparator, begin), path.size());
        auto const component = path.substr(begin, end - begin);
        if (!component.empty() && component != ".")
            result += apPathSeparator + component;
        begin = end + 1;
    }
    return result.empty() ? std::string(1, apPathSeparator) : result;
}

} // namespace

void sdb_fix_resource_path(utString & path)
{
    if (path.empty())
        return;
    auto whole = apPathName::from_utf8(path.view());
    if (!whole.absolute())
        whole = apPosixProcessEnvironmentOperations().current_directory().adjoin(whole);
    path = utString(tidy(whole.utf8()));
}
