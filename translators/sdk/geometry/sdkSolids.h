#pragma once

#include <TopoDS_Shape.hxx>
#include <TopoDS_Shell.hxx>

#include <vector>

// Makes solids of the closed ones among these shells. A shell that is turned inward and lies inside another
// one becomes a cavity of that one's solid; otherwise a solid is turned so that it looks outward. What is not
// closed stays.
std::vector<TopoDS_Shape> sdk_make_solids(std::vector<TopoDS_Shape> const & shells);

// A shell of one face; closed where the face bounds a body by itself.
TopoDS_Shell sdk_shell_of(TopoDS_Shape const & face);
