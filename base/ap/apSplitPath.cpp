#include "ap/apSplitPath.h"

#include "ap/apPathSeparator.h"

void apSplitPath::split_path(utString const & path, utString & directory, utString & name,
                             utString & extension)
{
    std::string const text = path.str();
    auto const separator = text.rfind(apPathSeparator);
    auto const begin = separator == std::string::npos ? 0 : separator + 1;

    auto const directory_end = text.find_last_not_of(apPathSeparator, separator);
    if (separator == std::string::npos)
        directory.make_empty();
    else
        directory = directory_end == std::string::npos ? std::string(1, apPathSeparator)
                                                       : text.substr(0, directory_end + 1);

    auto const last = text.substr(begin);
    auto const dot = last.rfind('.');
    bool const has_extension =
        dot != std::string::npos && dot + 1 < last.size() && last.find_first_not_of('.') < dot;
    name = has_extension ? last.substr(0, dot) : last;
    extension = has_extension ? last.substr(dot + 1) : std::string();
}
