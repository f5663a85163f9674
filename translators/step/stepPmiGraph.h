#pragma once

#include "step/stepDefinitions.h"
#include "step/stepPmiKinds.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// One entity of the product and manufacturing information of a STEP file, as its text has it.
class stepPmiEntity {
public:
    struct Reference {
        int number;
        bool listed; // stands in brackets among the parameters
    };

    explicit stepPmiEntity(std::string definition);

    // Without white space between tokens; strings are in the file's own encoding, but ASCII.
    std::string const & text() const { return m_text; }
    stepKinds kinds() const { return step_kinds(m_text); }
    std::vector<Reference> const & references() const { return m_references; }
    // The strings, without quotes.
    std::vector<std::string> strings() const;

private:
    std::string m_text;
    std::vector<Reference> m_references;
};

// All the product and manufacturing information of a file, cut loose from its products and their shapes: what
// the dimensions, tolerances, datums, annotations and views refer to, and what belongs to them.
class stepPmiGraph {
public:
    // The encoder turns strings beyond ASCII into what any STEP file may have.
    using Encode = std::function<std::string(std::string_view definition)>;
    stepPmiGraph(std::string_view text, Encode const & encode);

    // By number.
    std::map<int, stepPmiEntity> const & entities() const { return m_entities; }
    stepPmiEntity const * find(int number) const;
    // The dimensions and so on among them.
    std::vector<int> const & items() const { return m_items; }

    // Where it was cut. Products and what defines their shape, each with the number of the product
    // definition, or with 0 when it is none of one product.
    std::map<int, int> const & products() const { return m_products; }
    // The representations of the shapes of products, likewise.
    std::map<int, int> const & representations() const { return m_representations; }
    // The product definitions of both.
    std::set<int> product_definitions() const;
    // Geometry that belongs to such shapes.
    std::set<int> const & geometry() const { return m_geometry; }

    // Entities that a link says something of, which is what it would have to be there for.
    std::vector<int> subjects_of(int link) const;
    // Those that must not be there when the link is not.
    std::vector<int> held_by(int link) const;

private:
    struct Gathering;

    stepKinds kinds_of(int number) const;

    std::map<int, stepPmiEntity> m_entities;
    std::vector<int> m_items;
    std::map<int, int> m_products;
    std::map<int, int> m_representations;
    std::set<int> m_geometry;
};
