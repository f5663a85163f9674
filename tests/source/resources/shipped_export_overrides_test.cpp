#include "sglExportOptionsFile.h"

#include "kit/kitAppTest.h"
#include "vmr/vmrGeneralResources.h"

#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

namespace {

struct Line {
    std::string system;
    std::string resource;
    std::string value;
};

std::vector<Line> lines_of(std::string const & path)
{
    std::vector<Line> found;
    std::istringstream text(kit_read_file(path));
    std::string system, line;
    bool open = false;
    while (std::getline(text, line)) {
        if (!std::exchange(open, line[0] != '#')) {
            system = line;
            continue;
        }
        if (line[0] != '#')
            found.push_back({system, line.substr(0, line.find(' ')), line.substr(line.find(' ') + 1)});
    }
    return found;
}

/// The declarations that each format of the source tree has for its resources.
std::multimap<std::string, vmrResourceDeclaration> declarations()
{
    std::multimap<std::string, vmrResourceDeclaration> found;
    for (auto const & entry : std::filesystem::recursive_directory_iterator(VMR_SOURCE_TREE "/translators")) {
        if (entry.path().extension() != ".json")
            continue;
        auto const manifest = nlohmann::json::parse(kit_read_file(entry.path().string()));
        for (auto const & format : manifest.at("formats"))
            for (auto const & resource : format.at("resources")) {
                vmrResourceDeclaration declaration;
                std::string problem;
                EXPECT_TRUE(vmr_read_resource_declaration(resource, declaration, problem)) << problem;
                found.emplace(declaration.name, declaration);
            }
    }
    return found;
}

char const shipped_file[] = VMR_SOURCE_TREE "/data/export_overrides.txt";

using ShippedExportFile = kitAppTest;

} // namespace

TEST(ShippedExportOverrides, AreLegalForAFormatEach)
{
    auto const known = declarations();
    auto const lines = lines_of(shipped_file);
    ASSERT_GT(lines.size(), 20u);
    for (auto const & line : lines) {
        auto const [first, last] = known.equal_range(line.resource);
        EXPECT_NE(first, last) << line.system << ": " << line.resource << " is no resource of a format";
        for (auto declared = first; declared != last; ++declared)
            EXPECT_TRUE(declared->second.canonical(line.value))
                << line.system << ": " << line.resource << " cannot be " << line.value;
    }
}

TEST_F(ShippedExportFile, IsReadWithAllItsSystems)
{
    start();
    sglExportOptionsFile file;
    file.set_options_file(shipped_file);
    ASSERT_TRUE(file.read_options_file());
    std::set<std::string> names;
    for (auto const & line : lines_of(shipped_file))
        names.insert(line.system);
    EXPECT_EQ(static_cast<int>(names.size()), file.num_systems()) << "two systems of one name";
    for (auto const & name : names)
        EXPECT_TRUE(file.find_named_system(utString(name))) << name;
}
