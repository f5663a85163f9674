#pragma once

#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_Representation.hxx>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

class Interface_InterfaceModel;

// Which products a file has, as far as shapes need to know.
class stepProducts {
public:
    explicit stepProducts(Handle(Interface_InterfaceModel) const & model);

    // The product definition that has this representation as its shape; null when it belongs to none.
    Handle(StepBasic_ProductDefinition) product_of(Handle(StepRepr_Representation) const & shape) const;

    // True when the first is an assembly that the second is a component of.
    bool uses(Handle(StepBasic_ProductDefinition) const & assembly,
              Handle(StepBasic_ProductDefinition) const & component) const;

    // True when the file gives it a shape of a kind that is not known, so that nothing can be said of it.
    bool has_unknown_shape(Handle(StepBasic_ProductDefinition) const & definition) const;

    // The names of products that have one representation with geometry in common; only where they differ.
    std::vector<std::set<std::string>> names_of_one_shape() const;

    // What the file calls it; empty when it has no name.
    static std::string name(Handle(StepBasic_ProductDefinition) const & definition);

private:
    using Product = StepBasic_ProductDefinition const *;
    std::map<StepRepr_Representation const *, Handle(StepBasic_ProductDefinition)> m_products;
    std::map<StepRepr_Representation const *, std::set<std::string>> m_names; // where there is geometry
    std::set<Product> m_with_unknown_shape;
    std::set<std::pair<Product, Product>> m_usages;
};
