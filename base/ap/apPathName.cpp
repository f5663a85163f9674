#include "ap/apPathName.h"

#include "ap/apPathSeparator.h"
#include "ap/apSplitPath.h"

apPathName::apPathName(apPathName const & directory, apFileName const & name)
    : apPathName(directory.adjoin(name))
{
}

bool apPathName::absolute() const
{
    return utf8().starts_with(apPathSeparator);
}

apPathName apPathName::adjoin(apFileName const & name) const
{
    if (empty())
        return apPathName(name.string());
    std::string path = utf8();
    if (!path.ends_with(apPathSeparator))
        path += apPathSeparator;
    return from_utf8(path + name.utf8());
}

apPathName apPathName::adjoin(apPathName const & tail) const
{
    return tail.absolute() ? tail : adjoin(apFileName(tail.string()));
}

apPathName apPathName::directory() const
{
    utString directory;
    utString name;
    utString extension;
    apSplitPath::split_path(utString(utf8()), directory, name, extension);
    return from_utf8(directory.view());
}

apFileName apPathName::file_name() const
{
    auto const separator = utf8().rfind(apPathSeparator);
    return apFileName::from_utf8(separator == std::string::npos ? utf8() : utf8().substr(separator + 1));
}

apString apPathName::extension() const
{
    return file_name().extension();
}

apPathName apPathName::change_extension(apString const & extension) const
{
    auto const name = file_name();
    auto const head = utf8().substr(0, utf8().size() - name.utf8().size());
    return from_utf8(head + name.change_extension(extension).utf8());
}
