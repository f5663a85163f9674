#include "translators/kit/kitFault.h"

#include <BRepTools.hxx>
#include <BRep_Builder.hxx>

#include <stdexcept>

std::string kit_fault_file(std::string const & name)
{
    return std::string(KIT_FAULTS) + "/" + name;
}

TopoDS_Shape kit_fault(std::string const & name)
{
    TopoDS_Shape shape;
    if (!BRepTools::Read(shape, kit_fault_file(name).c_str(), BRep_Builder())) {
        throw std::runtime_error("cannot read " + name);
    }
    return shape;
}
