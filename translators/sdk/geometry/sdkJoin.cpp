#include "sdk/geometry/sdkJoin.h"

#include <BRep_Builder.hxx>
#include <TopoDS_Compound.hxx>

TopoDS_Shape sdk_join(std::vector<TopoDS_Shape> const & shapes)
{
    if (shapes.size() == 1) {
        return shapes.front();
    }
    BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (auto const & shape : shapes) {
        builder.Add(compound, shape);
    }
    return compound;
}
