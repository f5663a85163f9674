#include "sdk/sdkLengthUnit.h"

#include <algorithm>
#include <cmath>

std::array<sdkLengthUnit, 10> const sdk_length_units{{
    {"um", 1.0e-3, "micrometre", "UM"},
    {"mm", 1.0, "millimetre", "MM"},
    {"cm", 10.0, "centimetre", "CM"},
    {"m", 1000.0, "metre", "M"},
    {"km", 1.0e6, "kilometre", "KM"},
    {"uin", 25.4e-6, "microinch", "UIN"},
    {"mil", 0.0254, "mil", "MIL"},
    {"in", 25.4, "inch", "INCH"},
    {"ft", 304.8, "foot", "FT"},
    {"mi", 1609344.0, "mile", "MI"},
}};

sdkLengthUnit const * sdk_length_unit(std::string_view name)
{
    auto const found = std::find_if(sdk_length_units.begin(), sdk_length_units.end(),
                                    [name](auto const & unit) { return unit.name == name; });
    return found == sdk_length_units.end() ? nullptr : &*found;
}

sdkLengthUnit const * sdk_length_unit(double millimetres)
{
    auto const found =
        std::find_if(sdk_length_units.begin(), sdk_length_units.end(), [millimetres](auto const & unit) {
            return std::abs(unit.millimetres - millimetres) <= 1.0e-6 * unit.millimetres;
        });
    return found == sdk_length_units.end() ? nullptr : &*found;
}
