#pragma once

#include <TopoDS_Shape.hxx>

#include <string>

// What the toolkit's own writer and reader make of a shape and a file, without anything of this program.
bool iges_bare_write(TopoDS_Shape const & shape, std::string const & path);
TopoDS_Shape iges_bare_read(std::string const & path);
