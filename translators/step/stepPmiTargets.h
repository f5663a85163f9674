#pragma once

#include <Interface_Graph.hxx>
#include <NCollection_DataMap.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS_Shape.hxx>

#include <optional>

class XSControl_WorkSession;

// Finds in a model that is about to be written what the shapes of a document have become. Shapes that were
// repaired, moved or made otherwise are other shapes and are not found.
class stepPmiTargets {
public:
    // Numbers of entities in the model, as they will be written.
    struct Product {
        int definition = 0;
        int shape = 0; // its PRODUCT_DEFINITION_SHAPE
        int representation = 0;
    };

    explicit stepPmiTargets(Handle(XSControl_WorkSession) const & session);

    // 0 when there is none.
    int entity_of(TopoDS_Shape const & shape) const;
    // The representation of a shape that holds the entity; 0 when none does.
    int representation_of(int entity) const;
    // The product that has the shape or parts of it.
    std::optional<Product> product_of(TopoDS_Shape const & shape) const;

private:
    std::optional<Product> product_of_representation(int representation) const;

    Interface_Graph m_graph;
    NCollection_DataMap<TopoDS_Shape, int, TopTools_ShapeMapHasher> m_entities;
};
