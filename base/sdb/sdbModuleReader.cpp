#include "sdb/sdbModuleReader.h"

#include <filesystem>

#include <nlohmann/json.hpp>

#include "ap/apPosixOperations.h"
#include "sdb/sdbManifestReader.h"

namespace {

// Far above any manifest, so that a stray data file does not fill the memory.
constexpr std::size_t largest_manifest = 4 << 20;

} // namespace

std::string sdbModuleReader::module_path(std::string const & manifest_path)
{
    return std::filesystem::path(manifest_path).replace_extension(".so").string();
}

sdbModuleReader::sdbModuleReader(std::string manifest_path)
{
    m_failure.module_path = module_path(manifest_path);
    m_failure.manifest_path = std::move(manifest_path);
}

std::shared_ptr<sdbTranslatorModule const> sdbModuleReader::fail(std::string const & file, std::string reason)
{
    m_failure.file = file;
    m_failure.reason = std::move(reason);
    return nullptr;
}

std::shared_ptr<sdbTranslatorModule const> sdbModuleReader::read()
{
    auto const & manifest_path = m_failure.manifest_path;
    // Before the content, so that a file that changes meanwhile looks changed later.
    m_failure.manifest_stamp = sdbFileStamp::of(manifest_path);
    m_failure.module_stamp = sdbFileStamp::of(m_failure.module_path);

    std::string text;
    if (auto const result =
            apPosixFileOperations().read_file(apPathName::from_utf8(manifest_path), text, largest_manifest);
        !result)
        return fail(manifest_path,
                    manifest_path + ": the manifest cannot be read: " + result.message().str());

    auto module = std::make_shared<sdbTranslatorModule>();
    try {
        module->manifest = std::make_shared<nlohmann::json const>(nlohmann::json::parse(text));
    } catch (nlohmann::json::exception const & problem) {
        return fail(manifest_path, manifest_path + ": the manifest is not JSON: " + problem.what());
    }
    sdbManifestReader reader(manifest_path);
    if (!reader.read(*module->manifest))
        return fail(manifest_path, reader.problem());
    if (!m_failure.module_stamp.exists)
        return fail(m_failure.module_path,
                    m_failure.module_path + ": there is a manifest for this module, but no module");

    module->manifest_path = manifest_path;
    module->module_path = m_failure.module_path;
    module->manifest_stamp = m_failure.manifest_stamp;
    module->module_stamp = m_failure.module_stamp;
    module->formats = std::move(reader.formats());
    return module;
}
