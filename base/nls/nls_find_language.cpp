#include "nls/nls_find_language.h"

#include <filesystem>

std::string nls_find_language(std::vector<std::string> const & folders, std::string_view language)
{
    if (language.empty() || language == "." || language == ".." ||
        language.find('/') != std::string_view::npos)
        return {};
    for (auto const & folder : folders) {
        auto const path = std::filesystem::path(folder) / language;
        std::error_code error;
        if (std::filesystem::exists(path, error))
            return path.string();
    }
    return {};
}
