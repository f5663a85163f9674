#pragma once

#include <TopTools_DataMapOfShapeShape.hxx>
#include <TopoDS_Shape.hxx>

#include <functional>
#include <map>

// Multiplies all lengths of shapes: geometry, tolerances, triangles and the places of members. What is used
// several times is done once and stays shared; the shapes that are given are not changed.
class sdkScaler {
public:
    // Told of each shape that was scaled, and of each within it: what it was and what it is now, both without
    // a place of their own, and the factor, which may differ from the one asked for.
    using Listener =
        std::function<void(TopoDS_Shape const & before, TopoDS_Shape const & after, double factor)>;

    explicit sdkScaler(Listener listener = {}) : m_listener(std::move(listener)) {}

    // The shape scaled about the origin; a negative factor mirrors it there, too. Places of the shape and of
    // the members of its compounds that scale or mirror become part of the geometry, so the factor 1 makes
    // all places such as shapes can have. A shape that is right already is returned itself. It must not be
    // null.
    TopoDS_Shape operator()(TopoDS_Shape const & shape, double factor);

private:
    TopoDS_Shape compound(TopoDS_Shape const & base, double factor);
    TopoDS_Shape modified(TopoDS_Shape const & base, double factor) const;

    Listener m_listener;
    std::map<double, TopTools_DataMapOfShapeShape> m_done; // by factor
};
