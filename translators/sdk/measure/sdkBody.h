#pragma once

#include "sdk/geometry/sdkPointText.h"
#include "sdk/measure/sdkBodyMeasure.h"

#include <map>
#include <set>
#include <string>
#include <vector>

enum class sdkBodyKind { solid, shell, face, mesh, curve, point };

// One solid, shell, face, mesh (faces that have triangles and no surfaces), curve or point of a document at
// one of the places where it is used, in the coordinates of the document.
struct sdkBody {
    sdkBodyKind kind = sdkBodyKind::solid;
    // Of the part that it belongs to, and of all that it lies in, from the outermost in: definitions and
    // places.
    std::string part;
    std::set<std::string> names;
    std::set<std::string> layers;
    // How much of its area (of a curve, length; of a point, 1) has which colour, as "#rrggbbaa"; an empty
    // text for what has none.
    std::map<std::string, double> colours;
    // Of the faces of the measure, in their order; empty where all have the same.
    std::vector<std::string> face_colours;
    bool hidden = false;
    sdkBodyMeasure measure;
    // What was measured, at its place; its faces in the order of the measure.
    TopoDS_Shape shape;

    double size() const; // diagonal of its extent
    // For messages: the part's name, or, where it has none, what the body is, as a term.
    std::string title() const;
    // Its centroid, as "(1, 2, 3)".
    std::string place() const;
};

// "solid", "shell", ...: for programs.
char const * sdk_kind_name(sdkBodyKind kind);

// The same for people: an argument of an sdkText.
char const * sdk_kind_term(sdkBodyKind kind);
