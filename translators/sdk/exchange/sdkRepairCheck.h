#pragma once

#include <TopoDS_Shape.hxx>

// True when a repair may stay: no edge lies farther from its faces than before (or than 1e-5 mm), volume and
// area are what they were within 1e-4 of them, and what was valid is valid.
bool sdk_no_worse(TopoDS_Shape const & before, TopoDS_Shape const & after);
