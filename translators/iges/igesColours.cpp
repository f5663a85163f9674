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

igesColourLosses iges_count_colour_losses(sdkDocument const & document)
{
    igesColourLosses losses;
    for (TDF_ChildIterator child(document.shapes()->Label(), Standard_True); child.More(); child.Next()) {
        auto const & label = child.Value();
        auto const colour = XCAFDoc_ShapeTool::IsShape(label) ? colour_of(document, label) : std::nullopt;
        if (!colour) {
            continue;
        }
        losses.transparent += colour->Alpha() < 1 ? 1 : 0;
        TDF_Label referred;
        if (XCAFDoc_ShapeTool::GetReferredShape(label, referred)) {
            auto const own = colour_of(document, referred);
            losses.overridden += own && !own->GetRGB().IsEqual(colour->GetRGB()) ? 1 : 0;
        }
    }
    return losses;
}
