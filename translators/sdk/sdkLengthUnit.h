#pragma once

#include <array>
#include <string_view>

// A unit of length as the option vmrOptOutputUnits names it, and how formats know it.
struct sdkLengthUnit {
    std::string_view name;    // stored value of the option, and the sign of the unit in messages
    double millimetres;       // length of one unit
    std::string_view english; // as STEP files name it, but in small letters
    std::string_view toolkit; // in Open CASCADE's settings for STEP and IGES
};

// All units, in the order in which manifests list them.
extern std::array<sdkLengthUnit, 10> const sdk_length_units;

// Null when there is none of that name.
sdkLengthUnit const * sdk_length_unit(std::string_view name);
// The unit of that length, within a relative error of 1e-6; null when there is none.
sdkLengthUnit const * sdk_length_unit(double millimetres);
