#include "sglPathText.h"

#include "ap/apSplitPath.h"

utString ExtractFile(utString const & path)
{
    utString directory, name, extension;
    apSplitPath::split_path(path, directory, name, extension);
    return extension.empty() ? name : name + "." + extension;
}

void sgl_fix_backslashes(utString & path)
{
    auto const text = path.view();
    std::string fixed;
    for (std::size_t at = 0; at < text.size(); ++at) {
        bool const doubled = at > 0 && at + 1 < text.size() && text[at] == '\\' && text[at + 1] == '\\';
        if (!doubled)
            fixed += text[at];
    }
    if (!path.invalid())
        path = utString(std::move(fixed));
}
