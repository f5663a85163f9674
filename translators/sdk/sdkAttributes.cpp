#include "sdk/sdkAttributes.h"

#include "sdk/sdkVisibility.h"

void sdk_add_attributes(sdkDocument & document, TDF_Label const & from, TDF_Label const & to)
{
    if (sdkDocument::name(to).empty()) {
        sdkDocument::set_name(to, sdkDocument::name(from));
    }
    for (auto const type : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv}) {
        TDF_Label colour;
        if (!document.colours()->IsSet(to, type) && XCAFDoc_ColorTool::GetColor(from, type, colour)) {
            document.colours()->SetColor(to, colour, type);
        }
    }
    if (sdk_hidden(document, from)) {
        sdk_hide(document, to);
    }
    TDF_LabelSequence layers;
    document.layers()->GetLayers(from, layers);
    for (auto const & layer : layers) {
        document.layers()->SetLayer(to, layer);
    }
}
