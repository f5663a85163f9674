#pragma once

#include <string>

// A cube of 10 with one corner at the origin, and all kinds of product and manufacturing information: on the
// face z = 10 a size in inches with a tolerance, a flatness and the target of a datum; an angle in degrees
// between the faces z = 10 and x = 10; datums A, B and C on z = 0, x = 0 and y = 0, and a position on x = 10
// in their system; a note on paper of its own that shows the size, and a view.
// The text is that of an AP242 file with the cube and nothing else; the result has 10 items besides.
std::string step_with_pmi(std::string const & cube);

// How many definitions of that kind a file has.
int step_count_kind(std::string const & text, std::string const & kind);
