#pragma once

#include <TopoDS_Shape.hxx>

#include <string>

// The path of a file that was once translated wrong, by its name with the extension.
std::string kit_fault_file(std::string const & name);

// The shape in a BREP file of these, read by the toolkit alone.
TopoDS_Shape kit_fault(std::string const & name);
