#pragma once

#include "sdk/measure/sdkBody.h"
#include "sdk/sdkDocument.h"

#include <NCollection_DataMap.hxx>
#include <TopTools_ShapeMapHasher.hxx>

#include <optional>
#include <string>

// What the labels of a part and of the shapes inside it say about colour, layer, name and visibility.
class sdkPartAttributes {
public:
    sdkPartAttributes(sdkDocument const & document, TDF_Label const & part);

    // Gives a body of the part what its own labels, those of its faces and of the part say. `painted` is the
    // colour of the part's own place, which hides that of the part, `placed_colour` that of the innermost
    // place further out that has one; it holds for what has none of its own.
    void apply(TopoDS_Shape const & shape, std::optional<std::string> const & painted,
               std::optional<std::string> const & placed_colour, sdkBody & body) const;

private:
    struct Detail {
        std::string name;
        std::optional<std::string> colour;
        std::set<std::string> layers;
        bool hidden = false;
    };

    static Detail read(sdkDocument const & document, TDF_Label const & label);
    Detail const * of(TopoDS_Shape const & shape) const;

    Detail m_part;
    NCollection_DataMap<TopoDS_Shape, Detail, TopTools_ShapeMapHasher> m_details;
};

// The colour of a label as "#rrggbbaa"; nothing when it has none.
std::optional<std::string> sdk_label_colour(sdkDocument const & document, TDF_Label const & label);

std::set<std::string> sdk_label_layers(sdkDocument const & document, TDF_Label const & label);
