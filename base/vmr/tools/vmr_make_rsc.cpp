#include <cstdio>
#include <filesystem>
#include <fstream>

#include <nlohmann/json.hpp>

#include "vmr/vmrResourceFile.h"

namespace {

using json = nlohmann::json;

struct Failure {
    std::string text;
};

json const & find_format(json const & manifest, std::string const & name)
{
    for (auto const & format : manifest.at("formats"))
        if (format.at("name") == name)
            return format;
    throw Failure{"there is no format \"" + name + "\""};
}

std::vector<vmrResourceDeclaration> read_resources(json const & format)
{
    std::vector<vmrResourceDeclaration> declarations;
    for (auto const & value : format.value("resources", json::array())) {
        std::string problem;
        if (!vmr_read_resource_declaration(value, declarations.emplace_back(), problem))
            throw Failure{problem};
    }
    return declarations;
}

void write_factory_file(std::filesystem::path const & manifest, std::string const & name,
                        std::filesystem::path const & directory)
{
    std::ifstream input(manifest);
    if (!input)
        throw Failure{"the manifest cannot be read"};
    auto const root = json::parse(input);
    auto const & format = find_format(root, name);
    auto const text = vmr_factory_resource_text(read_resources(format));
    auto const path = directory / format.at("resource_file").get<std::string>();
    std::filesystem::create_directories(directory);
    std::ofstream output(path, std::ios::binary);
    output << text << std::flush;
    if (!output)
        throw Failure{path.string() + " cannot be written"};
}

} // namespace

int main(int argc, char ** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: vmr-make-rsc manifest.json format output-directory\n");
        return 2;
    }
    try {
        write_factory_file(argv[1], argv[2], argv[3]);
        return 0;
    } catch (Failure const & failure) {
        std::fprintf(stderr, "vmr-make-rsc: %s: %s\n", argv[1], failure.text.c_str());
    } catch (std::exception const & error) {
        std::fprintf(stderr, "vmr-make-rsc: %s: %s\n", argv[1], error.what());
    }
    return 1;
}
