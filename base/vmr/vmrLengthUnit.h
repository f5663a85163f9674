#pragma once

#include "ut/utString.h"

/// A unit of length. 0 stands for a unit that is not known.
enum vmrLengthUnit : int {
    vmrLengthUnitNone = 0,
    vmrLengthUnitMicron,
    vmrLengthUnitMillimetre,
    vmrLengthUnitCentimetre,
    vmrLengthUnitMetre,
    vmrLengthUnitKilometre,
    vmrLengthUnitMicroinch,
    vmrLengthUnitMil,
    vmrLengthUnitInch,
    vmrLengthUnitFoot,
    vmrLengthUnitMile,
};

/// Reads the usual spellings ("mm", "millimetres", "Inch", "in", "metre", "thou"), ignoring the case of ASCII
/// letters. Zero, with `unit` as it was, for any other text.
int make_vmrLengthUnit_from_string(utString const & text, vmrLengthUnit & unit);

/// The unit's short name: "um", "mm", "cm", "m", "km", "uin", "mil", "in", "ft" or "mi"; empty for none.
utString vmr_length_value_to_string(vmrLengthUnit unit);

/// How many millimetres make one unit; 0 for none.
double vmr_length_in_millimetres(vmrLengthUnit unit);
