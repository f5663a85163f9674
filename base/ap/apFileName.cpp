#include "ap/apFileName.h"

#include "ap/apSplitPath.h"

apString apFileName::extension() const
{
    utString directory;
    utString name;
    utString extension;
    apSplitPath::split_path(utString(utf8()), directory, name, extension);
    return apString::from_utf8(extension.view());
}

apFileName apFileName::change_extension(apString const & extension) const
{
    auto const old_extension = this->extension();
    std::string name = utf8();
    if (!old_extension.empty())
        name.resize(name.size() - old_extension.utf8().size() - 1);
    else if (name.ends_with('.') && name.find_first_not_of('.') != std::string::npos)
        name.pop_back();
    if (!extension.empty())
        name += '.' + extension.utf8();
    return from_utf8(name);
}
