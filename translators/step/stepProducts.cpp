#include "step/stepProducts.h"

#include <Interface_InterfaceModel.hxx>
#include <StepBasic_Product.hxx>
#include <StepBasic_ProductDefinitionFormation.hxx>
#include <StepGeom_Placement.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <TCollection_HAsciiString.hxx>

#include <algorithm>

namespace {

// Assemblies have places only.
bool has_geometry(StepRepr_Representation const & shape)
{
    return !shape.Items().IsNull() &&
           std::any_of(shape.Items()->begin(), shape.Items()->end(), [](auto const & item) {
               return !item.IsNull() && !item->IsKind(STANDARD_TYPE(StepGeom_Placement));
           });
}

} // namespace

stepProducts::stepProducts(Handle(Interface_InterfaceModel) const & model)
{
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const & entity = model->Value(number);
        if (auto const usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(entity);
            !usage.IsNull()) {
            m_usages.emplace(usage->RelatingProductDefinition().get(),
                             usage->RelatedProductDefinition().get());
            continue;
        }
        auto const link = Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(entity);
        if (link.IsNull()) {
            continue;
        }
        auto const shape = link->Definition().PropertyDefinition();
        if (shape.IsNull()) {
            continue;
        }
        auto const product = shape->Definition().ProductDefinition();
        if (product.IsNull()) {
            continue;
        }
        if (link->UsedRepresentation().IsNull()) {
            m_with_unknown_shape.insert(product.get());
        } else {
            m_products.emplace(link->UsedRepresentation().get(), product);
            if (has_geometry(*link->UsedRepresentation())) {
                m_names[link->UsedRepresentation().get()].insert(name(product));
            }
        }
    }
}

Handle(StepBasic_ProductDefinition) stepProducts::product_of(Handle(StepRepr_Representation)
                                                                 const & shape) const
{
    auto const found = m_products.find(shape.get());
    return found == m_products.end() ? Handle(StepBasic_ProductDefinition)() : found->second;
}

bool stepProducts::has_unknown_shape(Handle(StepBasic_ProductDefinition) const & definition) const
{
    return m_with_unknown_shape.count(definition.get()) > 0;
}

bool stepProducts::uses(Handle(StepBasic_ProductDefinition) const & assembly,
                        Handle(StepBasic_ProductDefinition) const & component) const
{
    return m_usages.count({assembly.get(), component.get()}) > 0;
}

std::vector<std::set<std::string>> stepProducts::names_of_one_shape() const
{
    std::vector<std::set<std::string>> result;
    for (auto const & [shape, names] : m_names) {
        if (names.size() > 1) {
            result.push_back(names);
        }
    }
    return result;
}

std::string stepProducts::name(Handle(StepBasic_ProductDefinition) const & definition)
{
    if (definition.IsNull() || definition->Formation().IsNull() ||
        definition->Formation()->OfProduct().IsNull()) {
        return {};
    }
    auto const product = definition->Formation()->OfProduct();
    if (!product->Name().IsNull() && !product->Name()->IsEmpty()) {
        return product->Name()->ToCString();
    }
    return product->Id().IsNull() ? std::string() : std::string(product->Id()->ToCString());
}
