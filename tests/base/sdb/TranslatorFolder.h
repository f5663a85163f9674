#pragma once

#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "kit/kitTempFolder.h"

#include "ap/apPosixOperations.h"
#include "ap/apStringCompareInsensitive.h"
#include "ap/apStringUTF8Encoding.h"
#include "sdb/sdbFindFileByExtension.h"
#include "sdb/sdbTranslatorDllsFactory.h"

/// A format as a manifest declares it, with all fields.
nlohmann::json format_value(std::string const & name, std::vector<std::string> const & extensions);

/// A manifest of the right version with these formats.
nlohmann::json manifest_value(std::vector<nlohmann::json> const & formats);

/// A temporary directory with modules and manifests in it, and the catalogues of them.
class TranslatorFolder {
public:
    /// Puts a module and its manifest there.
    void add(std::string const & name, nlohmann::json const & manifest) const;
    void add_module(std::string const & name) const;
    std::string add_manifest(std::string const & name, std::string const & text) const;

    /// Makes the catalogues, with the cache file "translators.lst" beside the directory of the translators if
    /// there is one.
    sdbTranslatorLoadStatus make(std::string const & preferred_output_format = {});
    /// The same with other directories to search.
    sdbTranslatorLoadStatus make(std::vector<std::string> const & directories,
                                 std::string const & preferred_output_format = {});
    sdbTranslatorLoadStatus write_cache() const;

    sdbTranslatorDlls const & input() const { return *m_input; }
    sdbTranslatorDlls const & output() const { return *m_output; }
    bool scanned() const { return m_factory.scanned(); }

    std::string directory() const { return m_temp / "translators"; }
    std::string path(std::string const & name) const { return directory() + "/" + name; }
    std::string cache_file() const { return m_temp / "translators.lst"; }
    kitTempFolder const & temp() const { return m_temp; }

    TranslatorFolder();

private:
    kitTempFolder m_temp;
    apPosixFileOperations m_files;
    apStringUTF8Encoding m_encoding;
    apStringCompareInsensitive m_compare{&m_encoding};
    sdbTranslatorInfoFactory m_infos{nullptr, &m_encoding, &m_compare};
    sdbTranslatorDllsFactory m_factory{&m_encoding, &m_compare, &m_infos};
    std::unique_ptr<sdbTranslatorDlls> m_input;
    std::unique_ptr<sdbTranslatorDlls> m_output;
};

/// The values of an iterator as texts.
std::vector<std::string> names_of(itIterator<sdbFormatName> names);
/// The texts of the failures.
std::string reasons(sdbTranslatorLoadStatus const & status);
