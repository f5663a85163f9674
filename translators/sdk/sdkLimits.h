#pragma once

#include "sdk/sdkText.h"

#include <cmath>
#include <cstdint>
#include <string>

// What no file may go beyond, whatever its format. A file that does is damaged, or made to do harm.

// Numbers that are larger, of any unit: Open CASCADE takes half of it for infinite already, and squares of
// larger ones are no numbers.
inline constexpr double sdk_largest_number = 2e100;

// False for NaN, for infinities and for numbers that nothing can be reckoned with.
inline bool sdk_usable(double number)
{
    return std::abs(number) <= sdk_largest_number;
}

// Coordinates and lengths in millimetres: a double that is larger does not tell one millimetre from the next.
inline constexpr double sdk_farthest = 1e15;

// False for NaN, for infinities and for what lies farther away.
inline bool sdk_in_reach(double coordinate)
{
    return std::abs(coordinate) <= sdk_farthest;
}

// Faces, curves and points at all places at which assemblies and compounds use them, and the places
// themselves. A few kilobytes of nested assemblies can stand for any number of them. What a file has once
// does not count: it has the size of the file.
inline constexpr std::int64_t sdk_most_places = 2'000'000;

// True when there are too many places for a file that has so many things once.
constexpr bool sdk_too_many(std::int64_t places, std::int64_t things)
{
    constexpr std::int64_t usual = 4; // times that a thing is used
    return places > sdk_most_places && places / usual > things;
}

// Assemblies or compounds within each other. Deeper ones would take more than the stack of a thread.
inline constexpr int sdk_deepest_nest = 1000;

// What the user reads of a file that goes beyond one of the two.
sdkText sdk_too_many_places(std::string const & file, std::int64_t places);
sdkText sdk_too_deep(std::string const & file, std::int64_t depth);
