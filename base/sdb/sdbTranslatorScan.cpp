#include "sdb/sdbTranslatorScan.h"

#include <map>

#include "sdb/sdbModuleReader.h"

namespace {

class Scan {
public:
    void directory(sdbTranslatorSearchPath const & search_path, std::string const & path)
    {
        // Before its content is read: what is added meanwhile makes it look changed later.
        auto const stamp = sdbFileStamp::of(path);
        m_contents->directories.push_back({path, stamp});
        if (!stamp.exists)
            return;
        std::vector<std::string> manifests;
        if (!search_path.manifests(path, manifests))
            m_contents->failures.push_back(
                {path, path, stamp, stamp, path, path + ": the translator directory cannot be read"});
        for (auto const & manifest : manifests)
            module(manifest);
    }

    std::shared_ptr<sdbCatalogueContents const> contents() const { return m_contents; }

private:
    void module(std::string const & manifest)
    {
        sdbModuleReader reader(manifest);
        auto module = reader.read();
        if (!module) {
            m_contents->failures.push_back(reader.failure());
            return;
        }
        for (auto const & format : module->formats)
            if (auto const other = m_manifest_of_format.find(format.name);
                other != m_manifest_of_format.end()) {
                auto failure = reader.failure();
                failure.file = manifest;
                failure.reason = manifest + ": the format \"" + format.name + "\" is declared by " +
                                 other->second + " already";
                m_contents->failures.push_back(std::move(failure));
                return;
            }
        for (auto const & format : module->formats)
            m_manifest_of_format[format.name] = manifest;
        m_contents->modules.push_back(std::move(module));
    }

    std::shared_ptr<sdbCatalogueContents> m_contents = std::make_shared<sdbCatalogueContents>();
    std::map<std::string, std::string> m_manifest_of_format;
};

} // namespace

std::shared_ptr<sdbCatalogueContents const> sdb_scan_translators(sdbTranslatorSearchPath const & search_path)
{
    Scan scan;
    for (auto const & directory : search_path.directories())
        scan.directory(search_path, directory);
    return scan.contents();
}
