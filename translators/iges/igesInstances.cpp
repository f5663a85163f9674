#include "iges/igesInstances.h"

#include <BRep_Builder.hxx>
#include <IGESBasic_Group.hxx>
#include <IGESBasic_SingularSubfigure.hxx>
#include <IGESBasic_SubfigureDef.hxx>
#include <IGESData_ToolLocation.hxx>
#include <IGESGeom_TransformationMatrix.hxx>
#include <IGESSolid_SolidAssembly.hxx>
#include <IGESSolid_SolidInstance.hxx>
#include <TopoDS_Compound.hxx>
#include <gp_GTrsf.hxx>

#include <cmath>

namespace {

using Entity = Handle(IGESData_IGESEntity);
using Shapes = std::function<TopoDS_Shape(Entity const &)>;

// A matrix in a file is right to some digits only.
constexpr double matrix_tolerance = 1e-4;

TopoDS_Shape moved(TopoDS_Shape const & shape, gp_GTrsf const & matrix, double unit)
{
    gp_Trsf transformation;
    if (shape.IsNull() ||
        !IGESData_ToolLocation::ConvertLocation(matrix_tolerance, matrix, transformation, unit)) {
        return {};
    }
    return shape.Moved(TopLoc_Location(transformation), Standard_False);
}

TopoDS_Shape scaled(IGESBasic_SingularSubfigure const & instance, double unit, Shapes const & shape_of)
{
    auto const shape = shape_of(instance.Subfigure());
    gp_Trsf place;
    place.SetScale(gp_Pnt(), instance.ScaleFactor());
    place.SetTranslationPart(gp_Vec(instance.Translation()) * unit);
    return shape.IsNull() ? shape : shape.Moved(TopLoc_Location(place), Standard_False);
}

TopoDS_Shape assembled(IGESSolid_SolidAssembly const & assembly, double unit, Shapes const & shape_of)
{
    BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (int number = 1; number <= assembly.NbItems(); ++number) {
        auto shape = assembly.Item(number).IsNull() ? TopoDS_Shape() : shape_of(assembly.Item(number));
        if (auto const matrix = assembly.TransfMatrix(number); !matrix.IsNull()) {
            shape = moved(shape, matrix->Value(), unit);
        }
        if (shape.IsNull()) {
            return {};
        }
        builder.Add(compound, shape);
    }
    return assembly.NbItems() > 0 ? compound : TopoDS_Shape();
}

} // namespace

std::vector<Entity> iges_members(Entity const & entity)
{
    std::vector<Entity> members;
    auto const add = [&](Entity const & member) {
        if (!member.IsNull()) {
            members.push_back(member);
        }
    };
    if (auto const group = Handle(IGESBasic_Group)::DownCast(entity); !group.IsNull()) {
        for (int number = 1; number <= group->NbEntities(); ++number) {
            add(group->Entity(number));
        }
    } else if (auto const subfigure = Handle(IGESBasic_SubfigureDef)::DownCast(entity); !subfigure.IsNull()) {
        for (int number = 1; number <= subfigure->NbEntities(); ++number) {
            add(subfigure->AssociatedEntity(number));
        }
    } else if (auto const instance = Handle(IGESBasic_SingularSubfigure)::DownCast(entity);
               !instance.IsNull()) {
        add(instance->Subfigure());
    }
    return members;
}

bool iges_is_scaled_instance(Entity const & entity)
{
    auto const instance = Handle(IGESBasic_SingularSubfigure)::DownCast(entity);
    return !instance.IsNull() && !instance->Subfigure().IsNull() && instance->HasScaleFactor() &&
           instance->ScaleFactor() != 0 &&
           std::abs(instance->ScaleFactor() - 1) > TopLoc_Location::ScalePrec();
}

bool iges_is_solid_instance(Entity const & entity)
{
    return entity->IsKind(STANDARD_TYPE(IGESSolid_SolidInstance)) ||
           entity->IsKind(STANDARD_TYPE(IGESSolid_SolidAssembly));
}

TopoDS_Shape iges_instance(Entity const & entity, double millimetres_per_unit, Shapes const & shape_of)
{
    if (auto const instance = Handle(IGESBasic_SingularSubfigure)::DownCast(entity); !instance.IsNull()) {
        return scaled(*instance, millimetres_per_unit, shape_of);
    }
    if (auto const instance = Handle(IGESSolid_SolidInstance)::DownCast(entity); !instance.IsNull()) {
        return instance->Entity().IsNull() ? TopoDS_Shape() : shape_of(instance->Entity());
    }
    auto const assembly = Handle(IGESSolid_SolidAssembly)::DownCast(entity);
    return assembly.IsNull() ? TopoDS_Shape() : assembled(*assembly, millimetres_per_unit, shape_of);
}

TopoDS_Shape iges_placed(TopoDS_Shape const & shape, Entity const & entity, double millimetres_per_unit)
{
    return shape.IsNull() || !entity->HasTransf()
               ? shape
               : moved(shape, entity->CompoundLocation(), millimetres_per_unit);
}
