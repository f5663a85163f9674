#include "s2s/s2sTranslatorLoader.h"

#include <fstream>

#include <nlohmann/json.hpp>

namespace fs = std::filesystem;

namespace {

constexpr int module_interface = 1;

} // namespace

s2sTranslatorLoader::s2sTranslatorLoader(utObserverPtr<apILibraryLoaderOperations const>) {}

s2sFailure s2sTranslatorLoader::check(utString const & module) const
{
    fs::path const file = module.str();
    std::error_code error;
    if (!fs::is_regular_file(file, error))
        return s2sMessages::module_missing(file);

    auto const manifest = fs::path(file).replace_extension(".json");
    std::ifstream stream(manifest);
    auto const content = nlohmann::json::parse(stream, nullptr, false);
    if (!content.is_object())
        return s2sMessages::manifest_unreadable(manifest);
    auto const version = content.find("interface");
    if (version == content.end() || !version->is_number_integer() || version->get<int>() != module_interface)
        return s2sMessages::module_of_other_version(file);
    return std::nullopt;
}
