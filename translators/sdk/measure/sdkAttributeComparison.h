#pragma once

#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <map>
#include <string>
#include <vector>

// True when the names are equal, or one of them is the other as a format writes it that has ASCII only: with
// an underscore for each other character.
bool sdk_same_name(std::string const & a, std::string const & b);

// A name of the source as it stands in the output.
std::string sdk_name_as_written(std::string const & name, sdkPromise const & promise);

// The colour that most of a body has; empty when it has none.
std::string sdk_main_colour(std::map<std::string, double> const & colours);

// True when they are the same but for a step of rounding.
bool sdk_same_colour(std::string const & a, std::string const & b, bool transparency);

// A colour as users read it: without its opacity where nothing shines through.
std::string sdk_colour_text(std::string const & colour);

// True when each colour of the source has about the same share in the output. What has no colour in the
// source may have any.
bool sdk_same_colours(std::map<std::string, double> const & source,
                      std::map<std::string, double> const & output);

// Names, colours, layers and visibility of one body and its counterpart, as far as the output holds them. A
// colour or layer of what had none is a difference: no format invents one.
void sdk_compare_attributes(sdkBody const & source, sdkBody const & output, sdkPromise const & promise,
                            std::vector<sdkFinding> & findings);

// All names of the parts, wherever they stand.
void sdk_compare_names(sdkInventory const & source, sdkInventory const & output, sdkPromise const & promise,
                       std::vector<sdkFinding> & findings);

// Assemblies and places in them that the output lacks. That it has more is no difference: what is placed
// inside one part may become an assembly, and a body that is there once more is told as that.
void sdk_compare_structure(sdkInventory const & source, sdkInventory const & output,
                           std::vector<sdkFinding> & findings);
