#include "sdk/measure/sdkStructureNames.h"

#include "sdk/measure/sdkAttributeComparison.h"

#include <string_view>

namespace {

void compare(sdkNameCounts const & source, sdkNameCounts const & output, sdkPromise const & promise,
             std::string_view text, std::vector<sdkFinding> & findings)
{
    // Names that differ may be written alike.
    sdkNameCounts wanted;
    for (auto const & [name, count] : source) {
        wanted[sdk_name_as_written(name, promise)] += count;
    }
    for (auto const & [name, count] : wanted) {
        auto const found = output.find(name);
        auto const there = found == output.end() ? 0 : found->second;
        if (there < count) {
            findings.push_back({sdkWeight::difference,
                                "name",
                                name,
                                {},
                                static_cast<double>(count),
                                static_cast<double>(there),
                                sdkText(text, name, count, there)});
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
