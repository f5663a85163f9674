#include "step/stepMaterials.h"

#include <Interface_InterfaceModel.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinition.hxx>
#include <TCollection_HAsciiString.hxx>

#include <set>
#include <string_view>

namespace {

bool is_of_material(StepRepr_PropertyDefinition const & property)
{
    return !property.Name().IsNull() &&
           std::string_view(property.Name()->ToCString()).find("material property") != std::string_view::npos;
}

// Null when the property is not that of a product or of its shape.
Handle(StepBasic_ProductDefinition) product_of(StepRepr_PropertyDefinition const & property)
{
    auto const definition = property.Definition();
    auto const shape = definition.ProductDefinitionShape();
    return shape.IsNull() ? definition.ProductDefinition() : shape->Definition().ProductDefinition();
}

} // namespace

std::int64_t step_count_materials(Handle(Interface_InterfaceModel) const & model)
{
    std::set<StepBasic_ProductDefinition const *> products;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const property = Handle(StepRepr_PropertyDefinition)::DownCast(model->Value(number));
        if (!property.IsNull() && is_of_material(*property)) {
            if (auto const product = product_of(*property); !product.IsNull()) {
                products.insert(product.get());
            }
        }
    }
    return static_cast<std::int64_t>(products.size());
}
