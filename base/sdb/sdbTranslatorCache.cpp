#include "sdb/sdbTranslatorCache.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <string_view>

#include <boost/crc.hpp>
#include <nlohmann/json.hpp>

#include "ap/apPathName.h"
#include "ap/apPosixOperations.h"
#include "sdb/sdbManifestReader.h"

namespace {

using json = nlohmann::json;

std::string first_line(std::string_view body)
{
    boost::crc_32_type sum;
    sum.process_bytes(body.data(), body.size());
    std::array<char, 48> line;
    std::snprintf(line.data(), line.size(), "translators.lst 1 %08x\n",
                  static_cast<unsigned>(sum.checksum()));
    return line.data();
}

json stamp_value(sdbFileStamp const & stamp)
{
    return stamp.exists ? json::array({stamp.size, stamp.modified, stamp.changed}) : json(nullptr);
}

sdbFileStamp read_stamp(json const & value)
{
    if (value.is_null())
        return {};
    return {true, value.at(0).get<std::int64_t>(), value.at(1).get<std::int64_t>(),
            value.at(2).get<std::int64_t>()};
}

// A module and a failure hold the same files.
template <class Files>
json files_value(Files const & files)
{
    return {{"manifest_path", files.manifest_path},
            {"manifest_stamp", stamp_value(files.manifest_stamp)},
            {"module_path", files.module_path},
            {"module_stamp", stamp_value(files.module_stamp)}};
}

template <class Files>
bool read_files(json const & value, Files & files)
{
    files.manifest_path = value.at("manifest_path").get<std::string>();
    files.manifest_stamp = read_stamp(value.at("manifest_stamp"));
    files.module_path = value.at("module_path").get<std::string>();
    files.module_stamp = read_stamp(value.at("module_stamp"));
    return sdbFileStamp::of(files.manifest_path) == files.manifest_stamp &&
           sdbFileStamp::of(files.module_path) == files.module_stamp;
}

// The JSON text behind the first line, if it is what was written.
std::optional<std::string_view> checked_body(std::string_view text)
{
    auto const end = text.find('\n');
    if (end == std::string_view::npos)
        return std::nullopt;
    auto const body = text.substr(end + 1);
    if (text.substr(0, end + 1) != first_line(body))
        return std::nullopt;
    return body;
}

bool read_directories(json const & value, std::vector<std::string> const & directories,
                      sdbCatalogueContents & contents)
{
    if (value.size() != directories.size())
        return false;
    for (auto const & element : value) {
        sdbTranslatorDirectoryStamp directory{element.at("path").get<std::string>(),
                                              read_stamp(element.at("stamp"))};
        if (directory.path != directories[contents.directories.size()] ||
            sdbFileStamp::of(directory.path) != directory.stamp)
            return false;
        contents.directories.push_back(std::move(directory));
    }
    return true;
}

// A cache that somebody else has written must not name modules that a scan would not find.
bool lies_in_one(std::string const & path, std::vector<std::string> const & directories)
{
    auto const directory = apPathName::from_utf8(path).directory().utf8();
    return std::find(directories.begin(), directories.end(), directory) != directories.end();
}

bool read_contents(json & value, std::vector<std::string> const & directories,
                   sdbCatalogueContents & contents)
{
    if (!read_directories(value.at("directories"), directories, contents))
        return false;
    for (auto & element : value.at("modules")) {
        auto module = std::make_shared<sdbTranslatorModule>();
        if (!read_files(element, *module) || !lies_in_one(module->manifest_path, directories) ||
            !lies_in_one(module->module_path, directories))
            return false;
        module->manifest = std::make_shared<json const>(std::move(element.at("manifest")));
        sdbManifestReader reader(module->manifest_path);
        if (!reader.read(*module->manifest))
            return false;
        module->formats = std::move(reader.formats());
        contents.modules.push_back(std::move(module));
    }
    for (auto const & element : value.at("failures")) {
        sdbTranslatorModuleFailure failure;
        if (!read_files(element, failure))
            return false;
        failure.file = element.at("file").get<std::string>();
        failure.reason = element.at("reason").get<std::string>();
        contents.failures.push_back(std::move(failure));
    }
    return true;
}

std::string body_text(sdbCatalogueContents const & contents)
{
    json value = {{"directories", json::array()}, {"modules", json::array()}, {"failures", json::array()}};
    for (auto const & directory : contents.directories)
        value["directories"].push_back({{"path", directory.path}, {"stamp", stamp_value(directory.stamp)}});
    for (auto const & module : contents.modules) {
        auto element = files_value(*module);
        element["manifest"] = *module->manifest;
        value["modules"].push_back(std::move(element));
    }
    for (auto const & failure : contents.failures) {
        auto element = files_value(failure);
        element["file"] = failure.file;
        element["reason"] = failure.reason;
        value["failures"].push_back(std::move(element));
    }
    // A path that is no text in UTF-8 is written inexactly; the next start does not find it and scans.
    return value.dump(-1, ' ', false, json::error_handler_t::replace);
}

} // namespace

std::shared_ptr<sdbCatalogueContents const>
sdbTranslatorCache::read(std::string const & path, std::vector<std::string> const & directories)
{
    std::string text;
    if (!apPosixFileOperations().read_file(apPathName::from_utf8(path), text))
        return nullptr;
    auto const body = checked_body(text);
    if (!body)
        return nullptr;
    auto contents = std::make_shared<sdbCatalogueContents>();
    try {
        auto value = json::parse(*body);
        if (!read_contents(value, directories, *contents))
            return nullptr;
    } catch (json::exception const &) {
        return nullptr;
    }
    return contents;
}

std::string sdbTranslatorCache::write(std::string const & path, sdbCatalogueContents const & contents)
{
    auto const body = body_text(contents);
    auto const result =
        apPosixFileOperations().replace_file(apPathName::from_utf8(path), first_line(body) + body);
    return result ? std::string() : path + " cannot be written: " + result.message().str();
}
