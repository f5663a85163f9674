#include "sdk/measure/sdkStructureNames.h"

#include "sdk/measure/sdkAttributeComparison.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace {

std::int64_t count_of(sdkNameCounts const & names, std::string const & name)
{
    auto const found = names.find(name);
    return found == names.end() ? 0 : found->second;
}

void tell(std::string const & name, std::int64_t source, std::int64_t output, std::string_view text,
          std::vector<sdkFinding> & findings)
{
    findings.push_back({sdkWeight::difference,
                        "name",
                        name,
                        {},
                        static_cast<double>(source),
                        static_cast<double>(output),
                        sdkText(text, name, source, output)});
}

void compare(sdkNameCounts const & source, sdkNameCounts const & output, sdkPromise const & promise,
             std::string_view text, std::vector<sdkFinding> & findings)
{
    // Names that differ may be written alike.
    sdkNameCounts wanted;
    for (auto const & [name, count] : source) {
        wanted[sdk_name_as_written(name, promise)] += count;
    }
    for (auto const & [name, count] : wanted) {
        if (auto const there = count_of(output, name); there < count) {
            tell(name, count, there, text, findings);
        }
    }
}

void compare(sdkNameCounts const & a, sdkNameCounts const & b, std::string_view text,
             std::vector<sdkFinding> & findings)
{
    for (auto const & [name, count] : a) {
        if (auto const there = count_of(b, name); there != count) {
            tell(name, count, there, text, findings);
        }
    }
    for (auto const & [name, count] : b) {
        if (count_of(a, name) == 0) {
            tell(name, 0, count, text, findings);
        }
    }
}

} // namespace

void sdk_compare_structure_names(sdkInventory const & source, sdkInventory const & output,
                                 sdkPromise const & promise, std::vector<sdkFinding> & findings)
{
    compare(source.assembly_names, output.assembly_names, promise,
            "measure::The name \"%s\" has %d assemblies in the source and %d in the output", findings);
    compare(source.instance_names, output.instance_names, promise,
            "measure::The name \"%s\" has %d instances in the source and %d in the output", findings);
}

void sdk_compare_structure_names(sdkInventory const & a, sdkInventory const & b,
                                 std::vector<sdkFinding> & findings)
{
    compare(a.assembly_names, b.assembly_names, "compare::The name \"%s\" has %d assemblies in A and %d in B",
            findings);
    compare(a.instance_names, b.instance_names, "compare::The name \"%s\" has %d instances in A and %d in B",
            findings);
}
