#include "kit/kitAppTest.h"
#include "kit/kitLayout.h"
#include "sdb/sdbManifestReader.h"
#include "vmr/vmrResourceFile.h"
#include "vmr/vmrResourceRegistry.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>

/// The layout that an installation has, against what the translators declare.

namespace {

std::string const layout_file = VMR_SOURCE_TREE "/data/resource_layout.txt";

std::vector<sdbFormatDeclaration> read_formats()
{
    std::vector<sdbFormatDeclaration> all;
    for (auto const & file : std::filesystem::recursive_directory_iterator(VMR_SOURCE_TREE "/translators")) {
        if (file.path().extension() != ".json")
            continue;
        sdbManifestReader reader(file.path());
        EXPECT_TRUE(reader.read(nlohmann::json::parse(kit_read_file(file.path())))) << reader.problem();
        std::move(reader.formats().begin(), reader.formats().end(), std::back_inserter(all));
    }
    return all;
}

char const * control_for(vmrResourceKind kind)
{
    return kind == vmrResourceKind::boolean  ? "boolean"
           : kind == vmrResourceKind::choice ? "finite"
                                             : "infinite";
}

/// A number as a text for people writes it.
std::string plain(double number)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.7f", number);
    return std::regex_replace(text, std::regex("\\.?0+$"), "");
}

bool contains_number(std::string const & text, std::string const & number)
{
    std::string const quoted = std::regex_replace(number, std::regex("\\."), "\\.");
    return std::regex_search(text, std::regex("(^|[^0-9.])" + quoted + "($|[^0-9.]|\\.($|[^0-9]))"));
}

struct ShippedLayout : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
        for (auto const & format : formats)
            vmr_register_resources(format.resources);
    }

    /// The rows of one side of a format that stand for resources.
    std::vector<kitLayoutRecorder::Row> rows(sdbFormatDeclaration const & format, unsigned int mask)
    {
        vmrTableInstance table(
            folder().write(format.resource_file, vmr_factory_resource_text(format.resources)).c_str());
        kitLayoutReader reader(&table);
        EXPECT_TRUE(reader.read(layout_file, mask))
            << format.name << ", side " << mask << ", near line " << reader.line_number();
        for (auto const & row : reader.recorder().rows)
            EXPECT_LE(row.place.GetBottom() / 2, 200) << row.name << row.label << " stands below its page";
        auto result = reader.recorder().rows;
        std::erase_if(result, [](auto const & row) { return row.kind == "group"; });
        return result;
    }
    static std::vector<unsigned int> sides(sdbFormatDeclaration const & format)
    {
        std::vector<unsigned int> result;
        if (format.input)
            result.push_back(sglResourceDialogBuilder::input);
        if (format.output)
            result.push_back(sglResourceDialogBuilder::output);
        return result;
    }

    std::vector<sdbFormatDeclaration> const formats = read_formats();
};

} // namespace

TEST_F(ShippedLayout, HasOneControlOfTheRightKindForEveryResourceOfEveryFormat)
{
    ASSERT_GE(formats.size(), 4U);
    for (auto const & format : formats) {
        std::map<std::string, vmrResourceDeclaration const *> declared;
        for (auto const & resource : format.resources)
            declared[resource.name] = &resource;
        std::set<std::string> seen;
        for (unsigned int const side : sides(format)) {
            std::set<std::string> seen_here;
            for (auto const & row : rows(format, side)) {
                ASSERT_TRUE(declared.contains(row.name)) << format.name << " has no " << row.name;
                auto const & resource = *declared[row.name];
                EXPECT_EQ(row.kind, control_for(resource.kind)) << row.name;
                EXPECT_TRUE(seen_here.insert(row.name).second)
                    << row.name << " has two controls in " << format.name;
                if (resource.kind == vmrResourceKind::choice) {
                    EXPECT_EQ(row.values, resource.choices) << row.name;
                }
                auto const of_other_side = side == sglResourceDialogBuilder::input ? "Write" : "Read";
                EXPECT_EQ(row.name.find(of_other_side), std::string::npos) << row.name;
            }
            seen.merge(seen_here);
        }
        for (auto const & [name, resource] : declared)
            EXPECT_TRUE(seen.contains(name)) << name << " of " << format.name << " has no control";
    }
}

TEST_F(ShippedLayout, SaysOfEveryResourceWhatItDoesAndWithinWhatRange)
{
    for (auto const & format : formats)
        for (unsigned int const side : sides(format))
            for (auto const & row : rows(format, side)) {
                EXPECT_GE(row.label.size(), 4U) << row.name;
                EXPECT_LE(row.label.size(), 40U) << row.name;
                EXPECT_GE(row.tip.size(), 30U) << row.name;
                EXPECT_EQ(row.label.find("::"), std::string::npos) << row.name;
                EXPECT_EQ(row.tip.find("::"), std::string::npos) << row.name;
                auto const * const resource = vmr_look_up_resource(row.name);
                if (resource->minimum) {
                    EXPECT_TRUE(contains_number(row.tip, plain(*resource->minimum)))
                        << row.name << ": " << row.tip;
                }
                if (resource->maximum) {
                    EXPECT_TRUE(contains_number(row.tip, plain(*resource->maximum)))
                        << row.name << ": " << row.tip;
                }
                if (resource->kind == vmrResourceKind::real) {
                    EXPECT_TRUE(row.tip.find("millimetres") != std::string::npos ||
                                row.tip.find("degrees") != std::string::npos)
                        << row.name;
                }
                for (auto const & value : row.values) {
                    bool const is_plain_list = row.values.size() > 5 || value.size() == 1;
                    EXPECT_TRUE(is_plain_list || row.tip.find(value) != std::string::npos)
                        << row.name << ": " << value;
                }
            }
}

TEST_F(ShippedLayout, NamesNoResourceThatNobodyDeclares)
{
    std::set<std::string> declared;
    for (auto const & format : formats)
        for (auto const & resource : format.resources)
            declared.insert(resource.name);
    std::string const text = kit_read_file(layout_file);
    std::regex const name_of_resource("start_resource\\s+start_attributes\\s+name (\\S+)|requires (\\S+)");
    int found = 0;
    for (std::sregex_iterator match(text.begin(), text.end(), name_of_resource), end; match != end; ++match) {
        std::string const name = (*match)[1].matched ? (*match)[1].str() : (*match)[2].str();
        EXPECT_TRUE(declared.contains(name)) << name;
        ++found;
    }
    EXPECT_GE(found, 60);
}

TEST_F(ShippedLayout, ShowsThePagesOfOneFormatOnly)
{
    for (auto const & format : formats)
        for (unsigned int const side : sides(format)) {
            vmrTableInstance table(
                folder().write(format.resource_file, vmr_factory_resource_text(format.resources)).c_str());
            kitLayoutReader reader(&table);
            ASSERT_TRUE(reader.read(layout_file, side));
            std::set<std::string> titles;
            for (auto const & page : reader.recorder().pages)
                EXPECT_TRUE(titles.insert(page->title).second)
                    << page->title << " stands twice for " << format.name;
        }
}
