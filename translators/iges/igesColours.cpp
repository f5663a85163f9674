#include "iges/igesColours.h"

#include <Quantity_ColorRGBA.hxx>
#include <TDF_ChildIterator.hxx>

#include <optional>

namespace {

std::optional<Quantity_ColorRGBA> colour_of(sdkDocument const & document, TDF_Label const & label)
{
    Quantity_ColorRGBA colour;
    for (auto const type : {XCAFDoc_ColorSurf, XCAFDoc_ColorGen, XCAFDoc_ColorCurv}) {
        if (document.colours()->GetColor(label, type, colour)) {
            return colour;
        }
    }
    return std::nullopt;
}

} // namespace

std::int64_t iges_count_transparent(sdkDocument const & document)
{
    std::int64_t transparent = 0;
    for (TDF_ChildIterator child(document.shapes()->Label(), Standard_True); child.More(); child.Next()) {
        auto const & label = child.Value();
        auto const colour = XCAFDoc_ShapeTool::IsShape(label) ? colour_of(document, label) : std::nullopt;
        transparent += colour && colour->Alpha() < 1 ? 1 : 0;
    }
    return transparent;
}
