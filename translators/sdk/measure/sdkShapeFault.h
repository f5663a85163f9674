#pragma once

#include <gp_Pnt.hxx>

#include <optional>
#include <string>

class TopoDS_Shape;

// The first thing about a shape that is not as the rules of boundary representation have it.
struct sdkShapeFault {
    std::string what; // an argument of an sdkText, such as "term::a face has no surface"
    gp_Pnt point;     // on the faulty face, edge or vertex, in the frame of the shape

    std::string place() const; // as "(1, 2.5, 3)"
};

// Nothing when the shape is valid, or when the check itself fails. The shape must have surfaces.
std::optional<sdkShapeFault> sdk_shape_fault(TopoDS_Shape const & shape);
