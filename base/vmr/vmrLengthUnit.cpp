#include "vmr/vmrLengthUnit.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

struct Unit {
    vmrLengthUnit unit;
    double millimetres;
    std::vector<std::string_view> spellings; ///< in lower case; the first is the name that is written
};

std::vector<Unit> const & units()
{
    // An inch is 25.4 mm by its definition of 1959, and the other English units are multiples of it.
    static std::vector<Unit> const all = {
        {vmrLengthUnitMicron,
         0.001,
         {"um", "\u00b5m", "\u03bcm", "micron", "microns", "micrometre", "micrometres", "micrometer",
          "micrometers"}},
        {vmrLengthUnitMillimetre, 1.0, {"mm", "millimetre", "millimetres", "millimeter", "millimeters"}},
        {vmrLengthUnitCentimetre, 10.0, {"cm", "centimetre", "centimetres", "centimeter", "centimeters"}},
        {vmrLengthUnitMetre, 1000.0, {"m", "metre", "metres", "meter", "meters"}},
        {vmrLengthUnitKilometre, 1e6, {"km", "kilometre", "kilometres", "kilometer", "kilometers"}},
        {vmrLengthUnitMicroinch, 25.4e-6, {"uin", "\u00b5in", "\u03bcin", "microinch", "microinches"}},
        {vmrLengthUnitMil, 0.0254, {"mil", "mils", "thou"}},
        {vmrLengthUnitInch, 25.4, {"in", "inch", "inches", "\""}},
        {vmrLengthUnitFoot, 304.8, {"ft", "foot", "feet", "'"}},
        {vmrLengthUnitMile, 1609344.0, {"mi", "mile", "miles"}},
    };
    return all;
}

Unit const * find(vmrLengthUnit unit)
{
    auto const found =
        std::find_if(units().begin(), units().end(), [&](Unit const & u) { return u.unit == unit; });
    return found == units().end() ? nullptr : &*found;
}

} // namespace

int make_vmrLengthUnit_from_string(utString const & text, vmrLengthUnit & unit)
{
    auto word = text;
    word.remove_leading_chars(" \t");
    word.remove_trailing_chars(" \t");
    word.to_lower();
    for (auto const & candidate : units())
        if (std::find(candidate.spellings.begin(), candidate.spellings.end(), word.view()) !=
            candidate.spellings.end()) {
            unit = candidate.unit;
            return 1;
        }
    return 0;
}

utString vmr_length_value_to_string(vmrLengthUnit unit)
{
    auto const found = find(unit);
    return found ? utString(found->spellings.front()) : utString();
}

double vmr_length_in_millimetres(vmrLengthUnit unit)
{
    auto const found = find(unit);
    return found ? found->millimetres : 0.0;
}
