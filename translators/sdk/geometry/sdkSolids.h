#pragma once

#include <TopoDS_Shape.hxx>

#include <vector>

// Makes solids of the closed ones among these shells. A shell that is turned inward and lies inside another
// one becomes a cavity of that one's solid; otherwise a solid is turned so that it looks outward. What is not
// closed stays.
std::vector<TopoDS_Shape> sdk_make_solids(std::vector<TopoDS_Shape> const & shells);
