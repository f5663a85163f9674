#include "TranslatorFolder.h"

#include <filesystem>

#include "sdb/sdbTranslatorCacheWriter.h"

nlohmann::json format_value(std::string const & name, std::vector<std::string> const & extensions)
{
    return {{"name", name},
            {"filter", "format.filter::" + name + " Files"},
            {"category", "Boundary representation"},
            {"extensions", extensions},
            {"signatures", nlohmann::json::array()},
            {"sides", {"input", "output"}},
            {"viewer", false},
            {"default_output", ""},
            {"resource_file", name + ".rsc"},
            {"resources", nlohmann::json::array()}};
}

nlohmann::json manifest_value(std::vector<nlohmann::json> const & formats)
{
    return {{"interface", 1}, {"formats", formats}};
}

TranslatorFolder::TranslatorFolder()
{
    std::filesystem::create_directory(directory());
}

void TranslatorFolder::add(std::string const & name, nlohmann::json const & manifest) const
{
    add_module(name);
    add_manifest(name, manifest.dump());
}

void TranslatorFolder::add_module(std::string const & name) const
{
    std::filesystem::copy_file(TEST_MODULE, path(name + ".so"));
}

std::string TranslatorFolder::add_manifest(std::string const & name, std::string const & text) const
{
    return m_temp.write("translators/" + name + ".json", text);
}

sdbTranslatorLoadStatus TranslatorFolder::make(std::string const & preferred_output_format)
{
    return make(std::vector{directory()}, preferred_output_format);
}

sdbTranslatorLoadStatus TranslatorFolder::make(std::vector<std::string> const & directories,
                                               std::string const & preferred_output_format)
{
    std::vector<apPathName> paths;
    for (auto const & one : directories)
        paths.push_back(apPathName::from_utf8(one));
    sdbFindFileByExtension const finder(&m_files, &m_compare);
    sdbTranslatorSearchPath const search_path(sdbSearchPath(paths), &finder);
    auto const cache = apPathName::from_utf8(m_temp.exists("translators.lst") ? cache_file() : std::string());
    return m_factory.create_translator_dlls(cache, search_path, utString(preferred_output_format), nullptr,
                                            m_input, m_output);
}

sdbTranslatorLoadStatus TranslatorFolder::write_cache() const
{
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    int error = -1;
    sdbTranslatorCacheWriter(utString(cache_file()), input(), output(), &m_encoding, error, status);
    if (status.ok() != (error == 0))
        throw std::runtime_error("status and error differ");
    return status;
}

std::vector<std::string> names_of(itIterator<sdbFormatName> names)
{
    std::vector<std::string> texts;
    while (++names)
        texts.push_back(names().ut_string().str());
    return texts;
}

std::string reasons(sdbTranslatorLoadStatus const & status)
{
    std::string text;
    for (auto const & failure : status.failures())
        text += failure.reason.str() + "\n";
    return text;
}
