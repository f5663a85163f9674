#include "iges/igesUnits.h"

#include <IGESData_GlobalSection.hxx>
#include <TCollection_HAsciiString.hxx>

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

// IGES 5.3, 2.2.4.3.13: the scale is the ratio of model space to the real world; with 0.125, one unit of the
// model stands for eight. The unit flag is that of model space, and so are all lengths in the file: they
// stay what they are, and nothing that is translated carries the real world's lengths besides. What the scale
// says is for the user.
void iges_note_scale(IGESData_GlobalSection const & section, sdkContext & context)
{
    double const scale = section.Scale();
    if (scale <= 0 || scale == 1) {
        return;
    }
    context.account().add(
        {.weight = sdkWeight::note,
         .kind = "model-scale",
         .part = {},
         .place = {},
         .source = scale,
         .output = 1,
         .text = sdkText("iges::%s says that its model is %g times the real size; lengths stay those of the "
                         "model",
                         context.file(), scale)});
}

void iges_note_unknown_unit(IGESData_GlobalSection const & section, sdkContext & context)
{
    // The toolkit gives files whose unit it knows by name the flag of that unit.
    constexpr int by_name = 3;
    if (section.UnitFlag() != by_name) {
        return;
    }
    std::string const name = section.UnitName().IsNull() ? "" : section.UnitName()->ToCString();
    context.account().add(
        {.weight = sdkWeight::note,
         .kind = "unit-assumed",
         .part = {},
         .place = {},
         .text = sdkText("iges::%s gives its length unit the name \"%s\", which is not known; mm is assumed. "
                         "Choose another with the option igesReadUnits",
                         context.file(), name)});
}
