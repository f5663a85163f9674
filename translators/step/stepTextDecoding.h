#pragma once

#include <string>
#include <string_view>

// The text in UTF-8 that stands between the quotes of a string of a STEP file: the directives of ISO 10303-21
// for characters beyond ASCII and doubled quotes are resolved. What is no whole directive stays as it is;
// pages other than that of the Latin alphabet No. 1 (\P\) are not known.
std::string step_decoded(std::string_view text);
