#include "sdk/sdkManifest.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <stdexcept>

using nlohmann::json;

namespace {

sdkResourceType type_of(std::string const & name)
{
    if (name == "boolean") {
        return sdkResourceType::boolean;
    }
    if (name == "integer") {
        return sdkResourceType::integer;
    }
    if (name == "real") {
        return sdkResourceType::real;
    }
    if (name == "text") {
        return sdkResourceType::text;
    }
    if (name == "choice") {
        return sdkResourceType::choice;
    }
    throw std::runtime_error("a resource has the unknown type " + name);
}

sdkResource resource_of(json const & declared)
{
    sdkResource resource;
    declared.at("name").get_to(resource.name);
    resource.type = type_of(declared.at("type").get<std::string>());
    if (resource.type == sdkResourceType::choice) {
        declared.at("values").get_to(resource.values);
    }
    if (auto const found = declared.find("minimum"); found != declared.end()) {
        resource.minimum = found->get<double>();
    }
    if (auto const found = declared.find("maximum"); found != declared.end()) {
        resource.maximum = found->get<double>();
    }
    auto const & value = declared.at("default");
    resource.default_value = value.is_string() ? value.get<std::string>() : value.dump();
    return resource;
}

sdkFormat format_of(json const & declared)
{
    sdkFormat format;
    declared.at("name").get_to(format.name);
    for (auto const & side : declared.at("sides")) {
        format.reads = format.reads || side == "input";
        format.writes = format.writes || side == "output";
    }
    for (auto const & resource : declared.at("resources")) {
        format.resources.push_back(resource_of(resource));
    }
    return format;
}

} // namespace

std::string sdkManifest::load(std::string const & path)
{
    std::ifstream stream(path);
    if (!stream) {
        return "the manifest " + path + " cannot be opened";
    }
    try {
        auto const manifest = json::parse(stream);
        manifest.at("interface").get_to(m_interface);
        m_formats.clear();
        for (auto const & declared : manifest.at("formats")) {
            m_formats.push_back(format_of(declared));
        }
    } catch (std::exception const & failure) {
        return "the manifest " + path + " is not valid: " + failure.what();
    }
    return {};
}

sdkFormat const * sdkManifest::format(std::string const & name) const
{
    auto const found = std::find_if(m_formats.begin(), m_formats.end(),
                                    [&](auto const & format) { return format.name == name; });
    return found == m_formats.end() ? nullptr : &*found;
}
