#include "iges/igesUnits.h"

#include <map>

int iges_unit_flag(sdkLengthUnit const & unit)
{
    // IGES 5.3, table of unit flags in the chapter about the global section.
    static std::map<std::string_view, int> const flags{{"in", 1},  {"mm", 2},  {"ft", 4},  {"mi", 5},
                                                       {"m", 6},   {"km", 7},  {"mil", 8}, {"um", 9},
                                                       {"cm", 10}, {"uin", 11}};
    auto const found = flags.find(unit.name);
    return found == flags.end() ? 0 : found->second;
}
